#include "hatch/LinePatterns.h"

namespace barhatch {

namespace {

// A rectangle as the strokes see it: positions advance across it, each stroke runs along it.
struct StrokeFrame {
  double firstPosition;
  double endPosition;
  double strokeStart;
  double strokeEnd;
};

template <LineDirection direction>
StrokeFrame FrameOf(const HatchRect& rect, double gap) {
  const HatchPoint& low = rect.lowerLeft;
  const HatchPoint& high = rect.upperRight;
  return direction == LineDirection::kHorizontal
             ? StrokeFrame{Snap(low.y, gap), high.y, low.x, high.x}
             : StrokeFrame{Snap(low.x, gap), high.x, low.y, high.y};
}

DoubleCount SegmentDoubles(DoubleCount strokes, DoubleCount times) {
  if (strokes == kUncountable || strokes > kMostDoubles) return kUncountable;
  const DoubleCount segments = strokes * times;
  return segments > kMostDoubles / kDoublesPerSegment ? kUncountable
                                                      : segments * kDoublesPerSegment;
}

template <LineDirection direction>
void AppendStroke(double position, double from, double to, CoordinateList& coordinates) {
  if (direction == LineDirection::kHorizontal) {
    coordinates.AppendSegment(from, position, to, position);
  } else {
    coordinates.AppendSegment(position, from, position, to);
  }
}

}  // namespace

DoubleCount MostScanLineDoubles(const RectList& rects, double gap) {
  if (rects.Count() == 0) return 0;
  const StrokeFrame first = FrameOf<LineDirection::kHorizontal>(rects[0], gap);
  const DoubleCount lines = MostStrokes(first.firstPosition, first.endPosition, gap);
  return SegmentDoubles(lines, static_cast<DoubleCount>(rects.Count()));
}

void FillWithScanLines(const RectList& rects, double gap, CoordinateList& coordinates) {
  if (rects.Count() == 0) return;
  const StrokeFrame first = FrameOf<LineDirection::kHorizontal>(rects[0], gap);
  for (double y = first.firstPosition; y < first.endPosition; y += gap) {
    double* room = coordinates.RoomFor(kDoublesPerSegment * rects.Count());
    if (room == nullptr) return;
    for (const HatchRect& rect : rects) {
      room[0] = rect.lowerLeft.x;
      room[1] = y;
      room[2] = rect.upperRight.x;
      room[3] = y;
      room += kDoublesPerSegment;
    }
  }
}

template <LineDirection direction>
DoubleCount MostLineDoubles(const RectList& rects, double gap) {
  DoubleCount total = 0;
  for (const HatchRect& rect : rects) {
    const StrokeFrame frame = FrameOf<direction>(rect, gap);
    total = AddCounts(total,
                      SegmentDoubles(MostStrokes(frame.firstPosition, frame.endPosition, gap), 1));
  }
  return total;
}

template <LineDirection direction, LineSense sense>
void FillWithLines(const RectList& rects, double gap, CoordinateList& coordinates) {
  bool forward = true;
  for (const HatchRect& rect : rects) {
    const StrokeFrame frame = FrameOf<direction>(rect, gap);
    for (double position = frame.firstPosition; position < frame.endPosition; position += gap) {
      if (forward) {
        AppendStroke<direction>(position, frame.strokeStart, frame.strokeEnd, coordinates);
      } else {
        AppendStroke<direction>(position, frame.strokeEnd, frame.strokeStart, coordinates);
      }
      if (sense == LineSense::kAlternating) forward = !forward;
    }
  }
}

template DoubleCount MostLineDoubles<LineDirection::kHorizontal>(const RectList&, double);
template DoubleCount MostLineDoubles<LineDirection::kVertical>(const RectList&, double);
template void FillWithLines<LineDirection::kVertical, LineSense::kSame>(const RectList&, double,
                                                                        CoordinateList&);
template void FillWithLines<LineDirection::kHorizontal, LineSense::kAlternating>(const RectList&,
                                                                                 double,
                                                                                 CoordinateList&);
template void FillWithLines<LineDirection::kVertical, LineSense::kAlternating>(const RectList&,
                                                                               double,
                                                                               CoordinateList&);

DoubleCount CentreDoubles(std::size_t rects) {
  const DoubleCount count = static_cast<DoubleCount>(rects);
  return count > kMostDoubles / kDoublesPerPoint ? kUncountable : count * kDoublesPerPoint;
}

void FillWithCentres(const RectList& rects, double /*gap*/, CoordinateList& coordinates) {
  double* room = coordinates.RoomFor(kDoublesPerPoint * rects.Count());
  if (room == nullptr) return;
  for (const HatchRect& rect : rects) {
    room[0] = (rect.upperRight.x + rect.lowerLeft.x) * 0.5;
    room[1] = (rect.upperRight.y + rect.lowerLeft.y) * 0.5;
    room += kDoublesPerPoint;
  }
}

}  // namespace barhatch
