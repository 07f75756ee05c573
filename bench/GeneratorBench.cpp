// Time for one symbol beside the packaged open-source generator libzint: the module string of six
// linear types against its plain encode with one object reused. Both run in this process in
// interleaved batches; the medians are compared. Prints one row a case; the ratio should be 0.25 or
// less.
#include <zint.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <string>
#include <vector>

#include "barhatch.h"

namespace {

using Clock = std::chrono::steady_clock;

constexpr int kBatches = 101;
constexpr int kCallsPerBatch = 200;

struct Case {
  const char* name;
  int32_t type;   // barhatch
  int symbology;  // libzint
  const char* text;
};

const Case kCases[] = {
    {"Code 128, 20 mixed characters", 5, BARCODE_CODE128, "Part 4711-0815 Lot 9"},
    {"Code 39, 12 characters", 1, BARCODE_CODE39, "ABCD-1234567"},
    {"Code 93, 20 characters", 2, BARCODE_CODE93, "PART 4711-0815 LOT 9"},
    {"EAN-13", 3, BARCODE_EANX, "950110153100"},
    {"UPC-E", 10, BARCODE_UPCE, "0425261"},
    {"Interleaved 2 of 5, 14 digits", 21, BARCODE_C25INTER, "12345678901234"},
};

template <typename Call>
double NanosecondsPerCall(Call call) {
  const auto start = Clock::now();
  for (int i = 0; i < kCallsPerBatch; ++i) call();
  const std::chrono::duration<double, std::nano> elapsed = Clock::now() - start;
  return elapsed.count() / kCallsPerBatch;
}

double Median(std::vector<double> values) {
  std::nth_element(values.begin(), values.begin() + static_cast<long>(values.size() / 2),
                   values.end());
  return values[values.size() / 2];
}

void SetCase(const Case& c) {
  std::vector<BarhatchChar> text;
  for (const char* p = c.text; *p != '\0'; ++p) text.push_back(static_cast<BarhatchChar>(*p));
  text.push_back(0);
  InitBarcode();
  SetBarcodeType(c.type);
  SetDataString(text.data());
}

bool Compare(const Case& c, zint_symbol* symbol) {
  const auto ours = [] { delete[] GenerateBarcodeString(); };
  const auto theirs = [&] {
    ZBarcode_Clear(symbol);
    symbol->symbology = c.symbology;
    return ZBarcode_Encode(symbol, reinterpret_cast<const unsigned char*>(c.text), 0);
  };
  SetCase(c);
  char* letters = GenerateBarcodeString();
  const bool bothEncode = letters != nullptr && theirs() < ZINT_ERROR;
  delete[] letters;
  if (!bothEncode) {
    std::printf("%-32s not encoded by both\n", c.name);
    return false;
  }
  std::vector<double> oursTimes, theirTimes;
  for (int batch = 0; batch < kBatches; ++batch) {
    oursTimes.push_back(NanosecondsPerCall(ours));
    theirTimes.push_back(NanosecondsPerCall(theirs));
  }
  const double our = Median(oursTimes), their = Median(theirTimes);
  std::printf("%-32s %8.0f ns %8.0f ns %8.2f\n", c.name, our, their, our / their);
  return true;
}

}  // namespace

int main() {
  zint_symbol* symbol = ZBarcode_Create();
  std::printf("%-32s %11s %11s %8s\n", "medians of interleaved batches", "barhatch", "libzint",
              "ratio");
  bool complete = true;
  for (const Case& c : kCases) complete = Compare(c, symbol) && complete;
  ZBarcode_Delete(symbol);
  return complete ? 0 : 1;
}
