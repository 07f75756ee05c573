// A host that calls any export at any time with any value, keeps what it gets for a while and
// releases it in the way that belongs to it.
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "CallWatch.h"
#include "FuzzInput.h"
#include "Results.h"
#include "api/BarcodeSettings.h"
#include "barhatch.h"

namespace {

using barhatch::fuzz::BytesOf;
using barhatch::fuzz::CallWatch;
using barhatch::fuzz::Demand;
using barhatch::fuzz::FuzzInput;

struct FillRelease {
  void operator()(FillBufferInfo* fill) const { FreeBarcodeData(fill); }
};
using OwnedFill = std::unique_ptr<FillBufferInfo, FillRelease>;

constexpr std::size_t kMostCalls = 24;
constexpr std::size_t kLongestText = 3200;  // the limits of 3116 and 3119 lie inside
// Beside the result: the module string of a text of 3119 units, one rectangle of 40 bytes and one
// spare stroke for each of its bars.
constexpr std::size_t kWorkBytes = 8u << 20;

class Host {
 public:
  explicit Host(FuzzInput& input) : input_(input) { InitBarcode(); }

  void CallOne() {
    switch (input_.Byte() % 18) {
      case 0:
        return InitBarcode();
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
  std::string CurrentLetters() {
    const std::unique_ptr<char[]> letters(GenerateBarcodeString());
    barhatch::fuzz::DemandSoundLetters(letters.get());
    return letters ? letters.get() : "";
  }

  void MakeLetters() {
    const CallWatch watch;
    letters_ = CurrentLetters();
    watch.DemandWithin(kWorkBytes);
  }

  void Keep(FillBufferInfo* fill, const CallWatch& watch) {
    watch.DemandWithin(BytesOf(fill) + kWorkBytes);
    barhatch::fuzz::DemandSoundFill(fill);
    fills_.emplace_back(fill);
  }

  void HatchLetters() {
    const std::string letters = input_.Byte() % 2 == 0 ? letters_ : WrittenByTheHost();
    if (barhatch::fuzz::IsLargeLinearFill(letters, barhatch::CurrentSettings())) return;
    const CallWatch watch;
    Keep(HatchBarcodeString(letters.c_str()), watch);
  }

  std::string WrittenByTheHost() {
    std::string letters;
    for (int i = input_.Byte() % 64; i > 0; --i) letters += "AaBbx"[input_.Byte() % 5];
    return letters;
  }

  void Vectorize() {
    if (barhatch::fuzz::IsLargeLinearFill(CurrentLetters(), barhatch::CurrentSettings())) return;
    const CallWatch watch;
    Keep(GenerateVectorizedBarcode(), watch);
  }

  void MakeLinear() {
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
    if (input_.Byte() == 9) return Keep(GenerateLinearBarcode(nullptr), CallWatch());
    if (IsLarge(info)) return;
    const CallWatch watch;
    Keep(GenerateLinearBarcode(&info), watch);
  }

  // Asks for centre points first: that puts the record into the settings and costs nothing.
  bool IsLarge(LinearBarcodeInfo info) {
    const std::int32_t hatchingType = info.HatchingType;
    info.HatchingType = 6;
    const OwnedFill points(GenerateLinearBarcode(&info));
    barhatch::BarcodeSettings settings = barhatch::CurrentSettings();
    settings.HatchingType = hatchingType;
    return barhatch::fuzz::IsLargeLinearFill(CurrentLetters(), settings);
  }

  void MakeMatrix() {
    DataMatrixBarcodeInfo info{};
    info.height = input_.Double();
    info.format = input_.Integer();
    info.HatchingType = input_.Integer();
    info.LineGap = input_.Double();
    info.InvertImage = input_.Byte();
    info.MatrixSize = input_.Byte() % 2 == 0 ? 0 : input_.Bits<std::int16_t>();
    info.IsExpanding = input_.Byte() % 2;
    info.QuietZone = input_.Byte() % 2;
    info.DataString = TextOrNull();
    if (input_.Byte() == 9) return Keep(GenerateDataMatrixBarcode(nullptr), CallWatch());
    if (barhatch::fuzz::IsLargeMatrixFill(info)) return;
    const CallWatch watch;
    Keep(GenerateDataMatrixBarcode(&info), watch);
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
