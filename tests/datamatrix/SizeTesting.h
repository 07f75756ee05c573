// The library's row for a size of the reference table, and grids of it.
#ifndef BARHATCH_TESTS_DATAMATRIX_SIZETESTING_H
#define BARHATCH_TESTS_DATAMATRIX_SIZETESTING_H

#include <gtest/gtest.h>

#include <string>

#include "datamatrix/SymbolGrid.h"
#include "datamatrix/SymbolSizes.h"
#include "support/OwnedGrid.h"
#include "support/SymbolSizeReference.h"

namespace barhatch::test {

inline SymbolSize SizeOf(const ReferenceSize& reference) {
  SymbolSize size{};
  EXPECT_FALSE(
      ChooseSymbolSize(reference.data, {reference.rows, reference.columns, 0}, size).IsRefused());
  EXPECT_EQ(size.symbolColumns, reference.columns);
  return size;
}

// A grid as a host gets it. Null where there is no memory for the letters.
inline OwnedGrid Drawn(const SymbolSize& size, int quietModules, const std::string& mapping) {
  char* const letters = NewGrid(size, quietModules, mapping.data(), RuntimeMemory());
  if (letters == nullptr) return OwnedGrid(nullptr);
  return OwnedGrid(new TwoDStringResult{size.symbolRows + 2 * quietModules,
                                        size.symbolColumns + 2 * quietModules, letters});
}

}  // namespace barhatch::test

#endif
