// A host that calls any export at any time with any value, keeps what it gets for a while and
// releases it in the way that belongs to it.
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "CallWatch.h"
#include "FuzzInput.h"
#include "Results.h"
#include "api/BarcodeSettings.h"
#include "api/DataMatrixEncoder.h"
#include "barhatch.h"

namespace {

using barhatch::fuzz::CallWatch;
using barhatch::fuzz::Demand;
using barhatch::fuzz::FuzzInput;

struct FillRelease {
  void operator()(FillBufferInfo* fill) const { FreeBarcodeData(fill); }
};
using OwnedFill = std::unique_ptr<FillBufferInfo, FillRelease>;

struct GridRelease {
  void operator()(TwoDStringResult* grid) const { Free2DBarcodeStringResult(grid); }
};
using OwnedGrid = std::unique_ptr<TwoDStringResult, GridRelease>;

constexpr std::size_t kMostCalls = 24;
constexpr std::size_t kLongestText = 3200;  // the limits of 3116 and 3119 lie inside
constexpr std::size_t kLongestLinearText = 3119;

// What documented defaults are, once more.
void DemandDefaults() {
  const barhatch::BarcodeSettings& settings = barhatch::CurrentSettings();
  Demand(settings.type == 0 && settings.DataString == std::u16string_view(u"123"), "text 123");
  Demand(!settings.DataStringRefused, "the default text is a text");
  Demand(settings.width == 1.0 && settings.height == 0.5, "1.0 x 0.5");
  Demand(settings.PrintRatio == 3.0 && settings.InvertImage == 0, "ratio 3, not inverted");
  Demand(settings.HatchingType == 0 && settings.LineGap == 0.0001, "scan lines");
  Demand(settings.QuietZone == 0 && settings.IsExpanding == 0, "no quiet zone, no expansion");
  Demand(settings.MatrixSize == 12 * 256 + 12 && settings.format == 0, "a plain 12 x 12");
}

std::vector<char> BytesOfSettings() {
  const auto* first = reinterpret_cast<const char*>(&barhatch::CurrentSettings());
  return {first, first + sizeof(barhatch::BarcodeSettings)};
}

std::size_t UnitsOf(const BarhatchChar* text, std::size_t most) {
  return text == nullptr || std::u16string_view(text).size() > most
             ? most + 1
             : std::u16string_view(text).size();
}

class Host {
 public:
  explicit Host(FuzzInput& input) : input_(input) { Start(); }

  void CallOne() {
    switch (input_.Byte() % 18) {
      case 0:
        return Start();
      case 1:
        return SetBarcodeType(input_.Integer());
      case 2:
        return SetText();
      case 3:
        return SetModuleWidth(input_.Double());
      case 4:
        return SetPrintRatio(input_.Double());
      case 5:
        return SetImageInversionMode(input_.Byte());
      case 6:
        return SetPattern();
      case 7:
        return SetSize();
      case 8:
        return SetBarcodeHeight(input_.Integer());
      case 9:
        return SetCodeFormat(input_.Integer());
      case 10:
        return SetMatrixsize(static_cast<_matrixSize>(input_.Bits<std::int32_t>()));
      case 11:
        return MakeLetters();
      case 12:
        return HatchLetters();
      case 13:
        return Vectorize();
      case 14:
        return MakeLinear();
      case 15:
        return MakeMatrix();
      case 16:
        return ReleaseGrid();
      default:
        return ReleaseFills();
    }
  }

 private:
  static void Start() {
    InitBarcode();
    DemandDefaults();
  }

  const BarhatchChar* TextOrNull() {
    text_ = input_.Text(kLongestText);
    return input_.Byte() == 7 ? nullptr : text_.c_str();
  }

  void SetText() { SetDataString(TextOrNull()); }

  void SetPattern() {
    const double gap = input_.Double();
    SetHatchPattern(gap, input_.Integer());
  }

