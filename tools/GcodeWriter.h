// The marks as G-code for a laser engraver: G0 to the beginning of a stroke, laser on, G1 to its
// end, laser off; at a point the laser is on for the dwell time. Strokes that begin where the last
// one ended go on without switching. Millimetres (G21), absolute (G90), lengths to a nanometre; F
// in millimetres a minute, P of a dwell in seconds.
#ifndef BARHATCH_TOOLS_GCODEWRITER_H
#define BARHATCH_TOOLS_GCODEWRITER_H

#include <string>

#include "Drawing.h"
#include "Statistics.h"

namespace preview {

// M3: constant power. M4: power by the actual speed, off where the head stands still.
enum class LaserMode { kConstant, kDynamic };

struct Laser {
  double power = 300.0;  // the S word, in the controller's own measure
  LaserMode mode = LaserMode::kConstant;
};

std::string GcodeOf(const Drawing& drawing, const Speeds& speeds, const Laser& laser);

}  // namespace preview

#endif
