// Thousands of calls made from a seed and one checksum over everything they gave. The run is the
// same wherever it is compiled: the generator is fixed by the standard, no distribution and no
// function of the mathematical library stands between it and an argument, and no two numbers are
// drawn in one expression, whose order a compiler may choose. The checksum takes the fields of the
// results one by one, doubles by their bits, so that the layout of a record does not matter; all
// values that are no number count as one.
#ifndef BARHATCH_TESTS_DETERMINISM_SEEDEDRUN_H
#define BARHATCH_TESTS_DETERMINISM_SEEDEDRUN_H

#include <cstdint>

#include "device/BarcodeLibrary.h"

namespace barhatch::determinism {

struct RunResult {
  std::uint64_t checksum = 0;
  int steps = 0;
  int barcodes = 0;  // results that were not null
};

// A step sets or hands over everything that its calls read and makes one barcode.
RunResult RunSeeded(device::BarcodeLibrary& library, int steps);

// Made by this run itself: g++ -O2 on x86-64, `scripts/determinism` prints the checksum of each of
// its builds. A change means that some result has changed, and needs a line in the change log.
struct PinnedRun {
  int steps;
  std::uint64_t checksum;
};
constexpr PinnedRun kLongRun = {4000, 0x322469bd364ffc4e};
constexpr PinnedRun kShortRun = {
    250, 0x32afbad209fc9115};  // the beginning of the long one, for slow machines

}  // namespace barhatch::determinism

#endif
