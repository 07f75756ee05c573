#include "Statistics.h"

#include <fmt/core.h>

#include <algorithm>

namespace preview {

double SecondsOf(const Stroke& mark, MarkKind kind, const Speeds& speeds) {
  return kind == MarkKind::kPoints ? speeds.dwell / 1000.0 : LengthOf(mark) / speeds.mark;
}

double SecondsBetween(const Stroke& from, const Stroke& to, const Speeds& speeds) {
  return TravelBetween(from, to) / speeds.jump;
}

Statistics StatisticsOf(const Drawing& drawing, const Speeds& speeds) {
  Statistics statistics;
  statistics.kind = drawing.kind;
  statistics.marks = drawing.marks.size();
  if (drawing.marks.empty()) return statistics;
  const Stroke& first = drawing.marks.front();
  statistics.left = statistics.right = first.x0;
  statistics.bottom = statistics.top = first.y0;
  const Stroke* previous = nullptr;
  for (const Stroke& mark : drawing.marks) {
    statistics.markedLength += LengthOf(mark);
    statistics.seconds += SecondsOf(mark, drawing.kind, speeds);
    if (previous != nullptr) {
      statistics.travelLength += TravelBetween(*previous, mark);
      statistics.seconds += SecondsBetween(*previous, mark, speeds);
    }
    previous = &mark;
    statistics.left = std::min({statistics.left, mark.x0, mark.x1});
    statistics.right = std::max({statistics.right, mark.x0, mark.x1});
    statistics.bottom = std::min({statistics.bottom, mark.y0, mark.y1});
    statistics.top = std::max({statistics.top, mark.y0, mark.y1});
  }
  return statistics;
}

std::string CountText(const Statistics& statistics) {
  const char* const name = statistics.kind == MarkKind::kPoints ? "point" : "stroke";
  return fmt::format("{} {}{}", statistics.marks, name, statistics.marks == 1 ? "" : "s");
}

std::string Report(const Statistics& statistics, const Speeds& speeds) {
  std::string report;
  const auto add = [&](const char* name, const std::string& value) {
    report += fmt::format("  {:<14}{}\n", name, value);
  };
  if (statistics.kind == MarkKind::kStrokes) {
    add("marked length", fmt::format("{:.6g} mm", statistics.markedLength));
  }
  add("travel length", fmt::format("{:.6g} mm", statistics.travelLength));
  const std::string marking = statistics.kind == MarkKind::kPoints
                                  ? fmt::format("{:g} ms at each point", speeds.dwell)
                                  : fmt::format("marking {:g} mm/s", speeds.mark);
  add("time",
      fmt::format("{:.4g} s ({}, jumping {:g} mm/s)", statistics.seconds, marking, speeds.jump));
  add("bounding box", fmt::format("{:.6g} {:.6g} to {:.6g} {:.6g}", statistics.left,
                                  statistics.bottom, statistics.right, statistics.top));
  return report;
}

}  // namespace preview
