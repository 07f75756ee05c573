// Writes a module string element by element into one array of fixed size and hands it over at the
// end. No encoder writes a letter itself.
#ifndef BARHATCH_SYMBOLOGIES_MODULESTRINGBUILDER_H
#define BARHATCH_SYMBOLOGIES_MODULESTRINGBUILDER_H

#include <cstddef>

namespace barhatch {

enum class Shade { kDark, kLight };
enum class ElementWidth { kNarrow, kWide };
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

  void AppendElement(Shade shade, ElementWidth width);

  // Wide and narrow elements as digits, bar first, then space, bar, ...: "0110" is a narrow bar, a
  // wide space, a wide bar and a narrow space.
  void AppendElements(const char* elements);

  // Single modules as digits: '1' dark, '0' light.
  void AppendModules(const char* modules);

  // Narrow light elements: a quiet zone, or the gap between characters.
  void AppendSpace(int modules);

  // The finished string, which the caller owns (delete[]); null when there was no memory or more
  // letters were appended than announced. The builder is empty afterwards.
  char* Release();

 private:
  void Append(char letter);

  std::size_t capacity_;
  std::size_t length_ = 0;
  bool overflowed_ = false;
  char* letters_;
};

}  // namespace barhatch

#endif
