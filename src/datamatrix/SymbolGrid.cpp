#include "datamatrix/SymbolGrid.h"

#include <cstddef>
#include <cstring>
#include <new>

#include "job/ModuleString.h"

namespace barhatch {

namespace {

// Writes the modules of a grid in reading order.
class GridWriter {
 public:
  GridWriter(const SymbolSize& size, QuietBorder border, char* data)
      : size_(size), borderModules_(border == QuietBorder::kOneModule ? 1 : 0), next_(data) {}

  void WriteGrid(const char* mapping) {
    const int linesOfRegion = size_.symbolRows / size_.regionsDown;
    WriteQuietLine();
    for (int region = 0; region < size_.regionsDown; ++region) {
      WriteClockLine();
      for (int line = 1; line < linesOfRegion - 1; ++line, mapping += size_.mappingColumns)
        WriteDataLine(mapping, line % 2 == 0 ? kNarrowSpace : kNarrowBar);
      WriteFinderLine();
    }
    WriteQuietLine();
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

  void WriteQuietLine() {
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

TwoDStringResult* NewRefusedGrid() { return new (std::nothrow) TwoDStringResult{0, 0, nullptr}; }

TwoDStringResult* NewGrid(const SymbolSize& size, QuietBorder border, const char* mapping) {
  TwoDStringResult* const grid = NewRefusedGrid();
  if (grid == nullptr) return nullptr;
  const int borders = border == QuietBorder::kOneModule ? 2 : 0;
  grid->numrows = size.symbolRows + borders;
  grid->numcols = size.symbolColumns + borders;
  const std::size_t modules = static_cast<std::size_t>(grid->numrows * grid->numcols);
  grid->data = new (std::nothrow) char[modules + 1];
  if (grid->data == nullptr) {
    delete grid;
    return nullptr;
  }
  GridWriter(size, border, grid->data).WriteGrid(mapping);
  return grid;
}

}  // namespace barhatch
