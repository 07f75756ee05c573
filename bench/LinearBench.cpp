// Nanoseconds for one module string.
#include <benchmark/benchmark.h>

#include <memory>

#include "barhatch.h"

namespace {

void Code39(benchmark::State& state) {
  const BarhatchChar text[] = {'A', 'B', 'C', 'D', '-', '1', '2', '3', '4', '5', '6', '7', 0};
  InitBarcode();
  SetBarcodeType(1);
  SetDataString(text);
  for (auto _ : state) {
    const std::unique_ptr<char[]> letters(GenerateBarcodeString());
    benchmark::DoNotOptimize(letters.get());
  }
}
BENCHMARK(Code39)->Name("module string/Code 39, 12 characters");

}  // namespace
