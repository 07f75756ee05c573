// A progress bar on standard error, where that is a terminal; nothing elsewhere.
#ifndef BARHATCH_TOOLS_PROGRESS_H
#define BARHATCH_TOOLS_PROGRESS_H

#include <cstddef>
#include <string>

namespace preview {

// [##########..........] 12/24
std::string ProgressBar(std::size_t done, std::size_t all);

class Progress {
 public:
  explicit Progress(std::size_t all);
  ~Progress() { Clear(); }
  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;

  void Show(std::size_t done) const;
  void Clear() const;  // before anything else is printed

 private:
  std::size_t all_;
  bool isTerminal_;
};

}  // namespace preview

#endif
