// What is said about each deviation from the published standards, for results and for pages.
//
// The words stand here once: scripts/check-deviations holds the rows of docs/deviations.md to them
// and writes them there.
#ifndef BARHATCH_MARK_DEVIATIONTABLE_H
#define BARHATCH_MARK_DEVIATIONTABLE_H

#include "job/Deviations.h"

namespace barhatch {

// A row of the register. All five are plain ASCII and never null.
struct DeviationRow {
  const char* id;         // "D-39-1"
  const char* does;       // what the library does
  const char* published;  // the published form
  const char* touches;    // the data that the deviation touches; begins with "none" where none is
  const char* reads;      // what a standard reader sees; "-" where nothing is touched
};

// Row n is that of the deviation with the number n.
extern const DeviationRow kDeviationRows[kDeviationCount];

}  // namespace barhatch

#endif
