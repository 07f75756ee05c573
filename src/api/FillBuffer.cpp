#include "api/FillBuffer.h"

#include "api/Ownership.h"

namespace barhatch {

namespace {

constexpr std::int32_t kLineSegments = 0;
constexpr std::int32_t kPoints = 2;

}  // namespace

FillBufferInfo* MakeFillBuffer(CoordinateList& coordinates, FillingShape shape) {
  if (coordinates.HasFailed() || coordinates.Count() == 0) return nullptr;
  FillBufferInfo* fill = NewFillBuffer();
  if (fill == nullptr) return nullptr;
  fill->FillingShapeType = shape == FillingShape::kPoints ? kPoints : kLineSegments;
  fill->BufferLength = static_cast<std::int32_t>(coordinates.Count());
  fill->FilledArray = coordinates.Release();
  return fill;
}

}  // namespace barhatch
