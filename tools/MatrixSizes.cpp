#include "MatrixSizes.h"

namespace preview {

namespace {

// clang-format off
constexpr MatrixSize kSizes[] = {
    // squares, then rectangles, each by capacity
    { 10,  10,    3}, { 12,  12,    5}, { 14,  14,    8}, { 16,  16,   12}, { 18,  18,   18},
    { 20,  20,   22}, { 22,  22,   30}, { 24,  24,   36}, { 26,  26,   44}, { 32,  32,   62},
    { 36,  36,   86}, { 40,  40,  114}, { 44,  44,  144}, { 48,  48,  174}, { 52,  52,  204},
    { 64,  64,  280}, { 72,  72,  368}, { 80,  80,  456}, { 88,  88,  576}, { 96,  96,  696},
    {104, 104,  816}, {120, 120, 1050}, {132, 132, 1304}, {144, 144, 1558},
    {  8,  18,    5}, {  8,  32,   10}, { 12,  26,   16}, { 12,  36,   22}, { 16,  36,   32},
    { 16,  48,   49},
};
// clang-format on
constexpr int kMostRectangularCodewords = 49;

enum class Shape { kSquare, kRectangle };

constexpr Shape ShapeOf(int rows, int columns) {
  return rows == columns ? Shape::kSquare : Shape::kRectangle;
}

std::optional<MatrixSize> Smallest(int codewords, Shape shape) {
  for (const MatrixSize& size : kSizes) {
    if (ShapeOf(size.rows, size.columns) == shape && size.dataCodewords >= codewords) return size;
  }
  return std::nullopt;
}

}  // namespace

std::optional<MatrixSize> MatrixSizeOf(int rows, int columns) {
  for (const MatrixSize& size : kSizes) {
    if (size.rows == rows && size.columns == columns) return size;
  }
  return std::nullopt;
}

int NextSquareCapacity(int codewords) {
  const std::optional<MatrixSize> size = Smallest(codewords + 1, Shape::kSquare);
  return size ? size->dataCodewords : 0;
}

std::optional<MatrixSize> ChooseMatrixSize(int codewords, const MatrixRequest& request) {
  Shape shape = ShapeOf(request.rows, request.columns);
  if (codewords > kMostRectangularCodewords && shape == Shape::kRectangle) {
    if (!request.expand) return std::nullopt;
    shape = Shape::kSquare;
  }
  const std::optional<MatrixSize> smallest = Smallest(codewords, shape);
  if (!smallest) return std::nullopt;
  const bool fits = smallest->rows <= request.rows && smallest->columns <= request.columns;
  if (!request.expand && !fits) return std::nullopt;
  if (request.rows <= smallest->rows && request.columns <= smallest->columns) return smallest;

  const std::optional<MatrixSize> requested = MatrixSizeOf(request.rows, request.columns);
  const bool holds = requested && requested->dataCodewords >= codewords;
  return holds ? requested : std::nullopt;
}

}  // namespace preview
