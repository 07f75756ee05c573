#include "mark/Message.h"

namespace barhatch {

void Message::Put(char character) {
  if (length_ + 1 == kCapacity) return;
  room_[length_++] = character;
  room_[length_] = '\0';
}

Message& Message::operator<<(const char* text) {
  for (; *text != '\0'; ++text) Put(*text);
  return *this;
}

Message& Message::operator<<(std::int32_t number) {
  char digits[10];
  int count = 0;
  std::uint32_t rest = static_cast<std::uint32_t>(number);
  if (number < 0) {
    Put('-');
    rest = 0 - rest;
  }
  do {
    digits[count++] = static_cast<char>('0' + rest % 10);
    rest /= 10;
  } while (rest != 0);
  while (count > 0) Put(digits[--count]);
  return *this;
}

Message& Message::Code(std::int32_t code) {
  *this << "0x";
  const int digits = code > 0xFFFFF ? 6 : code > 0xFFFF ? 5 : code > 0xFF ? 4 : 2;
  for (int shift = 4 * (digits - 1); shift >= 0; shift -= 4)
    Put("0123456789ABCDEF"[code >> shift & 0xF]);
  if (code <= ' ' || code >= 127) return *this;
  *this << " '";
  Put(static_cast<char>(code));
  return *this << "'";
}

}  // namespace barhatch
