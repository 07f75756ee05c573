#include "Messages.h"

#include <fmt/core.h>

#include <cstdio>

namespace preview {

namespace {

bool BeginsCharacter(char c) { return (c & 0xC0) != 0x80; }

}  // namespace

void PrintError(const std::string& text) { fmt::print(stderr, "barhatch: {}\n", text); }

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
