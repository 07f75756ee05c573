#include "Request.h"

#include "Messages.h"

namespace preview {

namespace {

// REQUIRES: the text stays as long as the job.
BarhatchJob JobOf(const Request& request) {
  BarhatchJob job = request.job;
  job.conformance = ConformanceOf(request);
  job.text = request.text.data();
  job.length = request.text.size();
  if (IsMatrix(request)) job.width = 0.0;
  // A quiet zone of the part's own surface is always there; around light marks it is marked as
  // well.
  job.quiet = job.invert != 0 && !HasQuietZoneInside(request) ? -1.0 : 0.0;
  return job;
}

// -1 for what is no hexadecimal digit.
int DigitOf(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  return c >= 'a' && c <= 'f' ? c - 'a' + 10 : -1;
}

}  // namespace

BarhatchJob UsualJob() {
  BarhatchJob job = {};
  job.size = sizeof job;
  job.symbology = BARHATCH_CODE_39;
  job.width = 60.0;
  job.height = 12.0;
  job.gap = 0.1;
  return job;
}

Result ResultOf(const Request& request) { return Result(JobOf(request)); }

Result ValidationOf(const Request& request) {
  BarhatchJob job = JobOf(request);
  job.want = BARHATCH_WANT_VALIDATION;
  return Result(job);
}

std::optional<std::string> TextFrom(const Request& request, const std::string& given) {
  const std::int32_t input = request.job.input;
  if (input != BARHATCH_BYTES && input != BARHATCH_CODEWORDS) return given;
  if (given.size() % 2 != 0) return std::nullopt;
  std::string bytes;
  for (std::size_t i = 0; i < given.size(); i += 2) {
    const int high = DigitOf(given[i]);
    const int low = DigitOf(given[i + 1]);
    if (high < 0 || low < 0) return std::nullopt;
    bytes += static_cast<char>(high * 16 + low);
  }
  return bytes;
}

std::string WhyNoBytes(const std::string& given) {
  return Quoted(given) + " is not bytes in hexadecimal, such as 00E4FF";
}

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

bool IsMatrix(const Request& request) { return request.job.symbology == BARHATCH_DATA_MATRIX; }

bool HasQuietZoneInside(const Request& request) {
  return (request.job.flags & BARHATCH_QUIET_INSIDE) != 0;
}

std::int32_t ConformanceOf(const Request& request) {
  return request.device ? BARHATCH_DEVICE : BARHATCH_PUBLISHED;
}

const char* ConformanceName(const Request& request) {
  return request.device ? "as the device writes it" : "by the book";
}

}  // namespace preview
