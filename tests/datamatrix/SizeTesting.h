// The library's row for a size of the reference table.
#ifndef BARHATCH_TESTS_DATAMATRIX_SIZETESTING_H
#define BARHATCH_TESTS_DATAMATRIX_SIZETESTING_H

#include <gtest/gtest.h>

#include "datamatrix/SymbolSizes.h"
#include "support/SymbolSizeReference.h"

namespace barhatch::test {

inline SymbolSize SizeOf(const ReferenceSize& reference) {
  SymbolSize size{};
  EXPECT_TRUE(ChooseSymbolSize(reference.data, {reference.rows, reference.columns, 0}, size));
  EXPECT_EQ(size.symbolColumns, reference.columns);
  return size;
}

}  // namespace barhatch::test

#endif
