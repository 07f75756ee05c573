#include "Code128Outline.h"

namespace preview {

namespace {

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

std::size_t DigitRun(std::string_view text) {
  std::size_t run = 0;
  while (run < text.size() && IsDigit(text[run])) ++run;
  return run;
}

bool IsLoneInSetA(char c) { return c < 96 || c == 127; }

class Code128Walk {
 public:
  explicit Code128Walk(std::string_view text) : text_(text) {}

  // Digits in pairs where four stand together (or two are the whole rest), else set B.
  Code128Outline ByDigitRuns() {
    const std::size_t first = DigitRun(text_);
    bool inSetC = first >= 4 || (first == 2 && text_.size() == 2);
    while (GoesOn()) {
      if (inSetC && DigitRun(Rest()) >= 2) {
        Write(2);
        if (Rest().size() > 1 && !IsDigit(Rest()[0])) inSetC = SwitchToB();
      } else if (inSetC && Rest().size() == 1) {
        outline_.isLastLoneInSetC = true;
        Write(1);
      } else {
        if (inSetC) Switch();
        Write(1);
        const std::size_t run = DigitRun(Rest());
        const bool isWorthIt = run >= 4 ? run % 2 == 0 : run == 2 && Rest().size() == 2;
        if (isWorthIt) Switch();
        inSetC = isWorthIt;
      }
    }
    return outline_;
  }

  Code128Outline FromSetA() {
    bool inSetA = IsLoneInSetA(text_[0]);
    while (GoesOn()) {
      if (inSetA && Rest()[0] == 127) outline_.hasDeleteInSetA = true;
      Write(1);
      if (!inSetA || Rest().empty() || IsLoneInSetA(Rest()[0])) continue;
      Switch();
      inSetA = false;
    }
    return outline_;
  }

  Code128Outline InSetB() {
    while (GoesOn()) Write(1);
    return outline_;
  }

  Code128Outline FromSetC() {
    bool inSetC = DigitRun(text_) >= 2;
    while (GoesOn()) {
      const bool isPair = inSetC && DigitRun(Rest()) >= 2;
      if (inSetC && !isPair) inSetC = SwitchToB();
      Write(isPair ? 2 : 1);
    }
    return outline_;
  }

 private:
  std::string_view Rest() const { return text_.substr(outline_.taken); }
  bool GoesOn() const { return !Rest().empty() && outline_.values < kFullCode128Symbol; }

  void Write(std::size_t characters) {
    outline_.taken += characters;
    ++outline_.values;
    outline_.endsWithSwitch = false;
  }

  void Switch() {
    ++outline_.values;
    outline_.endsWithSwitch = true;
  }

  bool SwitchToB() {
    Switch();
    return false;
  }

  std::string_view text_;
  Code128Outline outline_;
};

}  // namespace

Code128Outline Code128OutlineOf(std::int32_t type, std::string_view text) {
  Code128Walk walk(text);
  if (type == 5) return walk.ByDigitRuns();
  if (type == 6) return walk.FromSetA();
  return type == 7 ? walk.InSetB() : walk.FromSetC();
}

}  // namespace preview
