#include "hatch/FillBuffer.h"

#include <new>

namespace barhatch {

namespace {

constexpr std::int32_t kLineSegments = 0;
constexpr std::int32_t kPoints = 2;
constexpr std::int32_t kHatchingTypeOfPoints = 6;

}  // namespace

FillBufferInfo* MakeFillBuffer(CoordinateList& coordinates, std::int32_t hatchingType) {
  if (coordinates.HasFailed() || coordinates.Count() == 0) return nullptr;
  FillBufferInfo* fill = new (std::nothrow) FillBufferInfo{};
  if (fill == nullptr) return nullptr;
  fill->FillingShapeType = hatchingType == kHatchingTypeOfPoints ? kPoints : kLineSegments;
  fill->BufferLength = static_cast<std::int32_t>(coordinates.Count());
  fill->FilledArray = coordinates.Release();
  return fill;
}

}  // namespace barhatch
