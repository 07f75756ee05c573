#include "symbologies/ModuleStringBuilder.h"

#include <cassert>
#include <cstring>
#include <new>

namespace barhatch {

namespace {

std::size_t CapacityFor(std::size_t usualCapacity, std::size_t lettersNeeded) {
  return lettersNeeded + 1 > usualCapacity ? lettersNeeded + 1 : usualCapacity;
}

}  // namespace

ModuleStringBuilder::ModuleStringBuilder(std::size_t usualCapacity, std::size_t lettersNeeded)
    : capacity_(CapacityFor(usualCapacity, lettersNeeded)),
      letters_(new (std::nothrow) char[capacity_]) {}

ModuleStringBuilder::~ModuleStringBuilder() { delete[] letters_; }

void ModuleStringBuilder::AppendSpace(int modules) {
  const std::size_t letters = static_cast<std::size_t>(modules);
  if (char* room = RoomFor(letters)) std::memset(room, kNarrowSpace, letters);
}

char* ModuleStringBuilder::Release() {
  if (letters_ == nullptr) return nullptr;
  assert(!overflowed_);
  if (overflowed_) return nullptr;
  letters_[length_] = '\0';
  char* finished = letters_;
  letters_ = nullptr;
  return finished;
}

}  // namespace barhatch
