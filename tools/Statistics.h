// What a marking engineer asks of a fill: how much there is to mark, how far the head travels in
// between and how long it takes.
#ifndef BARHATCH_TOOLS_STATISTICS_H
#define BARHATCH_TOOLS_STATISTICS_H

#include <cstddef>
#include <string>

#include "Drawing.h"

namespace preview {

struct Speeds {
  double mark = 100.0;   // units a second
  double jump = 1000.0;  // units a second
  double dwell = 10.0;   // milliseconds at each point
};

struct Statistics {
  MarkKind kind = MarkKind::kStrokes;
  std::size_t marks = 0;
  double markedLength = 0.0;
  double travelLength = 0.0;                                // between the marks
  double seconds = 0.0;                                     // without acceleration
  double left = 0.0, bottom = 0.0, right = 0.0, top = 0.0;  // of the lines, without the beam
};

Statistics StatisticsOf(const Drawing& drawing, const Speeds& speeds);

// How long one mark takes, and the way to the next.
double SecondsOf(const Stroke& mark, MarkKind kind, const Speeds& speeds);
double SecondsBetween(const Stroke& from, const Stroke& to, const Speeds& speeds);

// "1180 strokes", "1 point".
std::string CountText(const Statistics& statistics);

// One fact a line, each with its name in a column of 16 characters.
std::string Report(const Statistics& statistics, const Speeds& speeds);

}  // namespace preview

#endif
