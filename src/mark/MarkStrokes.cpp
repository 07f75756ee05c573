#include "mark/MarkStrokes.h"

#include <limits>

#include "hatch/StrokeLengths.h"
#include "job/ModuleString.h"
#include "mark/JobRecord.h"

namespace barhatch {

namespace {

constexpr char kOneBar[] = {kNarrowBar, '\0'};

Filling FillingOf(const BarhatchJob& job) {
  return {job.pattern, job.gap, job.invert != 0 ? FilledElements::kLight : FilledElements::kDark};
}

ElementRows RowsOf(const BarhatchJob& job, const MarkedSymbol& symbol, const Extents& extents) {
  const FilledElements filled = FillingOf(job).filled;
  if (IsMatrix(job)) {
    return ElementRows({symbol.letters, symbol.rows, symbol.columns, extents.moduleSize}, filled,
                       symbol.memory);
  }
  return ElementRows(symbol.letters, {extents.moduleSize, extents.wideSize, extents.barHeight},
                     extents.bearer, filled, symbol.memory);
}

}  // namespace

MarkStrokes::MarkStrokes(const BarhatchJob& job, const MarkedSymbol& symbol, const Extents& extents)
    : job_(job),
      extents_(extents),
      filling_(FillingOf(job)),
      rows_(RowsOf(job, symbol, extents)),
      lowerBearer_(BearerAt(0.0, symbol.memory)),
      upperBearer_(BearerAt(extents.bearer + extents.barHeight, symbol.memory)),
      bands_{&lowerBearer_, &rows_, &upperBearer_} {}

ElementRows MarkStrokes::BearerAt(double bottom, const Memory& memory) const {
  const double width = rows_.Right();
  return ElementRows(extents_.bearer != 0.0 ? kOneBar : "", {width, width, extents_.bearer}, bottom,
                     filling_.filled, memory);
}

Refusal MarkStrokes::Count(std::size_t& doubles) {
  DoubleCount most = 0;
  for (ElementRows* const rows : bands_) {
    if (rows->HasFailed()) return {Reason::kNoMemory};
    most = AddCounts(most, MostDoubles(*rows, filling_));
  }
  if (most == kUncountable) return {Reason::kTooManyStrokes};
  doubles = static_cast<std::size_t>(most);
  return {};
}

Refusal MarkStrokes::Write(double* room, std::size_t doubles, BarhatchResult& result) {
  CoordinateList coordinates(room, doubles);
  for (ElementRows* const rows : bands_) Fill(*rows, filling_, coordinates);
  if (coordinates.Count() == 0) return {Reason::kNothingToMark};
  if (extents_.shiftX != 0.0) {
    Translate(room, coordinates.Count(), extents_.shiftX, extents_.shiftY);
  }
  Describe(room, coordinates.Count(), result);
  const bool isFinite = result.seconds <= std::numeric_limits<double>::max();
  return {isFinite ? Reason::kNone : Reason::kGeometry};
}

void MarkStrokes::Describe(const double* strokes, std::size_t doubles,
                           BarhatchResult& result) const {
  const FillingShape shape = ShapeOf(filling_);
  const bool isPoints = shape == FillingShape::kPoints;
  const StrokeLengths lengths = MeasureStrokes(strokes, doubles, shape);
  result.kind = isPoints ? BARHATCH_DOTS : BARHATCH_SEGMENTS;
  result.strokes = strokes;
  result.strokes_count =
      doubles / static_cast<std::size_t>(isPoints ? kDoublesPerPoint : kDoublesPerSegment);
  result.mark_length = lengths.mark;
  result.jump_length = lengths.jump;
  if (job_.mark_speed == 0.0 || job_.jump_speed == 0.0) return;
  result.seconds = lengths.mark / job_.mark_speed + lengths.jump / job_.jump_speed +
                   static_cast<double>(result.strokes_count) * job_.stroke_delay +
                   static_cast<double>(lengths.jumps) * job_.jump_delay;
}

}  // namespace barhatch
