// Writes a module string element by element into one array of fixed size and hands it over at the
// end. No encoder writes a letter itself.
#ifndef BARHATCH_SYMBOLOGIES_MODULESTRINGBUILDER_H
#define BARHATCH_SYMBOLOGIES_MODULESTRINGBUILDER_H

#include <cstddef>

#include "job/ModuleString.h"

namespace barhatch {

enum class QuietZone { kNone, kBothEnds };

// Light modules at each end of most symbologies; the EAN/UPC family has widths of its own.
constexpr int kQuietZoneModules = 10;

// Light modules at one end: those of the symbology when a quiet zone is asked for, else none.
constexpr int QuietModules(QuietZone quietZone, int modules = kQuietZoneModules) {
  return quietZone == QuietZone::kBothEnds ? modules : 0;
}

class ModuleStringBuilder {
 public:
  // lettersNeeded: the letters that will be appended, without the NUL. The array has room for
  // usualCapacity characters (the size that hosts of this symbology have always been given) or for
  // what is needed, whichever is more.
  ModuleStringBuilder(std::size_t usualCapacity, std::size_t lettersNeeded);
  ~ModuleStringBuilder();
  ModuleStringBuilder(const ModuleStringBuilder&) = delete;
  ModuleStringBuilder& operator=(const ModuleStringBuilder&) = delete;

  // Wide and narrow elements as digits, bar first, then space, bar, ...: "0110" is a narrow bar, a
  // wide space, a wide bar and a narrow space. The count is a constant so that the digits are
  // turned into letters without a loop over single ones.
  template <std::size_t kCount>
  void AppendElements(const char* elements) {
    if (char* room = RoomFor(kCount)) {
      for (std::size_t i = 0; i < kCount; ++i)
        room[i] = ElementLetter(elements[i], static_cast<int>(i));
    }
  }

  // Single modules as digits: '1' dark, '0' light.
  template <std::size_t kCount>
  void AppendModules(const char* modules) {
    if (char* room = RoomFor(kCount)) {
      for (std::size_t i = 0; i < kCount; ++i) room[i] = ModuleLetter(modules[i]);
    }
  }

  // The same for a whole literal.
  template <std::size_t kSize>
  void AppendElements(const char (&elements)[kSize]) {
    AppendElements<kSize - 1>(&elements[0]);
  }
  template <std::size_t kSize>
  void AppendModules(const char (&modules)[kSize]) {
    AppendModules<kSize - 1>(&modules[0]);
  }

  // Bars and spaces that alternate, as digits of their own: "00" and "11" are a narrow bar, a wide
  // space, a narrow bar and a wide space.
  template <std::size_t kPairs>
  void AppendInterleaved(const char* bars, const char* spaces) {
    if (char* room = RoomFor(2 * kPairs)) {
      for (std::size_t i = 0; i < kPairs; ++i) {
        room[2 * i] = ElementLetter(bars[i], 0);
        room[2 * i + 1] = ElementLetter(spaces[i], 1);
      }
    }
  }

  // Narrow light elements: a quiet zone, or the gap between characters.
  void AppendSpace(int modules);

  // The finished string, which the caller owns (delete[]); null when there was no memory or more
  // letters were appended than announced. The builder is empty afterwards.
  char* Release();

 private:
  // Where the next letters go; null when there is no memory or more letters come than announced.
  char* RoomFor(std::size_t letters) {
    if (letters_ == nullptr || capacity_ - 1 - length_ < letters) {
      overflowed_ = true;
      return nullptr;
    }
    char* const room = letters_ + length_;
    length_ += letters;
    return room;
  }

  std::size_t capacity_;
  std::size_t length_ = 0;
  bool overflowed_ = false;
  char* letters_;
};

}  // namespace barhatch

#endif
