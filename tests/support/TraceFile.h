// A stream for the call trace whose content can be read at any time, also after the library has
// closed it.
#ifndef BARHATCH_TESTS_SUPPORT_TRACEFILE_H
#define BARHATCH_TESTS_SUPPORT_TRACEFILE_H

#include <sys/types.h>
#include <unistd.h>

#include <cstdio>
#include <string>

namespace barhatch::test {

class TraceFile {
 public:
  TraceFile() : writer_(std::tmpfile()), reader_(dup(fileno(writer_))) {}
  ~TraceFile() { close(reader_); }
  TraceFile(const TraceFile&) = delete;
  TraceFile& operator=(const TraceFile&) = delete;

  // For the library, which closes it.
  std::FILE* Writer() { return writer_; }

  // Everything that has been flushed. The position belongs to the writer and stays where it is.
  std::string Text() const {
    std::string text(1 << 16, '\0');
    const ssize_t length = pread(reader_, text.data(), text.size(), 0);
    text.resize(length > 0 ? static_cast<std::size_t>(length) : 0);
    return text;
  }

 private:
  std::FILE* writer_;
  int reader_;
};

}  // namespace barhatch::test

#endif
