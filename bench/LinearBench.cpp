// Nanoseconds for one module string: every type for a text as it is marked every day, and, for the
// types whose texts have no fixed length, 100 and 1000 digits, which show how the cost grows.
#include <benchmark/benchmark.h>

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include "barhatch.h"

namespace {

struct TypicalText {
  std::int32_t type;
  const char* name;
  const char* text;
  bool anyLength;
};

constexpr TypicalText kTypes[] = {
    {0, "Codabar", "A40156B", false},
    {1, "Code 39", "ABCD-1234567", true},
    {2, "Code 93", "ABCD-1234567", true},
    {3, "EAN-13", "950110153100", false},
    {4, "MSI", "80523", true},
    {5, "Code 128, sets B and C", "Serial 0012345678", false},
    {6, "Code 128 from set A", "SERIAL 0012345678", false},
    {7, "Code 128, set B", "Serial 0012345678", false},
    {8, "Code 128 from set C", "0012345678", false},
    {9, "UPC-A", "72527273070", false},
    {10, "UPC-E", "0123456", false},
    {11, "Code 11", "123-45", true},
    {12, "EAN-8", "9501234", false},
    {13, "UPC-A + 2", "7252727307012", false},
    {14, "UPC-A + 5", "7252727307012345", false},
    {15, "EAN-13 + 2", "95011015310012", false},
    {16, "EAN-13 + 5", "95011015310012345", false},
    {17, "EAN-8 + 2", "950123412", false},
    {18, "EAN-8 + 5", "950123412345", false},
    {19, "UPC-E + 2", "012345612", false},
    {20, "UPC-E + 5", "012345654321", false},
    {21, "Interleaved 2 of 5", "15400141288763", true},
    {22, "Code 93, full ASCII", "Serial 12345", true},
};

void ModuleString(benchmark::State& state, std::int32_t type, const std::string& text) {
  const std::vector<BarhatchChar> units(text.c_str(), text.c_str() + text.size() + 1);
  InitBarcode();
  SetBarcodeType(type);
  SetDataString(units.data());
  for (auto _ : state) {
    const std::unique_ptr<char[]> letters(GenerateBarcodeString());
    if (letters == nullptr) {
      state.SkipWithError("refused");
      break;
    }
    benchmark::DoNotOptimize(letters.get());
  }
}

void Register(const std::string& name, std::int32_t type, const std::string& text) {
  benchmark::RegisterBenchmark(name.c_str(), ModuleString, type, text);
}

}  // namespace

int main(int argc, char** argv) {
  for (const TypicalText& row : kTypes) {
    Register(std::string(row.name) + ", \"" + row.text + '"', row.type, row.text);
    if (!row.anyLength) continue;
    for (const std::size_t digits : {100u, 1000u}) {
      Register(std::string(row.name) + ", " + std::to_string(digits) + " digits", row.type,
               std::string(digits, '7'));
    }
  }
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}
