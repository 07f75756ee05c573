// What the user asked for, and the library's answer to it: a job of the mark interface goes in, a
// result comes out.
#ifndef BARHATCH_TOOLS_REQUEST_H
#define BARHATCH_TOOLS_REQUEST_H

#include <cstdint>
#include <optional>
#include <string>

#include "barhatch.hpp"

namespace preview {

// Of the command line without options; lengths in millimetres.
BarhatchJob UsualJob();

struct Request {
  BarhatchJob job = UsualJob();  // without text, conformance and quiet zone, which JobOf fills in
  bool device = false;           // as the device writes it, and not by the book
  std::string text;              // as the input of the job has it
};

using barhatch::Result;

// A mark or a refusal.
Result ResultOf(const Request& request);

// The same without the mark: status, size of a Data Matrix, codewords.
Result ValidationOf(const Request& request);

// The library's text for one that was given: with --bytes and --codewords the bytes that its
// hexadecimal digits are; nothing where it has others.
std::optional<std::string> TextFrom(const Request& request, const std::string& given);

// Of a text of which there is nothing.
std::string WhyNoBytes(const std::string& given);

// What the library says of a symbology before there is a text: its name and what it accepts.
Result AnswerOf(std::int32_t symbology, std::int32_t conformance);

// True where this version makes such marks.
bool IsWritten(std::int32_t symbology, std::int32_t conformance);

bool IsMatrix(const Request& request);

// The quiet zone is a part of the size.
bool HasQuietZoneInside(const Request& request);

std::int32_t ConformanceOf(const Request& request);

// "by the book" or "as the device writes it".
const char* ConformanceName(const Request& request);

}  // namespace preview

#endif
