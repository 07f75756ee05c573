// The platform's core runtime library as far as the DLL may use it, modelled on the host: memory,
// the block functions, formatted printing to streams. Binds itself to a machine.
//
// The model is strict where the platform may be lenient: a block is released in the form it was
// allocated in, a closed stream is not used again, a format it does not know is refused.
#ifndef BARHATCH_TESTS_DEVICE_CERUNTIME_H
#define BARHATCH_TESTS_DEVICE_CERUNTIME_H

#include <cstdint>
#include <map>
#include <string>

#include "device/CeMachine.h"
#include "device/PeImage.h"

namespace barhatch::device {

class CeRuntime {
 public:
  explicit CeRuntime(CeMachine& machine);

  // Address of the imported function; refuses what the library must not import.
  std::uint32_t Resolve(const PeImage::Import& import) const;

  // Opens a stream and returns its handle, as fopen would.
  std::uint32_t OpenStream();
  const std::string& Written(std::uint32_t stream) const { return streams_.at(stream).text; }
  bool IsFlushed(std::uint32_t stream) const { return streams_.at(stream).isFlushed; }
  bool IsOpen(std::uint32_t stream) const { return streams_.at(stream).isOpen; }

  const std::string& Console() const { return console_; }  // what puts printed

 private:
  struct Stream {
    std::string text;
    bool isFlushed;
    bool isOpen;
  };

  void Bind(const std::string& name, CeMachine::HostFunction function);
  void BindMemory();
  void BindBlocks();
  void BindStreams();
  Stream& OpenStreamAt(std::uint32_t handle);

  CeMachine& machine_;
  std::map<std::string, std::uint32_t> functions_;
  std::map<std::uint32_t, Stream> streams_;
  std::string console_;
};

// The text of a printf format with its arguments, the first being argument `first` of the call.
std::string Format(CeMachine& machine, const std::string& format, std::uint32_t first);

}  // namespace barhatch::device

#endif
