#include "JobOptions.h"

#include <fmt/core.h>
#include <fmt/format.h>

#include <CLI/CLI.hpp>

namespace preview {

namespace {

struct Value {
  const char* name;
  std::int32_t number;
};
using Values = std::initializer_list<Value>;

constexpr Values kChecks = {
    {"own", BARHATCH_CHECK_OWN},       {"none", BARHATCH_CHECK_NONE},
    {"verify", BARHATCH_CHECK_VERIFY}, {"mod43", BARHATCH_CHECK_MOD_43},
    {"mod16", BARHATCH_CHECK_MOD_16},  {"itf", BARHATCH_CHECK_ITF_10},
    {"msi10", BARHATCH_MSI_10},        {"msi10+10", BARHATCH_MSI_10_10},
    {"msi11", BARHATCH_MSI_11},        {"msi11+10", BARHATCH_MSI_11_10},
    {"ncr11", BARHATCH_MSI_NCR_11},    {"ncr11+10", BARHATCH_MSI_NCR_11_10},
    {"c", BARHATCH_CODE_11_C},         {"ck", BARHATCH_CODE_11_CK},
};
constexpr Values kShapes = {
    {"square", BARHATCH_SQUARE},
    {"rectangle", BARHATCH_RECTANGLE},
    {"any", BARHATCH_ANY_SHAPE},
    {"dmre", BARHATCH_DMRE},
    {"dmre-rectangle", BARHATCH_DMRE_RECTANGLE},
};
constexpr Values kEnvelopes = {
    {"5", BARHATCH_ENVELOPE_05},
    {"6", BARHATCH_ENVELOPE_06},
    {"12", BARHATCH_ENVELOPE_12},
    {"dd", BARHATCH_ENVELOPE_DD},
};
constexpr std::int32_t kFnc1Format = 1;

struct Choice {
  const char* option;
  std::int32_t BarhatchJob::*field;
  Values values;
  const char* description;
};
const Choice kChoices[] = {
    {"--check", &BarhatchJob::check, kChecks, "check characters"},
    {"--shape", &BarhatchJob::shape, kShapes, "shape of a Data Matrix"},
    {"--envelope", &BarhatchJob::envelope, kEnvelopes,
     "message format of ISO/IEC 15434 around a Data Matrix"},
};

struct Number {
  const char* option;
  std::int32_t BarhatchJob::*field;
  const char* description;
};
constexpr Number kNumbers[] = {
    {"--addon-gap", &BarhatchJob::addon_gap, "modules in front of the add-on of EAN and UPC"},
    {"--part-id", &BarhatchJob::part_id, "number of the message of a --part"},
    {"--eci", &BarhatchJob::eci, "ECI in front of the text of a Data Matrix"},
};

struct Flag {
  const char* option;
  std::uint32_t bit;
  const char* description;
};
constexpr Flag kFlags[] = {
    {"-q,--quiet-zone", BARHATCH_QUIET_INSIDE, "the quiet zones are a part of the size"},
    {"--permit", BARHATCH_PERMIT, "write what readers know and the standard leaves out"},
    {"--start-stop", BARHATCH_ADD_START_STOP, "add start and stop to a Codabar that has none"},
    {"--bearer-bars", BARHATCH_BEARER_BARS,
     "bearer bars below and above an Interleaved 2 of 5 or ITF-14"},
    {"--expand", BARHATCH_MAY_GROW, "the Data Matrix may grow beyond --size"},
    {"--fnc1-second", BARHATCH_FNC1_SECOND, "FNC1 in second position of a Data Matrix"},
    {"--gs-separators", BARHATCH_GS_SEPARATORS, "separators of a Data Matrix are GS and not FNC1"},
    {"--reader-programming", BARHATCH_READER_PROGRAMMING,
     "a Data Matrix for the reader's settings"},
    {"--loose-end", BARHATCH_LOOSE_END, "the looser end of a Data Matrix, which readers take"},
    {"--industry-144", BARHATCH_INDUSTRY_144, "144x144 in the industry's order"},
    {"--no-proof", BARHATCH_NO_PROOF, "do not decode the finished symbol again"},
};

struct Input {
  const char* option;
  std::int32_t input;
  const char* description;
};
constexpr Input kInputs[] = {
    {"--gs1", BARHATCH_GS1, "the text is GS1 element strings: (01)09501101530003(10)ABC"},
    {"--escapes", BARHATCH_ESCAPED, "the text has escapes: ^029 ^FNC1 ^ECI000026 ^^"},
    {"--bytes", BARHATCH_BYTES, "the text is bytes in hexadecimal"},
    {"--codewords", BARHATCH_CODEWORDS, "the text is codewords of a Data Matrix in hexadecimal"},
};

std::string NamesOf(const Values& values) {
  std::string names;
  for (const Value& value : values) names += (names.empty() ? "" : ", ") + std::string(value.name);
  return names;
}

const Value* ValueOf(const Values& values, const std::string& name) {
  for (const Value& value : values) {
    if (name == value.name) return &value;
  }
  return nullptr;
}

void SetValue(BarhatchJob& job, const Choice& choice, const std::string& name) {
  const Value* const value = ValueOf(choice.values, name);
  if (value == nullptr) {
    const std::string names = NamesOf(choice.values);
    throw CLI::ValidationError(choice.option, fmt::format("\"{}\" is none of {}", name, names));
  }
  job.*choice.field = value->number;
}

// "1/3": the first of three.
void SetPart(BarhatchJob& job, const std::string& text) {
  const std::size_t slash = text.find('/');
  if (slash == std::string::npos || !CLI::detail::lexical_cast(text.substr(0, slash), job.part) ||
      !CLI::detail::lexical_cast(text.substr(slash + 1), job.parts)) {
    throw CLI::ValidationError("--part", fmt::format("\"{}\" is no part such as 1/3", text));
  }
}

}  // namespace

void SetFormat(BarhatchJob& job, std::int32_t format) {
  if (format == kFnc1Format) job.flags |= BARHATCH_FNC1_SECOND;
  if (format > kFnc1Format) job.envelope = format + 3;
}

void DescribeJobOptions(CLI::App& app, BarhatchJob& job) {
  for (const Flag& row : kFlags) {
    app.add_flag_callback(
        row.option, [&job, &row] { job.flags |= row.bit; }, row.description);
  }
  for (const Input& row : kInputs) {
    CLI::Option* const option = app.add_flag_callback(
        row.option, [&job, &row] { job.input = row.input; }, row.description);
    for (const Input* other = kInputs; other != &row; ++other) {
      option->excludes(app.get_option(other->option));
    }
  }
  for (const Choice& row : kChoices) {
    app.add_option_function<std::string>(
        row.option, [&job, &row](const std::string& name) { SetValue(job, row, name); },
        fmt::format("{}: {}", row.description, NamesOf(row.values)));
  }
  for (const Number& row : kNumbers) app.add_option(row.option, job.*row.field, row.description);
  app.add_option_function<std::string>(
      "--part", [&job](const std::string& text) { SetPart(job, text); },
      "the Data Matrix is a part of a message, such as 1/3");
  app.add_option_function<std::int32_t>(
         "--format", [&job](std::int32_t format) { SetFormat(job, format); },
         "code format of the device: 1 FNC1 second, 2 and 3 macro headers")
      ->check(CLI::Range(0, 3));
}

std::string CheckNames() { return NamesOf(kChecks); }

void SetCheck(BarhatchJob& job, const std::string& name) {
  job.check = ValueOf(kChecks, name)->number;
}

std::string ChecksOf(std::int32_t symbology) {
  std::string names;
  for (const Value& check : kChecks) {
    BarhatchJob job = {};
    job.size = sizeof job;
    job.symbology = symbology;
    job.check = check.number;
    job.want = BARHATCH_WANT_VALIDATION;
    if (barhatch::Result(job).status() == barhatch::Status::kBadOption) continue;
    names += (names.empty() ? "" : ", ") + std::string(check.name);
  }
  return names;
}

}  // namespace preview