  void SetSize() {
    const double width = input_.Double();
    SetBarcodeSize(width, input_.Double());
  }

  // The string of the current settings, released again.
  static std::string CurrentLetters() {
    const std::unique_ptr<char[]> letters(GenerateBarcodeString());
    barhatch::fuzz::DemandSoundLetters(letters.get());
    return letters ? letters.get() : "";
  }

  void MakeLetters() {
    const CallWatch watch;
    letters_ = CurrentLetters();
    watch.DemandWithin(2 * barhatch::fuzz::MostLetterBytes(kLongestText));
  }

  void Keep(FillBufferInfo* fill, const CallWatch& watch, std::size_t mostBytes) {
    watch.DemandWithin(mostBytes);
    if (fill == nullptr) watch.DemandNothingKept();
    barhatch::fuzz::DemandSoundFill(fill);
    if (fill != nullptr) fills_.emplace_back(fill);
  }

  void HatchLetters() {
    const std::string letters = input_.Byte() % 2 == 0 ? letters_ : WrittenByTheHost();
    if (barhatch::fuzz::IsLargeLinearFill(letters, barhatch::CurrentSettings())) return;
    const bool isNull = input_.Byte() == 9;
    const CallWatch watch;
    FillBufferInfo* fill = HatchBarcodeString(isNull ? nullptr : letters.c_str());
    Keep(fill, watch, barhatch::fuzz::MostFillBytes(fill, letters.size()));
  }

  std::string WrittenByTheHost() {
    std::string letters;
    for (int i = input_.Byte() % 64; i > 0; --i) letters += "AaBbx"[input_.Byte() % 5];
    return letters;
  }

  static std::size_t MostBytes(const FillBufferInfo* fill, const std::string& letters) {
    return barhatch::fuzz::MostFillBytes(fill, letters.size()) +
           barhatch::fuzz::MostLetterBytes(kLongestText);
  }

  void Vectorize() {
    const std::string letters = CurrentLetters();
    if (barhatch::fuzz::IsLargeLinearFill(letters, barhatch::CurrentSettings())) return;
    const CallWatch watch;
    FillBufferInfo* fill = GenerateVectorizedBarcode();
    Keep(fill, watch, MostBytes(fill, letters));
  }

  LinearBarcodeInfo LinearRecord() {
    LinearBarcodeInfo info{};
    info.type = input_.Integer();
    info.height = input_.Double();
    info.width = input_.Double();
    info.HatchingType = input_.Integer();
    info.LineGap = input_.Double();
    info.InvertImage = input_.Byte();
    info.PrintRatio = input_.Double();
    info.QuietZone = input_.Byte();
    info.QuietZoneSize = input_.Integer();
    info.BorderWidth = input_.Integer();
    info.DataString = TextOrNull();
    return info;
  }

  void MakeLinear() {
    const LinearBarcodeInfo info = LinearRecord();
    const bool isNull = input_.Byte() == 9;
    if (isNull || UnitsOf(info.DataString, kLongestLinearText) > kLongestLinearText) {
      const std::vector<char> before = BytesOfSettings();
      Demand(GenerateLinearBarcode(isNull ? nullptr : &info) == nullptr, "a record is refused");
      return Demand(before == BytesOfSettings(), "a refused record changes nothing");
    }
    const std::string letters = LettersOf(info);
    barhatch::BarcodeSettings settings = barhatch::CurrentSettings();
    settings.HatchingType = info.HatchingType;
    if (barhatch::fuzz::IsLargeLinearFill(letters, settings)) return;
    const CallWatch watch;
    FillBufferInfo* fill = GenerateLinearBarcode(&info);
    Keep(fill, watch, MostBytes(fill, letters));
  }

  // Asks for centre points first: that puts the record into the settings and costs nothing.
  static std::string LettersOf(LinearBarcodeInfo info) {
    info.HatchingType = 6;
    const OwnedFill points(GenerateLinearBarcode(&info));
    return CurrentLetters();
  }

