// Finished symbols drawn without the library: all 48 sizes, frames module by module, placement and
// error correction of the plain references.
#ifndef BARHATCH_TESTS_SUPPORT_PLAINGRID_H
#define BARHATCH_TESTS_SUPPORT_PLAINGRID_H

#include <ostream>
#include <string>
#include <vector>

#include "support/SymbolSizeReference.h"

namespace barhatch::test {

struct PlainSize {
  ReferenceSize size;
  ReferenceRegions regions;
  int blocks;
};

inline std::ostream& operator<<(std::ostream& out, const PlainSize& plain) {
  return out << plain.size.rows << "x" << plain.size.columns;
}

// The 30 sizes of ISO/IEC 16022 and the 18 of ISO/IEC 21471.
const std::vector<PlainSize>& PlainSizes();

// Data and error codewords in the order in which they are placed, that of the standard or of the
// industry, which differ in 144 x 144 alone.
std::vector<int> PlainStream(const std::vector<int>& data, const PlainSize& plain, bool isIndustry);

// 'A' and 'a', row by row from the top, with a quiet zone.
std::string PlainGrid(const std::vector<int>& stream, const PlainSize& plain, int quietModules);

}  // namespace barhatch::test

#endif
