#include "symbologies/ModuleStringBuilder.h"

#include <cassert>
#include <new>

#include "symbologies/ModuleString.h"

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

void ModuleStringBuilder::Append(char letter) {
  if (letters_ == nullptr || length_ + 1 >= capacity_) {
    overflowed_ = true;
    return;
  }
  letters_[length_++] = letter;
}

void ModuleStringBuilder::AppendElement(Shade shade, ElementWidth width) {
  const bool wide = width == ElementWidth::kWide;
  if (shade == Shade::kDark) {
    Append(wide ? kWideBar : kNarrowBar);
  } else {
    Append(wide ? kWideSpace : kNarrowSpace);
  }
}

void ModuleStringBuilder::AppendElements(const char* elements) {
  Shade shade = Shade::kDark;
  for (; *elements != '\0'; ++elements) {
    AppendElement(shade, *elements == '1' ? ElementWidth::kWide : ElementWidth::kNarrow);
    shade = shade == Shade::kDark ? Shade::kLight : Shade::kDark;
  }
}

void ModuleStringBuilder::AppendModules(const char* modules) {
  for (; *modules != '\0'; ++modules) Append(*modules == '1' ? kNarrowBar : kNarrowSpace);
}

void ModuleStringBuilder::AppendSpace(int modules) {
  for (int i = 0; i < modules; ++i) Append(kNarrowSpace);
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
