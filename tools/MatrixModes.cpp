#include "MatrixModes.h"

#include <algorithm>
#include <cmath>

namespace preview {

namespace {

bool IsDigit(char c) { return c >= '0' && c <= '9'; }
bool IsUpper(char c) { return c >= 'A' && c <= 'Z'; }
bool IsLower(char c) { return c >= 'a' && c <= 'z'; }
bool IsX12Sign(char c) { return c == '\r' || c == '*' || c == '>'; }
bool IsEdifact(char c) { return c >= ' ' && c <= '^'; }

class Counts {
 public:
  explicit Counts(MatrixMode current) {
    const double change = current == MatrixMode::kAscii ? 1.0 : 2.0;
    for (double& count : counts_) count = change;
    Of(current) = 0.0;
  }

  void Add(char c) {
    AddAscii(c);
    Of(MatrixMode::kBase256) += 1.0;
    Of(MatrixMode::kEdifact) += IsEdifact(c) ? 0.75 : 3.25;
    const bool isCommon = IsDigit(c) || c == ' ';
    Of(MatrixMode::kText) += isCommon || IsLower(c) ? 2.0 / 3.0 : 4.0 / 3.0;
    Of(MatrixMode::kC40) += isCommon || IsUpper(c) ? 2.0 / 3.0 : 4.0 / 3.0;
    Of(MatrixMode::kX12) += isCommon || IsUpper(c) || IsX12Sign(c) ? 2.0 / 3.0 : 10.0 / 3.0;
  }

  MatrixMode Best() {
    for (double& count : counts_) count = std::ceil(count);
    const double least = *std::min_element(std::begin(counts_), std::end(counts_));
    if (Of(MatrixMode::kAscii) == least) return MatrixMode::kAscii;
    if (std::count(std::begin(counts_), std::end(counts_), least) > 1) return MatrixMode::kC40;
    return static_cast<MatrixMode>(std::find(std::begin(counts_), std::end(counts_), least) -
                                   std::begin(counts_));
  }

 private:
  double& Of(MatrixMode mode) { return counts_[static_cast<int>(mode)]; }

  void AddAscii(char c) {
    double& count = Of(MatrixMode::kAscii);
    if (IsDigit(c)) {
      count += 0.5;
    } else if (IsEdifact(c) || IsLower(c) || c == '\r') {
      count = std::ceil(count) + 1.0;
    } else {
      count = std::floor(count) + 1.0;
    }
  }

  double counts_[6] = {};
};

}  // namespace

MatrixMode LookAhead(const std::string& bytes, std::size_t position, MatrixMode current) {
  Counts counts(current);
  for (std::size_t i = position; i < bytes.size(); ++i) counts.Add(bytes[i]);
  return counts.Best();
}

std::size_t ValueCount(MatrixMode mode, char byte) {
  const bool isCommon = IsDigit(byte) || byte == ' ';
  if (mode == MatrixMode::kX12) return isCommon || IsUpper(byte) || IsX12Sign(byte) ? 1 : 0;
  const unsigned value = static_cast<unsigned char>(byte);
  if (value >= 128) return 2 + ValueCount(mode, static_cast<char>(value - 128));
  return isCommon || (mode == MatrixMode::kC40 ? IsUpper(byte) : IsLower(byte)) ? 1 : 2;
}

}  // namespace preview
