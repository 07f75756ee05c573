#include "Messages.h"

#include <fmt/core.h>

#include <cerrno>
#include <cstdio>
#include <system_error>

namespace preview {

namespace {

bool BeginsCharacter(char c) { return (c & 0xC0) != 0x80; }

}  // namespace

// By fputs, as fmt::print throws where nothing can be written.
void Print(const std::string& text) { std::fputs(text.c_str(), stdout); }

void PrintError(const std::string& text) {
  std::fputs(("barhatch: " + text + '\n').c_str(), stderr);
}

std::string SystemFailure(const std::string& whatFailed) {
  if (errno == 0) return whatFailed;
  return whatFailed + ": " + std::generic_category().message(errno);
}

std::string Quoted(const std::string& text, std::size_t most) {
  std::string quoted = "\"";
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (i >= most && BeginsCharacter(text[i])) {
      quoted += "\u2026";
      break;
    }
    const auto byte = static_cast<unsigned char>(text[i]);
    if (byte < 32 || byte == 127) {
      quoted += fmt::format("\\x{:02X}", byte);
    } else {
      quoted += text[i];
    }
  }
  return quoted + '"';
}

}  // namespace preview
