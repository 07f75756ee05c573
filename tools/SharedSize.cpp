#include "SharedSize.h"

#include <fmt/core.h>

#include "Messages.h"

namespace preview {

namespace {

void TakeSize(Request& request, const Result& result) {
  request.job.rows = result.rows();
  request.job.columns = result.columns();
}

}  // namespace

std::string TakeSizeOfMask(Request& request, const std::string& mask) {
  Request masked = request;
  masked.text = mask;
  masked.job.flags |= BARHATCH_MASK;
  const Result result = ValidationOf(masked);
  if (!result) return fmt::format("no size holds the mask {}: {}", Quoted(mask), result.message());
  TakeSize(request, result);
  return "";
}

void TakeLargestSize(Request& request, const std::vector<std::string>& texts) {
  Request one = request;
  std::int32_t capacity = 0;
  for (const std::string& text : texts) {
    one.text = TextFrom(request, text).value_or("");
    const Result result = ValidationOf(one);
    if (!result || result.capacity() <= capacity) continue;
    capacity = result.capacity();
    TakeSize(request, result);
  }
}

}  // namespace preview
