// The module string: one letter per element of a linear symbol, left to right, NUL-terminated.
// "AaB" is a narrow bar, a narrow space and a wide bar. A narrow element is one module wide, a wide
// one PrintRatio modules.
#ifndef BARHATCH_JOB_MODULESTRING_H
#define BARHATCH_JOB_MODULESTRING_H

namespace barhatch {

constexpr char kNarrowBar = 'A';
constexpr char kWideBar = 'B';
constexpr char kNarrowSpace = 'a';
constexpr char kWideSpace = 'b';

// The letter of a module written as a digit: '1' dark, '0' light.
constexpr char ModuleLetter(char digit) {
  return static_cast<char>(kNarrowSpace - (digit - '0') * (kNarrowSpace - kNarrowBar));
}
static_assert(ModuleLetter('1') == kNarrowBar && ModuleLetter('0') == kNarrowSpace, "");

// The letter of an element written as a digit, '1' wide, '0' narrow, at a position from 0: bars at
// even positions, spaces at odd ones.
constexpr char ElementLetter(char digit, int position) {
  return static_cast<char>((position % 2 == 0 ? kNarrowBar : kNarrowSpace) + (digit - '0'));
}
static_assert(ElementLetter('0', 0) == kNarrowBar && ElementLetter('1', 0) == kWideBar, "");
static_assert(ElementLetter('0', 1) == kNarrowSpace && ElementLetter('1', 1) == kWideSpace, "");

}  // namespace barhatch

#endif
