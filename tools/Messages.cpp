#include "Messages.h"

#include <fmt/core.h>

#include <bitset>
#include <cerrno>
#include <cstdio>
#include <system_error>

namespace preview {

namespace {

constexpr const char* kEllipsis = "\u2026";
constexpr std::size_t kMostAround = 60;  // bytes on either side of what is pointed at

bool ContinuesCharacter(char c) { return (c & 0xC0) == 0x80; }

// Bytes of the character that begins there; 1 for a byte that begins none or lacks the others.
std::size_t CharacterBytes(const std::string& text, std::size_t at) {
  const auto first = static_cast<unsigned char>(text[at]);
  const std::size_t bytes = first < 0xC2 ? 1 : first < 0xE0 ? 2 : first < 0xF0 ? 3 : 4;
  for (std::size_t i = at + 1; i < at + bytes; ++i) {
    if (i >= text.size() || !ContinuesCharacter(text[i])) return 1;
  }
  return bytes;
}

// A character as one line shows it.
struct Shown {
  std::string text;
  std::size_t columns;
};

// Moves behind the character.
Shown NextShown(const std::string& text, std::size_t& at) {
  const std::string character = text.substr(at, CharacterBytes(text, at));
  at += character.size();
  const auto first = static_cast<unsigned char>(character[0]);
  const bool isPrinted = character.size() > 1 || (first >= 32 && first < 127);
  if (isPrinted) return {character, 1};
  return {fmt::format("\\x{:02X}", first), 4};
}

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
  for (std::size_t at = 0; at < text.size();) {
    if (at >= most) {
      quoted += kEllipsis;
      break;
    }
    quoted += NextShown(text, at).text;
  }
  return quoted + '"';
}

std::string Pointed(const std::string& text, std::size_t begin, std::size_t extent) {
  std::size_t at = begin > kMostAround ? begin - kMostAround : 0;
  while (at > 0 && at < begin && ContinuesCharacter(text[at])) ++at;
  std::string line = at > 0 ? kEllipsis : "";
  std::string marks(at > 0 ? 1 : 0, ' ');
  while (at < text.size() && at < begin + kMostAround) {
    const std::size_t from = at;
    const Shown shown = NextShown(text, at);
    const bool isMarked = at > begin && from < begin + extent;
    line += shown.text;
    marks.append(shown.columns, isMarked ? '^' : ' ');
  }
  if (at < text.size()) line += kEllipsis;
  if (begin >= text.size()) marks += '^';
  return line + '\n' + marks.substr(0, marks.rfind('^') + 1) + '\n';
}

std::string WarningText(const barhatch::Result& symbol) {
  std::string text(symbol.message());
  const std::size_t count = std::bitset<32>(symbol.warnings().Bits()).count();
  return count > 1 ? fmt::format("{} (and {} more)", text, count - 1) : text;
}

}  // namespace preview
