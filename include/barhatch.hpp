// barhatch for hosts in C++17: the C interface of barhatch.h with results that release themselves.
//
//   barhatch::LinearBarcode barcode;
//   barcode.type = barhatch::Type::kCode39;
//   barcode.text = u"ABC-123";
//   barcode.width = 60.0;
//   barcode.height = 12.0;
//   barcode.lineGap = 0.5;
//   if (const std::optional<barhatch::Fill> fill = barhatch::Generate(barcode)) {
//     for (const barhatch::Segment& s : fill->Segments()) Mark(s.xa, s.ya, s.xb, s.yb);
//   }
//
// A result that could not be made is an empty optional: the library tells no reason. Nothing here
// throws but the strings of the host when there is no memory for them. Lengths are in the host's
// unit. The library has one block of settings for the whole process: calls from several threads
// have to be serialised by the host.
#ifndef BARHATCH_HPP
#define BARHATCH_HPP

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "barhatch.h"

namespace barhatch {

// A name of its own keeps these types apart from those inside of the library.
inline namespace host {

// The linear symbologies. The text that each takes is told in full in docs/symbologies.md, and what
// is not written by the published form in docs/deviations.md: Code 39 accepts the letters from E to
// Z, but no reader gives them back.
enum class Type : std::int32_t {
  kCodabar = 0,           // digits and - $ : / . +, letters at both ends
  kCode39 = 1,            // digits, capital letters, - . $ / + % and space
  kCode93 = 2,            // as Code 39
  kEan13 = 3,             // 12 digits
  kMsi = 4,               // digits
  kCode128 = 5,           // sets B and C, by the runs of digits
  kCode128FromA = 6,      // begins in set A
  kCode128B = 7,          // set B alone
  kCode128FromC = 8,      // begins in set C
  kUpcA = 9,              // 11 digits
  kUpcE = 10,             // 7 digits
  kCode11 = 11,           // digits and -
  kEan8 = 12,             // 7 digits
  kUpcAAddOn2 = 13,       // 11 and 2 digits
  kUpcAAddOn5 = 14,       // 11 and 5 digits
  kEan13AddOn2 = 15,      // 12 and 2 digits
  kEan13AddOn5 = 16,      // 12 and 5 digits
  kEan8AddOn2 = 17,       // 7 and 2 digits
  kEan8AddOn5 = 18,       // 7 and 5 digits
  kUpcEAddOn2 = 19,       // 7 and 2 digits
  kUpcEAddOn5 = 20,       // 7 and 5 digits
  kInterleaved2of5 = 21,  // digits
  kCode93FullAscii = 22   // ASCII; bytes above 127 are accepted and spoil the symbol
};

// How the bars are filled.
enum class Pattern : std::int32_t {
  kScanLines = 0,              // horizontal lines across the whole symbol
  kVerticalLines = 1,          // vertical lines upwards
  kAlternatingHorizontal = 2,  // horizontal lines bar by bar, to and fro
  kAlternatingVertical = 3,    // vertical lines, up and down
  kSpiral = 5,                 // inwards, in each bar
  kPoints = 6                  // one point at the centre of each bar
};

// What stands in front of the text of a Data Matrix.
enum class CodeFormat : std::int32_t {
  kPlain = 0,    // nothing
  kFnc1 = 1,     // FNC1 in second position
  kMacro05 = 2,  // header of ISO/IEC 15434 format 05
  kMacro06 = 3   // header of ISO/IEC 15434 format 06
};

// A text as the library takes it: u"...", or L"..." on the device.
using Text = std::basic_string<BarhatchChar>;

// A barcode of a linear type. The defaults are those of InitBarcode, but for the text.
struct LinearBarcode {
  Type type = Type::kCodabar;             // symbology
  Text text;                              // at most 3119 units
  double width = 1.0;                     // of the whole symbol, quiet zones included
  double height = 0.5;                    // of the bars
  double printRatio = 3.0;                // width of a wide element in modules
  bool invert = false;                    // fill the light elements
  bool quietZone = false;                 // add those that the symbology asks for
  Pattern pattern = Pattern::kScanLines;  // how the elements are filled
  double lineGap = 0.0001;                // pitch of the strokes
};

// A Data Matrix. Unless asked otherwise it is the smallest square that holds the text.
struct DataMatrix {
  Text text;            // at most 3116 units; units above 255 are ECI designators
  double height = 0.5;  // of the whole symbol, quiet zone included
  CodeFormat format = CodeFormat::kPlain;  // FNC1 or a macro header
  std::uint8_t rows = 0;                   // of the size asked for; 0 x 0: the smallest square
  std::uint8_t columns = 0;                // of the size asked for
  bool mayExpand = true;                   // beyond rows x columns
  bool invert = false;                     // fill the light modules
  bool quietZone = false;                  // add one light module on every side
  Pattern pattern = Pattern::kScanLines;   // how the modules are filled
  double lineGap = 0.0001;                 // pitch of the strokes
};

// A stroke from a to b.
struct Segment {
  static constexpr std::size_t kDoubles = 4;  // of the coordinates of one
  // From coordinates in the order of FilledArray.
  explicit constexpr Segment(const double* c) : xa(c[0]), ya(c[1]), xb(c[2]), yb(c[3]) {}
  double xa;  // where it begins
  double ya;  // where it begins
  double xb;  // where it ends
  double yb;  // where it ends
};

// A point to mark.
struct Point {
  static constexpr std::size_t kDoubles = 2;  // of the coordinates of one
  // From coordinates in the order of FilledArray.
  explicit constexpr Point(const double* c) : x(c[0]), y(c[1]) {}
  double x;  // to the right
  double y;  // upwards
};

// Segments or points in marking order, made from the coordinates as they are asked for. Valid as
// long as its fill: keep the fill in a variable, as a loop over Generate(barcode)->Segments() reads
// what is released already.
template <typename Stroke>
class Strokes {
 public:
  class Iterator {
   public:
    using iterator_category = std::input_iterator_tag;
    using value_type = Stroke;
    using difference_type = std::ptrdiff_t;
    using pointer = const Stroke*;
    using reference = Stroke;

    explicit constexpr Iterator(const double* at) : at_(at) {}
    constexpr Stroke operator*() const { return Stroke(at_); }
    constexpr Iterator& operator++() {
      at_ += Stroke::kDoubles;
      return *this;
    }
    constexpr Iterator operator++(int) {
      const Iterator before = *this;
      ++*this;
      return before;
    }
    friend constexpr bool operator==(Iterator a, Iterator b) { return a.at_ == b.at_; }
    friend constexpr bool operator!=(Iterator a, Iterator b) { return a.at_ != b.at_; }

   private:
    const double* at_;
  };

  // count strokes with Stroke::kDoubles coordinates each.
  constexpr Strokes(const double* coordinates, std::size_t count)
      : coordinates_(coordinates), count_(count) {}
  constexpr std::size_t size() const { return count_; }  // how many strokes
  constexpr bool empty() const { return count_ == 0; }   // none
  // One stroke. REQUIRES: index < size().
  constexpr Stroke operator[](std::size_t index) const {
    return Stroke(coordinates_ + Stroke::kDoubles * index);
  }
  // In marking order.
  constexpr Iterator begin() const { return Iterator(coordinates_); }
  // Behind the last.
  constexpr Iterator end() const { return Iterator(coordinates_ + Stroke::kDoubles * count_); }

 private:
  const double* coordinates_;
  std::size_t count_;
};

// A fill buffer, released with this object.
class Fill {
 public:
  // Takes over what a vector generator of barhatch.h gave. REQUIRES: not null.
  explicit Fill(FillBufferInfo* info) : info_(info) {}

  // True for Pattern::kPoints.
  bool IsPoints() const { return info_->FillingShapeType == 2; }
  // The segments; none of a fill of points.
  Strokes<Segment> Segments() const { return View<Segment>(!IsPoints()); }
  // The points; none of a fill of segments.
  Strokes<Point> Points() const { return View<Point>(IsPoints()); }
  // FillBufferInfo::FillHeight.
  double Height() const { return info_->FillHeight; }
  // FillBufferInfo::FillWidth.
  double Width() const { return info_->FillWidth; }
  // The record itself.
  const FillBufferInfo& Info() const { return *info_; }

 private:
  struct Release {
    void operator()(FillBufferInfo* info) const { FreeBarcodeData(info); }
  };

  template <typename Stroke>
  Strokes<Stroke> View(bool isOfThisKind) const {
    const auto doubles = static_cast<std::size_t>(info_->BufferLength);
    return {info_->FilledArray, isOfThisKind ? doubles / Stroke::kDoubles : 0};
  }

  std::unique_ptr<FillBufferInfo, Release> info_;
};

// A module string, released with this object: 'A' narrow bar, 'B' wide bar, 'a' narrow space, 'b'
// wide space.
class Modules {
 public:
  // Takes over what GenerateBarcodeString gave. REQUIRES: not null.
  explicit Modules(char* letters) : letters_(letters) {}
  // The letters, valid as long as this object.
  std::string_view View() const { return letters_.get(); }
  // The letters with a NUL behind them.
  const char* c_str() const { return letters_.get(); }

 private:
  std::unique_ptr<char[]> letters_;
};

namespace internal {

inline std::optional<Fill> Own(FillBufferInfo* info) {
  return info == nullptr ? std::nullopt : std::optional<Fill>(std::in_place, info);
}

// The C interface would take the text up to a NUL inside and mark less than was asked for.
inline bool HasNulInside(const Text& text) { return text.find(BarhatchChar{}) != Text::npos; }

}  // namespace internal

// Puts every setting to its default. Call it once, before anything else.
inline void Initialise() { InitBarcode(); }

// The fill of a linear barcode. The values of the barcode stay in force as settings.
inline std::optional<Fill> Generate(const LinearBarcode& barcode) {
  if (internal::HasNulInside(barcode.text)) return std::nullopt;
  LinearBarcodeInfo info{};
  info.height = barcode.height;
  info.width = barcode.width;
  info.type = static_cast<std::int32_t>(barcode.type);
  info.DataString = barcode.text.c_str();
  info.HatchingType = static_cast<std::int32_t>(barcode.pattern);
  info.LineGap = barcode.lineGap;
  info.InvertImage = barcode.invert ? 1 : 0;
  info.PrintRatio = barcode.printRatio;
  info.QuietZone = barcode.quietZone ? 1 : 0;
  return internal::Own(GenerateLinearBarcode(&info));
}

// The fill of a Data Matrix. The values of the record stay in force as settings.
inline std::optional<Fill> Generate(const DataMatrix& matrix) {
  if (internal::HasNulInside(matrix.text)) return std::nullopt;
  DataMatrixBarcodeInfo info{};
  info.height = matrix.height;
  info.format = static_cast<std::int32_t>(matrix.format);
  info.DataString = matrix.text.c_str();
  info.HatchingType = static_cast<std::int32_t>(matrix.pattern);
  info.LineGap = matrix.lineGap;
  info.InvertImage = matrix.invert ? 1 : 0;
  info.MatrixSize = 256 * matrix.rows + matrix.columns;
  info.IsExpanding = matrix.mayExpand ? 1 : 0;
  info.QuietZone = matrix.quietZone ? 1 : 0;
  return internal::Own(GenerateDataMatrixBarcode(&info));
}

// The module string of a text; with quiet zones if the barcode generated before had them.
inline std::optional<Modules> GenerateModules(Type type, const Text& text) {
  if (internal::HasNulInside(text)) return std::nullopt;
  SetBarcodeType(static_cast<std::int32_t>(type));
  SetDataString(text.c_str());
  char* letters = GenerateBarcodeString();
  return letters == nullptr ? std::nullopt : std::optional<Modules>(std::in_place, letters);
}

// Fills a module string, one of the library's or of the host's own, in the size and manner of the
// barcode; its type and text play no part.
inline std::optional<Fill> Hatch(const char* modules, const LinearBarcode& barcode) {
  SetBarcodeSize(barcode.width, barcode.height);
  SetPrintRatio(barcode.printRatio);
  SetImageInversionMode(barcode.invert ? 1 : 0);
  SetHatchPattern(barcode.lineGap, static_cast<std::int32_t>(barcode.pattern));
  return internal::Own(HatchBarcodeString(modules));
}

}  // namespace host
}  // namespace barhatch

#endif
