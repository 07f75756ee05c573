#include "datamatrix/SymbolGrid.h"

#include <cstddef>
#include <cstring>

#include "job/ModuleString.h"

namespace barhatch {

namespace {

// Writes the modules of a grid in reading order.
class GridWriter {
 public:
  GridWriter(const SymbolSize& size, int quietModules, char* letters)
      : size_(size), borderModules_(quietModules), next_(letters) {}

  void WriteGrid(const char* mapping) {
    const int linesOfRegion = size_.symbolRows / size_.regionsDown;
    WriteQuietLines();
    for (int region = 0; region < size_.regionsDown; ++region) {
      WriteClockLine();
      for (int line = 1; line < linesOfRegion - 1; ++line, mapping += size_.mappingColumns)
        WriteDataLine(mapping, line % 2 == 0 ? kNarrowSpace : kNarrowBar);
      WriteFinderLine();
    }
    WriteQuietLines();
    *next_ = '\0';
  }

 private:
  void Write(char letter, int modules) {
    std::memset(next_, letter, static_cast<std::size_t>(modules));
    next_ += modules;
  }

  void Write(const char* letters, int modules) {
    std::memcpy(next_, letters, static_cast<std::size_t>(modules));
    next_ += modules;
  }

  void WriteQuietLines() {
    Write(kNarrowSpace, borderModules_ * (size_.symbolColumns + 2 * borderModules_));
  }

  void WriteClockLine() {
    Write(kNarrowSpace, borderModules_);
    for (int column = 0; column < size_.symbolColumns; column += 2) {
      Write(kNarrowBar, 1);
      Write(kNarrowSpace, 1);
    }
    Write(kNarrowSpace, borderModules_);
  }

  void WriteDataLine(const char* mappingRow, char rightSide) {
    const int modulesOfRegion = size_.mappingColumns / size_.regionsAcross;
    Write(kNarrowSpace, borderModules_);
    for (int region = 0; region < size_.regionsAcross; ++region) {
      Write(kNarrowBar, 1);
      Write(mappingRow + region * modulesOfRegion, modulesOfRegion);
      Write(rightSide, 1);
    }
    Write(kNarrowSpace, borderModules_);
  }

  void WriteFinderLine() {
    Write(kNarrowSpace, borderModules_);
    Write(kNarrowBar, size_.symbolColumns);
    Write(kNarrowSpace, borderModules_);
  }

  const SymbolSize& size_;
  const int borderModules_;
  char* next_;
};

}  // namespace

char* NewGrid(const SymbolSize& size, int quietModules, const char* mapping, const Memory& memory) {
  const int rows = size.symbolRows + 2 * quietModules;
  const int columns = size.symbolColumns + 2 * quietModules;
  Block<char> letters(memory, static_cast<std::size_t>(rows * columns) + 1);
  if (letters.get() != nullptr) GridWriter(size, quietModules, letters.get()).WriteGrid(mapping);
  return letters.Release();
}

}  // namespace barhatch
