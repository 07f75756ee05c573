// What the module strings of the exports have always been allocated with, by type, in characters:
// hosts may have come to rely on the room. A longer string gets what it needs. They stand here and
// not in the table of symbologies, because they are the exports' own: no mark has such a room.
#ifndef BARHATCH_API_USUALCAPACITIES_H
#define BARHATCH_API_USUALCAPACITIES_H

#include <cstdint>

namespace barhatch {

constexpr std::uint16_t kUsualCapacities[] = {
    24936,  // 0 Codabar
    31170,  // 1 Code 39
    31170,  // 2 Code 93
    28053,  // 3 EAN-13
    37424,  // 4 MSI
    40521,  // 5 Code 128
    40521,  // 6 from set A
    40521,  // 7 set B
    40521,  // 8 from set C
    18722,  // 9 UPC-A
    21839,  // 10 UPC-E
    24936,  // 11 Code 11
    28053,  // 12 EAN-8
    21839,  // 13 UPC-A with 2 digits
    21859,  // 14 UPC-A with 5 digits
    28093,  // 15 EAN-13 with 2 digits
    28093,  // 16 EAN-13 with 5 digits
    28073,  // 17 EAN-8 with 2 digits
    28093,  // 18 EAN-8 with 5 digits
    21839,  // 19 UPC-E with 2 digits
    21859,  // 20 UPC-E with 5 digits
    24936,  // 21 Interleaved 2 of 5
    31170,  // 22 Code 93, full ASCII
};
constexpr std::uint32_t kLinearTypes = sizeof kUsualCapacities / sizeof *kUsualCapacities;
static_assert(kLinearTypes == 23, "types 0 to 22");

}  // namespace barhatch

#endif
