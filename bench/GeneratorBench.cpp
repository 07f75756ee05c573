// Time for one symbol beside the packaged open-source generator libzint: the module string of six
// linear types against its plain encode; the Data Matrix, alone and with the centre points of all
// its modules (hatching type 6), against its fast encodation, the one with a look-ahead. libzint's
// object is reused. Both run in this process in interleaved batches; the medians are compared.
// Prints one row a case; the goal is a ratio of 0.25 for linear types and of 0.25 to 0.5 for Data
// Matrix. The last rows compare texts of 3116 and 1558 characters of one kind: the cost is to be
// linear in the text.
#include <malloc.h>
#include <zint.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <string>
#include <vector>

#include "api/DataMatrixEncoder.h"
#include "barhatch.h"

namespace {

using Clock = std::chrono::steady_clock;
using Units = std::vector<BarhatchChar>;

constexpr int kBatches = 101;
constexpr double kBatchNanoseconds = 100000.0;

struct LinearCase {
  const char* name;
  int32_t type;   // barhatch
  int symbology;  // libzint
  const char* text;
};

const LinearCase kLinearCases[] = {
    {"Code 128, 20 mixed characters", 5, BARCODE_CODE128, "Part 4711-0815 Lot 9"},
    {"Code 39, 12 characters", 1, BARCODE_CODE39, "ABCD-1234567"},
    {"Code 93, 20 characters", 2, BARCODE_CODE93, "PART 4711-0815 LOT 9"},
    {"EAN-13", 3, BARCODE_EANX, "950110153100"},
    {"UPC-E", 10, BARCODE_UPCE, "0425261"},
    {"Interleaved 2 of 5, 14 digits", 21, BARCODE_C25INTER, "12345678901234"},
};

struct MatrixCase {
  const char* name;
  const char* period;  // the text is this, over and over
  std::size_t length;
};

const MatrixCase kMatrixCases[] = {
    {"Data Matrix, 10 ASCII", "Part 4711-0815 Lot 9; ", 10},
    {"Data Matrix, 50 ASCII", "Part 4711-0815 Lot 9; ", 50},
    {"Data Matrix, 300 ASCII", "Part 4711-0815 Lot 9; ", 300},
    {"Data Matrix, 1500 ASCII", "Part 4711-0815 Lot 9; ", 1500},
    {"Data Matrix, 3000 digits", "0123456789", 3000},
};

struct Scaling {
  const char* name;
  const char* period;
};

// 3116 characters of most of these are more than a symbol holds: the encodation runs until it is
// full.
const Scaling kScalings[] = {
    {"digits", "0123456789"},
    {"control and upper case",
     "\x01\x02\x03"
     "ABC"},
    {"lower and upper case", "abcdefABCDEF"},
    {"X12 and digits", "AB*12>"},
};

Units ToUnits(const std::string& text) {
  Units units(text.begin(), text.end());
  units.push_back(0);
  return units;
}

std::string Repeat(const std::string& period, std::size_t length) {
  std::string text;
  while (text.size() < length) text += period;
  return text.substr(0, length);
}

double NanosecondsPerCall(const std::function<void()>& call, int calls) {
  const auto start = Clock::now();
  for (int i = 0; i < calls; ++i) call();
  const std::chrono::duration<double, std::nano> elapsed = Clock::now() - start;
  return elapsed.count() / calls;
}

int CallsPerBatch(const std::function<void()>& call) {
  NanosecondsPerCall(call, 1);
  return std::max(1, static_cast<int>(kBatchNanoseconds / NanosecondsPerCall(call, 3)));
}

double Median(std::vector<double> values) {
  std::nth_element(values.begin(), values.begin() + static_cast<long>(values.size() / 2),
                   values.end());
  return values[values.size() / 2];
}

struct Medians {
  double first;
  double second;
};

Medians Interleave(const std::function<void()>& first, const std::function<void()>& second) {
  const int firstCalls = CallsPerBatch(first), secondCalls = CallsPerBatch(second);
  std::vector<double> firstTimes, secondTimes;
  for (int batch = 0; batch < kBatches; ++batch) {
    firstTimes.push_back(NanosecondsPerCall(first, firstCalls));
    secondTimes.push_back(NanosecondsPerCall(second, secondCalls));
  }
  return {Median(firstTimes), Median(secondTimes)};
}

void PrintRow(const char* name, const Medians& medians) {
  std::printf("%-32s %9.0f ns %9.0f ns %8.2f\n", name, medians.first, medians.second,
              medians.first / medians.second);
}

bool EncodeByZint(zint_symbol* symbol, int symbology, const std::string& text) {
  ZBarcode_Clear(symbol);
  symbol->symbology = symbology;
  return ZBarcode_Encode(symbol, reinterpret_cast<const unsigned char*>(text.data()),
                         static_cast<int>(text.size())) < ZINT_ERROR;
}

bool CompareLinear(const LinearCase& c, zint_symbol* symbol) {
  const std::string text = c.text;
  InitBarcode();
  SetBarcodeType(c.type);
  SetDataString(ToUnits(text).data());
  char* letters = GenerateBarcodeString();
  const bool bothEncode = letters != nullptr && EncodeByZint(symbol, c.symbology, text);
  delete[] letters;
  if (!bothEncode) {
    std::printf("%-32s not encoded by both\n", c.name);
    return false;
  }
  PrintRow(c.name, Interleave([] { delete[] GenerateBarcodeString(); },
                              [&] { EncodeByZint(symbol, c.symbology, text); }));
  return true;
}

DataMatrixBarcodeInfo MatrixRecord(const Units& text) {
  DataMatrixBarcodeInfo info{};
  info.height = 10.0;
  info.DataString = text.data();
  info.HatchingType = 6;
  info.IsExpanding = 1;
  return info;
}

// The grid alone, of the record that was generated last.
void EncodeCurrentSettings() {
  barhatch::DataMatrixEncoder encoder;
  Free2DBarcodeStringResult(encoder.EncodeDataMatrix());
}

bool CompareMatrix(const MatrixCase& c, zint_symbol* symbol) {
  const std::string text = Repeat(c.period, c.length);
  const Units units = ToUnits(text);
  const DataMatrixBarcodeInfo info = MatrixRecord(units);
  FillBufferInfo* fill = GenerateDataMatrixBarcode(&info);
  symbol->input_mode = DATA_MODE | FAST_MODE;
  symbol->option_3 = DM_SQUARE;
  const bool bothEncode = fill != nullptr && EncodeByZint(symbol, BARCODE_DATAMATRIX, text);
  FreeBarcodeData(fill);
  if (!bothEncode) {
    std::printf("%-32s not encoded by both\n", c.name);
    return false;
  }
  const auto byZint = [&] { EncodeByZint(symbol, BARCODE_DATAMATRIX, text); };
  PrintRow(c.name, Interleave(EncodeCurrentSettings, byZint));
  PrintRow("  with its points",
           Interleave([&] { FreeBarcodeData(GenerateDataMatrixBarcode(&info)); }, byZint));
  return true;
}

void CompareLengths(const Scaling& scaling) {
  const Units whole = ToUnits(Repeat(scaling.period, 3116)),
              half = ToUnits(Repeat(scaling.period, 1558));
  const DataMatrixBarcodeInfo wholeInfo = MatrixRecord(whole), halfInfo = MatrixRecord(half);
  PrintRow(scaling.name,
           Interleave([&] { FreeBarcodeData(GenerateDataMatrixBarcode(&wholeInfo)); },
                      [&] { FreeBarcodeData(GenerateDataMatrixBarcode(&halfInfo)); }));
}

}  // namespace

int main() {
  // Freed memory stays with the process: else the C library hands the larger results back to the
  // system and fetches them again, which is no work of either side.
  mallopt(M_MMAP_THRESHOLD, 1 << 28);
  mallopt(M_TRIM_THRESHOLD, 1 << 28);
  zint_symbol* symbol = ZBarcode_Create();
  std::printf("%-32s %12s %12s %8s\n", "medians of interleaved batches", "barhatch", "libzint",
              "ratio");
  bool complete = true;
  for (const LinearCase& c : kLinearCases) complete = CompareLinear(c, symbol) && complete;
  for (const MatrixCase& c : kMatrixCases) complete = CompareMatrix(c, symbol) && complete;
  ZBarcode_Delete(symbol);
  std::printf("\n%-32s %12s %12s %8s\n", "Data Matrix, linear in the text", "3116", "1558",
              "ratio");
  for (const Scaling& scaling : kScalings) CompareLengths(scaling);
  return complete ? 0 : 1;
}