  DataMatrixBarcodeInfo MatrixRecord() {
    DataMatrixBarcodeInfo info{};
    info.height = input_.Double();
    info.format = input_.Integer();
    info.HatchingType = input_.Integer();
    info.LineGap = input_.Double();
    info.InvertImage = input_.Byte();
    info.MatrixSize = MatrixSize();
    info.IsExpanding = input_.Byte();
    info.QuietZone = input_.Byte();
    info.QuietZoneSize = input_.Integer();
    info.BorderWidth = input_.Integer();
    info.DataString = TextOrNull();
    return info;
  }

  std::int32_t MatrixSize() {
    const std::uint8_t kind = input_.Byte();
    if (kind < 128) return 0;
    return kind < 224 ? input_.Bits<std::int16_t>() : input_.Bits<std::int32_t>();
  }

  void MakeMatrix() {
    const DataMatrixBarcodeInfo info = MatrixRecord();
    const bool isNull = input_.Byte() == 9;
    if (isNull ||
        UnitsOf(info.DataString, barhatch::kMaxDataMatrixText) > barhatch::kMaxDataMatrixText) {
      const std::vector<char> before = BytesOfSettings();
      Demand(GenerateDataMatrixBarcode(isNull ? nullptr : &info) == nullptr, "a record is refused");
      return Demand(before == BytesOfSettings(), "a refused record changes nothing");
    }
    const std::size_t modules = ModulesUnlessLarge(info);
    if (modules == 0) return;
    const CallWatch watch;
    FillBufferInfo* fill = GenerateDataMatrixBarcode(&info);
    Keep(fill, watch, barhatch::fuzz::MostMatrixBytes(fill, modules));
  }

  // Modules of the symbol of the record, one where it is refused, none where the fill is large.
  static std::size_t ModulesUnlessLarge(DataMatrixBarcodeInfo info) {
    const std::int32_t hatchingType = info.HatchingType;
    info.HatchingType = 6;
    const OwnedFill points(GenerateDataMatrixBarcode(&info));
    barhatch::DataMatrixEncoder encoder;
    const OwnedGrid grid(encoder.EncodeDataMatrix());
    Demand(grid != nullptr, "there is memory for a grid");
    if (grid->data == nullptr) return 1;
    barhatch::BarcodeSettings settings = barhatch::CurrentSettings();
    settings.HatchingType = hatchingType;
    if (barhatch::fuzz::IsLargeMatrixFill(grid->numrows, grid->numcols, settings)) return 0;
    return static_cast<std::size_t>(grid->numrows * grid->numcols);
  }

  void ReleaseGrid() {
    TwoDStringResult* grid = nullptr;
    const std::uint8_t kind = input_.Byte();
    if (kind % 4 != 0) {
      grid = new TwoDStringResult{1, 2, nullptr};
      if (kind % 4 != 1) grid->data = new char[3]{'A', 'a', '\0'};
    }
    (kind % 8 < 4 ? Free2DBarcodeStringResult : FreePdf417BarcodeStringResult)(grid);
  }

  void ReleaseFills() {
    const OwnedFill layout(TestStruct());
    Demand(layout->BufferLength == 12345 && layout->FilledArray == nullptr, "the test record");
    FreeBarcodeData(nullptr);
    fills_.clear();
  }

  FuzzInput& input_;
  std::u16string text_;
  std::string letters_;
  std::vector<OwnedFill> fills_;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  FuzzInput input(data, size);
  Host host(input);
  for (std::size_t call = 0; call < kMostCalls && !input.IsEmpty(); ++call) host.CallOne();
  InitBarcode();
  const std::unique_ptr<char[]> letters(GenerateBarcodeString());
  Demand(letters != nullptr, "a fresh start makes a barcode, whatever was before");
  return 0;
}
