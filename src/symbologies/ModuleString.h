// The module string: one letter per element of a linear symbol, left to right, NUL-terminated.
// "AaB" is a narrow bar, a narrow space and a wide bar. A narrow element is one module wide, a wide
// one PrintRatio modules.
#ifndef BARHATCH_SYMBOLOGIES_MODULESTRING_H
#define BARHATCH_SYMBOLOGIES_MODULESTRING_H

namespace barhatch {

constexpr char kNarrowBar = 'A';
constexpr char kWideBar = 'B';
constexpr char kNarrowSpace = 'a';
constexpr char kWideSpace = 'b';

}  // namespace barhatch

#endif
