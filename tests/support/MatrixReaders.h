// Independent readers of Data Matrix, given a grid of modules ('A' dark, 'a' light, row by row from
// the top, with or without quiet zone). The text that was read, empty when nothing was.
#ifndef BARHATCH_TESTS_SUPPORT_MATRIXREADERS_H
#define BARHATCH_TESTS_SUPPORT_MATRIXREADERS_H

#include <string>

namespace barhatch::test {

std::string ReadWithZxing(const std::string& letters, int columns);
std::string ReadWithLibdmtx(const std::string& letters, int columns);

}  // namespace barhatch::test

#endif
