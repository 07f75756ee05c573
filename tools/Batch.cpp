#include "Batch.h"

#include <fmt/core.h>

#include <algorithm>
#include <cerrno>
#include <fstream>
#include <iostream>
#include <limits>
#include <map>

#include "Explanation.h"
#include "Messages.h"
#include "Outputs.h"
#include "Progress.h"
#include "SharedSize.h"
#include "Symbol.h"

namespace preview {

namespace {

constexpr const char* kByteOrderMark = "\xEF\xBB\xBF";
constexpr std::size_t kLongestNamePart = 60;

std::string NamePart(const std::string& text) {
  std::string part = text.substr(0, kLongestNamePart);
  for (char& c : part) {
    const bool isKept = (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
    if (!isKept && c != '-' && c != '.' && c != '_') c = '_';
  }
  return part;
}

void ReplaceAll(std::string& text, const std::string& what, const std::string& by) {
  for (std::size_t at = text.find(what); at != std::string::npos;
       at = text.find(what, at + by.size())) {
    text.replace(at, what.size(), by);
  }
}

std::vector<std::string> TextsOf(const std::vector<BatchLine>& lines) {
  std::vector<std::string> texts;
  texts.reserve(lines.size());
  for (const BatchLine& line : lines) texts.push_back(line.text);
  return texts;
}

class BatchRun {
 public:
  BatchRun(const Options& options, const std::vector<BatchLine>& lines)
      : options_(options), request_(options.request), progress_(lines.size()) {
    if (options.sameSize) TakeLargestSize(request_, TextsOf(lines));
  }

  int Run(const std::vector<BatchLine>& lines) {
    for (std::size_t i = 0; i < lines.size(); ++i) {
      progress_.Show(i);
      RunLine(lines[i]);
    }
    progress_.Clear();
    if (options_.sheet) WriteSheet();
    TellUnlessQuiet(fmt::format("{} text{}: {} marked, {} refused\n", lines.size(),
                                lines.size() == 1 ? "" : "s", marked_, lines.size() - marked_));
    return code_;
  }

 private:
  void Fail(const BatchLine& line, int code, const std::string& text) {
    progress_.Clear();
    PrintError(fmt::format("line {}: {}", line.number, text));
    // A refusal outweighs a symbol that is not read.
    code_ = code_ == kRefused ? kRefused : code;
  }

  void Tell(const std::string& text) {
    progress_.Clear();
    Print(text);
  }

  void TellUnlessQuiet(const std::string& text) {
    if (!options_.quiet) Tell(text);
  }

  void RunLine(const BatchLine& line) {
    const std::optional<std::string> text = TextFrom(request_, line.text);
    if (!text) return Fail(line, kRefused, WhyNoBytes(line.text));
    request_.text = *text;
    Symbol symbol = MakeSymbol(request_);
    if (options_.explain) Tell(fmt::format("{}: {}", line.number, ExplanationText(symbol)));
    if (const std::optional<Failure> failure = FailureOf(symbol)) {
      return Fail(line, failure->code, failure->sentence);
    }
    ++marked_;
    if (!options_.explain) {
      TellUnlessQuiet(fmt::format("{}: {}\n", line.number, Headline(symbol)));
    }
    if (options_.verify) VerifyLine(line, symbol);
    if (options_.sheet) {
      widest_ = std::max(widest_, symbol.drawing.width);
      smallestModule_ = std::min(smallestModule_, symbol.result.xDimension());
      drawings_.push_back(std::move(symbol.drawing));
    } else {
      WriteLine(line, symbol);
    }
  }

  void VerifyLine(const BatchLine& line, const Symbol& symbol) {
    const Verdict verdict = Verify(symbol, options_);
    if (!verdict.isRead) return Fail(line, kReadsOtherwise, verdict.sentence);
    Tell(fmt::format("{}: {}\n", line.number, verdict.sentence));
  }

  void WriteLine(const BatchLine& line, const Symbol& symbol) {
    for (const std::string& pattern : options_.outputs) {
      const std::string path = PathOf(pattern, line);
      const Look look = LookOf(options_, symbol.drawing.width, symbol.result.xDimension());
      const auto [other, isNew] = written_.emplace(path, line.number);
      const std::string reason =
          isNew ? WriteOutput(path, symbol.drawing, look, options_)
                : fmt::format("{} is the file of line {} already", path, other->second);
      if (!reason.empty()) Fail(line, kRefused, reason);
    }
  }

  void WriteSheet() {
    if (drawings_.empty()) return PrintError("no symbol for the sheet");
    const Drawing sheet = SheetOf(drawings_, options_.columns);
    for (const std::string& path : options_.outputs) {
      const Look look = LookOf(options_, widest_, smallestModule_);
      const std::string reason = WriteOutput(path, sheet, look, options_);
      if (reason.empty()) continue;
      PrintError(reason);
      code_ = kRefused;
    }
    TellUnlessQuiet(Report(StatisticsOf(sheet, options_.speeds), options_.speeds));
  }

  const Options& options_;
  Request request_;
  Progress progress_;
  std::size_t marked_ = 0;
  int code_ = kDone;
  double widest_ = 0.0;
  double smallestModule_ = std::numeric_limits<double>::infinity();
  std::vector<Drawing> drawings_;
  std::map<std::string, std::size_t> written_;  // the line of each file
};

}  // namespace

std::vector<BatchLine> ReadBatch(std::istream& in) {
  std::vector<BatchLine> lines;
  std::string text;
  for (std::size_t number = 1; std::getline(in, text); ++number) {
    if (number == 1 && text.compare(0, 3, kByteOrderMark) == 0) text.erase(0, 3);
    if (!text.empty() && text.back() == '\r') text.pop_back();
    if (!text.empty()) lines.push_back({number, text});
  }
  return lines;
}

std::string PathOf(const std::string& pattern, const BatchLine& line) {
  std::string path = pattern;
  ReplaceAll(path, "{n}", fmt::format("{:03}", line.number));
  ReplaceAll(path, "{text}", NamePart(line.text));
  return path;
}

int RunBatch(const Options& options) {
  std::vector<BatchLine> lines;
  if (options.batch == "-") {
    lines = ReadBatch(std::cin);
  } else {
    errno = 0;
    std::ifstream file(options.batch, std::ios::binary);
    if (file) lines = ReadBatch(file);
    if (!file.eof()) {
      PrintError(SystemFailure("cannot read " + options.batch));
      return kRefused;
    }
  }
  if (lines.empty()) {
    PrintError("the batch has no texts");
    return kRefused;
  }
  return BatchRun(options, lines).Run(lines);
}

}  // namespace preview
