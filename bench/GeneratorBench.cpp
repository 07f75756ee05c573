// Time for one symbol beside the packaged open-source generator libzint: the module string of six
// linear types against its plain encode; the Data Matrix, alone and with the centre points of all
// its modules (hatching type 6), against its fast encodation, the one with a look-ahead. libzint's
// object is reused. Both run in this process in interleaved batches; the medians are compared.
// Prints one row a case; the goal is a ratio of 0.25 for linear types and of 0.25 to 0.5 for Data
// Matrix. Then texts of 3116 and 1558 characters of one kind: the cost is to be linear in the text.
//
// The last rows are marks by the book, modules alone, with and without proof, beside libzint's
// encode, of Data Matrix its minimal encodation, the default, and the fast one. The goals: 0.25 of
// minimal and 0.5 of fast, 1.25 for the proof, 2.1 for twice the text.
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
#include "barhatch_mark.h"

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

using Call = std::function<void()>;

std::vector<double> InterleaveAll(const std::vector<Call>& calls) {
  std::vector<int> counts;
  for (const Call& call : calls) counts.push_back(CallsPerBatch(call));
  std::vector<std::vector<double>> times(calls.size());
  for (int batch = 0; batch < kBatches; ++batch) {
    for (std::size_t i = 0; i < calls.size(); ++i)
      times[i].push_back(NanosecondsPerCall(calls[i], counts[i]));
  }
  std::vector<double> medians;
  for (const std::vector<double>& of : times) medians.push_back(Median(of));
  return medians;
}

struct Medians {
  double first;
  double second;
};

Medians Interleave(const Call& first, const Call& second) {
  const std::vector<double> medians = InterleaveAll({first, second});
  return {medians[0], medians[1]};
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

// ---- By the book ----

BarhatchJob PublishedJob(int32_t symbology, const std::string& text) {
  BarhatchJob job = {};
  job.size = sizeof job;
  job.symbology = symbology;
  job.input = BARHATCH_BYTES;
  job.text = text.data();
  job.length = text.size();
  job.want = BARHATCH_WANT_MODULES;
  return job;
}

int32_t MarkByTheBook(const BarhatchJob& job) {
  BarhatchResult result = {};
  result.size = sizeof result;
  BarhatchMark(&job, &result);
  BarhatchRelease(&result);
  return result.status;
}

// times: proven, unproven, by libzint's minimal and fast encodation.
void PrintBookRow(const char* name, const std::vector<double>& times) {
  std::printf("%-32s %10.0f %10.0f %10.0f %10.0f %8.2f %8.2f %8.2f\n", name, times[0], times[1],
              times[2], times[3], times[1] / times[2], times[1] / times[3], times[0] / times[1]);
}

bool CompareBook(const char* name, int32_t symbology, int zintSymbology, const std::string& text,
                 zint_symbol* symbol) {
  const BarhatchJob proven = PublishedJob(symbology, text);
  BarhatchJob unproven = proven;
  unproven.flags = BARHATCH_NO_PROOF;
  symbol->option_3 = zintSymbology == BARCODE_DATAMATRIX ? DM_SQUARE : 0;
  const auto byZint = [&](int mode) {
    symbol->input_mode = mode;
    return EncodeByZint(symbol, zintSymbology, text);
  };
  if (MarkByTheBook(proven) != BARHATCH_OK || !byZint(DATA_MODE)) {
    std::printf("%-32s not encoded by both\n", name);
    return false;
  }
  PrintBookRow(name,
               InterleaveAll({[&] { MarkByTheBook(proven); }, [&] { MarkByTheBook(unproven); },
                              [&] { byZint(DATA_MODE); }, [&] { byZint(DATA_MODE | FAST_MODE); }}));
  return true;
}

// 3116 characters of most kinds are more than a symbol holds: all ways are looked at nonetheless,
// and the text is refused.
void CompareLengthsByTheBook(const Scaling& scaling) {
  const std::string whole = Repeat(scaling.period, 3116), half = Repeat(scaling.period, 1558);
  const BarhatchJob wholeJob = PublishedJob(BARHATCH_DATA_MATRIX, whole);
  const BarhatchJob halfJob = PublishedJob(BARHATCH_DATA_MATRIX, half);
  PrintRow(scaling.name,
           Interleave([&] { MarkByTheBook(wholeJob); }, [&] { MarkByTheBook(halfJob); }));
}

bool CompareAllByTheBook(zint_symbol* symbol) {
  std::printf("\n%-32s %10s %10s %10s %10s %8s %8s %8s\n", "by the book, ns", "proven", "unproven",
              "minimal", "fast", "/minimal", "/fast", "proof");
  bool complete = true;
  for (const LinearCase& c : kLinearCases)
    complete = CompareBook(c.name, c.type, c.symbology, c.text, symbol) && complete;
  for (const MatrixCase& c : kMatrixCases) {
    complete = CompareBook(c.name, BARHATCH_DATA_MATRIX, BARCODE_DATAMATRIX,
                           Repeat(c.period, c.length), symbol) &&
               complete;
  }
  std::printf("\n%-32s %12s %12s %8s\n", "by the book, linear in the text", "3116", "1558",
              "ratio");
  for (const Scaling& scaling : kScalings) CompareLengthsByTheBook(scaling);
  return complete;
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
  std::printf("\n%-32s %12s %12s %8s\n", "Data Matrix, linear in the text", "3116", "1558",
              "ratio");
  for (const Scaling& scaling : kScalings) CompareLengths(scaling);
  complete = CompareAllByTheBook(symbol) && complete;
  ZBarcode_Delete(symbol);
  return complete ? 0 : 1;
}
