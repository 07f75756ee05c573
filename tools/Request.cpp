#include "Request.h"

namespace preview {

namespace {

constexpr int kFnc1Format = 1;
constexpr int kMacro05Format = 2;
constexpr int kMacro06Format = 3;

std::uint32_t FlagsOf(const Request& request) {
  std::uint32_t flags = 0;
  if (request.quietZone) flags |= BARHATCH_QUIET_INSIDE;
  if (request.permit) flags |= BARHATCH_PERMIT;
  if (request.expand) flags |= BARHATCH_MAY_GROW;
  if (request.format == kFnc1Format) flags |= BARHATCH_FNC1_SECOND;
  return flags;
}

std::int32_t EnvelopeOf(const Request& request) {
  if (request.format == kMacro05Format) return 5;
  return request.format == kMacro06Format ? 6 : 0;
}

BarhatchJob JobOf(const Request& request) {
  BarhatchJob job = {};
  job.size = sizeof job;
  job.symbology = request.symbology;
  job.conformance = ConformanceOf(request);
  job.text = request.text.data();
  job.length = request.text.size();
  job.envelope = EnvelopeOf(request);
  job.rows = request.rows;
  job.columns = request.columns;
  job.flags = FlagsOf(request);
  job.pattern = request.pattern;
  job.invert = request.invert ? 1 : 0;
  job.width = IsMatrix(request) ? 0.0 : request.width;
  job.height = request.height;
  job.ratio = request.ratio;
  // A quiet zone of the part's own surface is always there; around light marks it is marked as
  // well.
  job.quiet = request.invert && !request.quietZone ? -1.0 : 0.0;
  job.gap = request.gap;
  return job;
}
}  // namespace

Result ResultOf(const Request& request) { return Result(JobOf(request)); }

Result AnswerOf(std::int32_t symbology, std::int32_t conformance) {
  BarhatchJob job = {};
  job.size = sizeof job;
  job.symbology = symbology;
  job.conformance = conformance;
  job.want = BARHATCH_WANT_VALIDATION;
  return Result(job);
}

bool IsWritten(std::int32_t symbology, std::int32_t conformance) {
  return AnswerOf(symbology, conformance).status() != barhatch::Status::kBadOption;
}

bool IsMatrix(const Request& request) { return request.symbology == BARHATCH_DATA_MATRIX; }

std::int32_t ConformanceOf(const Request& request) {
  const bool isByTheBook = !request.device && IsWritten(request.symbology, BARHATCH_PUBLISHED);
  return isByTheBook ? BARHATCH_PUBLISHED : BARHATCH_DEVICE;
}

const char* ConformanceName(const Request& request) {
  return ConformanceOf(request) == BARHATCH_DEVICE ? "as the device writes it" : "by the book";
}

}  // namespace preview
