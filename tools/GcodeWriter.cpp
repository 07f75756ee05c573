#include "GcodeWriter.h"

#include <fmt/core.h>

namespace preview {

namespace {

constexpr double kSecondsOfAMinute = 60.0;

// Without an exponent, which no controller reads, and without zeros at the end.
std::string Number(double value) {
  std::string digits = fmt::format("{:.6f}", value);
  digits.erase(digits.find_last_not_of('0') + 1);
  if (digits.back() == '.') digits.pop_back();
  return digits == "-0" ? "0" : digits;
}

// A comment ends with its line; what is no printable ASCII stays out of it.
std::string CommentText(const std::string& text) {
  std::string comment;
  for (const char c : text) comment += c >= ' ' && c <= '~' ? c : '?';
  return comment;
}

class Program {
 public:
  Program(const Speeds& speeds, const Laser& laser)
      : on_(fmt::format("{} S{}\n", laser.mode == LaserMode::kConstant ? "M3" : "M4",
                        Number(laser.power))),
        jump_(Number(speeds.jump * kSecondsOfAMinute)),
        feed_(Number(speeds.mark * kSecondsOfAMinute)),
        dwell_(Number(speeds.dwell / 1000.0)) {}

  void Begin(const std::string& title) {
    lines_ += "; barhatch";
    if (!title.empty()) lines_ += ": " + CommentText(title);
    lines_ += "\nG21 ; millimetres\nG90 ; absolute\nM5\n";
  }

  void Jump(double x, double y) {
    SwitchOff();
    lines_ += fmt::format("G0 X{} Y{} F{}\n", Number(x), Number(y), jump_);
  }

  void MarkTo(double x, double y) {
    if (!isOn_) lines_ += on_;
    isOn_ = true;
    lines_ += fmt::format("G1 X{} Y{} F{}\n", Number(x), Number(y), feed_);
  }

  void MarkHere() {
    lines_ += on_ + fmt::format("G4 P{}\n", dwell_);
    isOn_ = true;
  }

  std::string End() {
    SwitchOff();
    return lines_ + "G0 X0 Y0 F" + jump_ + "\nM2\n";
  }

 private:
  void SwitchOff() {
    if (isOn_) lines_ += "M5\n";
    isOn_ = false;
  }

  std::string on_, jump_, feed_, dwell_;
  std::string lines_;
  bool isOn_ = false;
};

}  // namespace

std::string GcodeOf(const Drawing& drawing, const Speeds& speeds, const Laser& laser) {
  Program program(speeds, laser);
  program.Begin(drawing.title);
  const Stroke* previous = nullptr;
  for (const Stroke& mark : drawing.marks) {
    const bool goesOn = previous != nullptr && previous->x1 == mark.x0 && previous->y1 == mark.y0;
    if (!goesOn || drawing.kind == MarkKind::kPoints) program.Jump(mark.x0, mark.y0);
    if (drawing.kind == MarkKind::kPoints) {
      program.MarkHere();
    } else {
      program.MarkTo(mark.x1, mark.y1);
    }
    previous = &mark;
  }
  return program.End();
}

}  // namespace preview
