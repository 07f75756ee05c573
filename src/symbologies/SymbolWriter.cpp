#include "symbologies/SymbolWriter.h"

#include <cassert>
#include <cstring>

namespace barhatch {

void SymbolWriter::Open(std::size_t letters) {
  assert(letters_ == nullptr);
  const std::size_t needed = letters + static_cast<std::size_t>(quiet_.left + quiet_.right) + 1;
  const std::size_t capacity = needed > usualCapacity_ ? needed : usualCapacity_;
  letters_ = static_cast<char*>(memory_.Allocate(capacity));
  capacity_ = letters_ != nullptr ? capacity : 0;
  AppendSpace(quiet_.left);
}

void SymbolWriter::AppendSpace(int modules) {
  const std::size_t letters = static_cast<std::size_t>(modules);
  if (char* room = Room(letters)) std::memset(room, kNarrowSpace, letters);
}

char* SymbolWriter::Release() {
  AppendSpace(quiet_.right);
  if (letters_ == nullptr) return nullptr;
  assert(!overflowed_);
  if (overflowed_) return nullptr;
  letters_[length_] = '\0';
  return std::exchange(letters_, nullptr);
}

}  // namespace barhatch
