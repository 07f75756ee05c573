// One sentence for the host, put together piece by piece. Numbers are written without the runtime's
// formatting, whose locale is the host's. What does not fit is cut.
#ifndef BARHATCH_MARK_MESSAGE_H
#define BARHATCH_MARK_MESSAGE_H

#include <cstddef>
#include <cstdint>

#include "barhatch_mark.h"

namespace barhatch {

class Message {
 public:
  static constexpr std::size_t kCapacity = sizeof(BarhatchResult::message);

  explicit Message(char (&room)[kCapacity]) : room_(room) { room_[0] = '\0'; }

  Message& operator<<(const char* text);
  Message& operator<<(std::int32_t number);

  // A byte, unit or code point as "0x65 'e'", the character where ASCII prints it.
  Message& Code(std::int32_t code);

 private:
  void Put(char character);

  char (&room_)[kCapacity];
  std::size_t length_ = 0;
};

}  // namespace barhatch

#endif
