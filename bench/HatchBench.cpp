// About one million segments of hatching type 0, from the module string to the released fill
// buffer, beside what the memory alone costs: the same bytes obtained by malloc, written once and
// freed. The fill should reach at least half the rate of "malloc, memset, free".
//
// Two sizes, because the C library of Linux treats them differently: 1,000 thousand segments are
// just below 32 MiB, where a freed block is kept and the next fill writes memory that is still in
// the cache (memset then beats every ordinary store by its wide instructions); 1,100 thousand are
// above it, and every fill gets fresh pages from the system.
#include <benchmark/benchmark.h>

#include <cstdlib>
#include <cstring>
#include <memory>

#include "barhatch.h"

namespace {

constexpr double kHeight = 10.0;
constexpr double kBars = 40.0;  // eight characters with start and stop

void Prepare(double thousandSegments) {
  const BarhatchChar text[] = {'A', 'B', 'C', 'D', '1', '2', 0};
  InitBarcode();
  SetBarcodeType(1);
  SetDataString(text);
  SetBarcodeSize(40.0, kHeight);
  SetHatchPattern(kHeight * kBars / (thousandSegments * 1000.0), 0);
}

std::size_t BytesOfTheFill(const benchmark::State& state) {
  Prepare(static_cast<double>(state.range(0)));
  FillBufferInfo* fill = GenerateVectorizedBarcode();
  const std::size_t bytes = static_cast<std::size_t>(fill->BufferLength) * sizeof(double);
  FreeBarcodeData(fill);
  return bytes;
}

void Report(benchmark::State& state, std::size_t bytes) {
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(bytes));
  state.counters["segments"] = static_cast<double>(bytes / (4 * sizeof(double)));
}

void ScanLines(benchmark::State& state) {
  const std::size_t bytes = BytesOfTheFill(state);
  const std::unique_ptr<char[]> letters(GenerateBarcodeString());
  for (auto _ : state) {
    FillBufferInfo* fill = HatchBarcodeString(letters.get());
    benchmark::DoNotOptimize(fill->FilledArray);
    FreeBarcodeData(fill);
  }
  Report(state, bytes);
}
BENCHMARK(ScanLines)->Name("hatch/scan lines")->Unit(benchmark::kMillisecond)->Arg(1000)->Arg(1100);

void FreshMemset(benchmark::State& state) {
  const std::size_t bytes = BytesOfTheFill(state);
  for (auto _ : state) {
    void* memory = std::malloc(bytes);
    std::memset(memory, 0x5A, bytes);
    benchmark::DoNotOptimize(memory);
    std::free(memory);
  }
  Report(state, bytes);
}
BENCHMARK(FreshMemset)
    ->Name("memory/malloc, memset, free")
    ->Unit(benchmark::kMillisecond)
    ->Arg(1000)
    ->Arg(1100);

void FreshMemcpy(benchmark::State& state) {
  const std::size_t bytes = BytesOfTheFill(state);
  const std::unique_ptr<char[]> source(new char[bytes]());
  for (auto _ : state) {
    void* memory = std::malloc(bytes);
    std::memcpy(memory, source.get(), bytes);
    benchmark::DoNotOptimize(memory);
    std::free(memory);
  }
  Report(state, bytes);
}
BENCHMARK(FreshMemcpy)
    ->Name("memory/malloc, memcpy, free")
    ->Unit(benchmark::kMillisecond)
    ->Arg(1000)
    ->Arg(1100);

}  // namespace
