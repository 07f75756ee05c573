// barhatch for hosts in C++17: the mark interface of barhatch_mark.h with jobs that keep their text
// and results that release themselves.
//
//   barhatch::Job job;
//   job.symbology = barhatch::Symbology::kCode39;
//   job.text = "ABC-123";
//   job.xDimension = 0.5;
//   job.height = 12.0;
//   job.gap = 0.1;
//   const barhatch::Result mark = barhatch::Mark(job);
//   if (!mark) return Complain(mark.message(), mark.position());
//   for (const barhatch::Segment& s : mark.Segments()) Trace(s.xa, s.ya, s.xb, s.yb);
//
// Every value of a job is zero, or empty, until the host sets it, and zero is the sensible default.
// Lengths are in the host's unit, x to the right, y upwards. There is no state: every call of Mark
// may run in a thread of its own. Nothing here throws but the texts of a job when there is no
// memory for them. Ranges and views of a result are valid as long as the result.
#ifndef BARHATCH_HPP
#define BARHATCH_HPP

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "barhatch_mark.h"
#include "barhatch_values.hpp"

namespace barhatch {

// A name of its own keeps these types apart from those inside of the library.
inline namespace host {

// A text, kept by its job: UTF-8 ("ABC"), 16-bit units (u"ABC"), or what one of the functions makes
// of bytes. A NUL is a character like any other.
class Text {
 public:
  Text() = default;
  // UTF-8 up to its NUL.
  Text(const char* utf8) : bytes_(utf8) {}
  // UTF-8.
  Text(std::string utf8) noexcept : bytes_(std::move(utf8)) {}
  // UTF-8.
  Text(std::string_view utf8) : bytes_(utf8) {}
  // Units up to the first zero.
  Text(const char16_t* units) : units_(units), input_(BARHATCH_UNITS) {}
  // Units.
  Text(std::u16string units) noexcept : units_(std::move(units)), input_(BARHATCH_UNITS) {}
  // Units.
  Text(std::u16string_view units) : units_(units), input_(BARHATCH_UNITS) {}
  // Each byte is a character.
  static Text Bytes(std::string bytes) noexcept { return Text(std::move(bytes), BARHATCH_BYTES); }
  // Element strings: "(01)09501101530003(10)ABC".
  static Text Gs1(std::string utf8) noexcept { return Text(std::move(utf8), BARHATCH_GS1); }
  // With escapes: "^FNC1ABC^029".
  static Text Escaped(std::string utf8) noexcept { return Text(std::move(utf8), BARHATCH_ESCAPED); }
  // Each byte is a data codeword of a Data Matrix.
  static Text Codewords(std::string bytes) noexcept {
    return Text(std::move(bytes), BARHATCH_CODEWORDS);
  }

  std::int32_t Input() const noexcept { return input_; }  // BarhatchInput
  // Bytes or units with a zero behind them, valid until the text is written.
  const void* Data() const noexcept {
    return IsUnits() ? static_cast<const void*>(units_.c_str()) : bytes_.c_str();
  }
  // How many bytes or units.
  std::size_t Length() const noexcept { return IsUnits() ? units_.size() : bytes_.size(); }

 private:
  Text(std::string bytes, std::int32_t input) noexcept : bytes_(std::move(bytes)), input_(input) {}
  bool IsUnits() const noexcept { return input_ == BARHATCH_UNITS; }

  std::string bytes_;
  std::u16string units_;
  std::int32_t input_ = BARHATCH_UTF8;
};

// Functions of the host that give and take the memory of a mark: both, or neither for malloc and
// free. They outlive the result.
struct HostMemory {
  void* (*allocate)(void* context, std::size_t bytes) = nullptr;  // null where there is none
  void (*release)(void* context, void* block) = nullptr;          // what allocate gave
  void* context = nullptr;                                        // handed to both
};

// A mark to be made. Of xDimension, width and, for a Data Matrix, height set one; a linear symbol
// needs height beside it, and every pattern but points a gap.
struct Job {
  static constexpr double kNoQuietZone = -1.0;  // for quiet

  Symbology symbology = Symbology::kCodabar;          // what is written
  Conformance conformance = Conformance::kPublished;  // by what rules
  Text text;                                          // what it says
  Envelope envelope = Envelope::kNone;                // around the text of a Data Matrix
  Check check = Check::kOwn;                          // characters that the library adds
  std::int32_t eci = 0;                               // of a Data Matrix; 0: as its text needs
  std::int32_t rows = 0;                              // of a Data Matrix; 0 x 0: the smallest
  std::int32_t columns = 0;                           // of a Data Matrix
  Shape shape = Shape::kSquare;                       // of a Data Matrix of 0 x 0
  Set<Flag> flags;                                    // {Flag::kPermit, Flag::kMayGrow}
  std::int32_t addonGap = 0;                          // modules; 0: 9
  Pattern pattern = Pattern::kScanLines;              // how the elements are filled
  std::int32_t profile = 0;                           // 0 in this version
  Set<Want> want;                                     // none: everything
  bool invert = false;             // fill the light elements, quiet zone included
  std::int32_t dotsPerModule = 0;  // 0 in this version
  Order order = Order::kOwn;       // of the strokes
  double xDimension = 0.0;         // width of one module
  double width = 0.0;              // of the symbol
  double height = 0.0;             // of the bars, or of the matrix
  double ratio = 0.0;              // of wide to narrow elements; 0: 3.0
  double quiet = 0.0;              // zone in modules; 0: the standard's
  double unitsPerMm = 0.0;         // 0 in this version
  double gap = 0.0;                // pitch of the strokes
  double beamX = 0.0;              // 0 in this version
  double beamY = 0.0;              // 0 in this version
  double growthX = 0.0;            // 0 in this version
  double growthY = 0.0;            // 0 in this version
  double dot = 0.0;                // 0 in this version
  double markSpeed = 0.0;          // units a second, for Result::seconds
  double jumpSpeed = 0.0;          // units a second
  double strokeDelay = 0.0;        // seconds for each stroke
  double jumpDelay = 0.0;          // seconds for each jump
  double radius = 0.0;             // 0 in this version
  double tolerance = 0.0;          // 0 in this version
  std::int32_t part = 0;           // which of several Data Matrix symbols, 1 to parts
  std::int32_t parts = 0;          // of a message, 2 to 16; 0: one symbol alone
  std::int32_t partId = 0;         // the same in all of them
  HostMemory memory;               // of the result
};

// A stroke from a to b.
struct Segment {
  static constexpr std::size_t kDoubles = 4;  // of the coordinates of one
  // From coordinates in the order of BarhatchResult::strokes.
  explicit constexpr Segment(const double* c) : xa(c[0]), ya(c[1]), xb(c[2]), yb(c[3]) {}
  double xa;  // where it begins
  double ya;  // where it begins
  double xb;  // where it ends
  double yb;  // where it ends
};

// A point to mark.
struct Point {
  static constexpr std::size_t kDoubles = 2;  // of the coordinates of one
  // From coordinates in the order of BarhatchResult::strokes.
  explicit constexpr Point(const double* c) : x(c[0]), y(c[1]) {}
  double x;  // to the right
  double y;  // upwards
};

// Segments or points in marking order, made from the coordinates one by one.
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

// A place on the part.
struct Rect {
  // From coordinates in the order of BarhatchResult::symbol.
  explicit constexpr Rect(const double* c) : left(c[0]), bottom(c[1]), right(c[2]), top(c[3]) {}
  constexpr double Width() const { return right - left; }   // to the right
  constexpr double Height() const { return top - bottom; }  // upwards
  double left;                                              // its left side
  double bottom;                                            // its lower side
  double right;                                             // its right side
  double top;                                               // its upper side
};

// Bytes that lie one behind the other.
class ByteRange {
 public:
  // Null has none.
  constexpr ByteRange(const std::uint8_t* bytes, std::size_t count)
      : bytes_(bytes), count_(bytes == nullptr ? 0 : count) {}
  constexpr std::size_t size() const { return count_; }                         // how many
  constexpr bool empty() const { return count_ == 0; }                          // none
  constexpr const std::uint8_t* data() const { return bytes_; }                 // null where none
  constexpr const std::uint8_t* begin() const { return bytes_; }                // the first
  constexpr const std::uint8_t* end() const { return bytes_ + count_; }         // behind the last
  constexpr std::uint8_t operator[](std::size_t i) const { return bytes_[i]; }  // i < size()

 private:
  const std::uint8_t* bytes_;
  std::size_t count_;
};

// The modules of a matrix, row by row from the top, or the elements of a linear symbol, which are
// one row; without quiet zone.
class ModuleGrid : public ByteRange {
 public:
  // Rows of columns, each a sum of BarhatchModule.
  constexpr ModuleGrid(const std::uint8_t* modules, std::size_t rows, std::size_t columns)
      : ByteRange(modules, rows * columns), columns_(columns) {}
  // REQUIRES: a row and a column of the symbol, from 0.
  constexpr bool IsDark(std::size_t row, std::size_t column) const {
    return ((*this)[row * columns_ + column] & BARHATCH_DARK) != 0;
  }
  // REQUIRES: likewise.
  constexpr bool IsWide(std::size_t row, std::size_t column) const {
    return ((*this)[row * columns_ + column] & BARHATCH_WIDE) != 0;
  }

 private:
  std::size_t columns_;
};

// The lines of a text, without their line feeds.
class Lines {
 public:
  class Iterator {
   public:
    using iterator_category = std::input_iterator_tag;
    using value_type = std::string_view;
    using difference_type = std::ptrdiff_t;
    using pointer = const std::string_view*;
    using reference = std::string_view;

    explicit constexpr Iterator(std::string_view rest) : rest_(rest) {}
    constexpr std::string_view operator*() const { return rest_.substr(0, rest_.find('\n')); }
    constexpr Iterator& operator++() {
      const std::size_t line = (**this).size();
      rest_.remove_prefix(line < rest_.size() ? line + 1 : line);
      return *this;
    }
    constexpr Iterator operator++(int) {
      const Iterator before = *this;
      ++*this;
      return before;
    }
    friend constexpr bool operator==(Iterator a, Iterator b) {
      return a.rest_.size() == b.rest_.size();
    }
    friend constexpr bool operator!=(Iterator a, Iterator b) { return !(a == b); }

   private:
    std::string_view rest_;
  };

  // A text of lines.
  explicit constexpr Lines(std::string_view text) : text_(text) {}
  constexpr bool empty() const { return text_.empty(); }        // none
  constexpr Iterator begin() const { return Iterator(text_); }  // the first
  constexpr Iterator end() const { return Iterator({}); }       // behind the last
  constexpr std::string_view Text() const { return text_; }     // all of them

 private:
  std::string_view text_;
};

// What became of a job: a mark, or the status, sentence and place of a refusal. It owns what the
// library made and gives it back with its own end. Ranges are not to be had of a result without a
// name, as a loop over Mark(job).Segments() would read what is released already.
class Result {
 public:
  // Makes the mark of a record of the C interface.
  explicit Result(const BarhatchJob& job) noexcept {
    record_.size = sizeof record_;
    record_.status = BarhatchMark(&job, &record_);
  }
  ~Result() { BarhatchRelease(&record_); }
  // What is moved from holds nothing and has the status kBadRecord.
  Result(Result&& other) noexcept : record_(other.record_) { other.Forget(); }
  // Gives back what it owned before.
  Result& operator=(Result&& other) noexcept {
    if (this != &other) {
      BarhatchRelease(&record_);
      record_ = other.record_;
      other.Forget();
    }
    return *this;
  }

  // True for a mark, false for a refusal.
  explicit operator bool() const noexcept { return record_.status == BARHATCH_OK; }
  // Why there is no mark.
  Status status() const noexcept { return static_cast<Status>(record_.status); }
  // A sentence about the refusal or, of a mark, its gravest warning; empty where there is neither.
  // Valid until the result moves.
  std::string_view message() const& noexcept { return record_.message; }
  std::string_view message() const&& = delete;  // of a result that nobody keeps
  std::int32_t position() const noexcept { return record_.position; }  // from 1, in the text; or 0
  std::int32_t extent() const noexcept { return record_.extent; }      // bytes or units there

  // Of the symbology; empty where the job names none.
  std::string_view name() const noexcept { return ViewOf(record_.name); }
  // The characters that the symbology takes, in words.
  std::string_view accepts() const noexcept { return ViewOf(record_.accepts); }
  // What the host should know.
  Set<Warning> warnings() const noexcept { return Set<Warning>::OfBits(record_.warnings); }
  // Bit n is row n, from 0, of the register in docs/deviations.md.
  std::uint64_t deviations() const noexcept { return record_.deviations; }

  std::int32_t rows() const noexcept { return record_.rows; }            // of modules
  std::int32_t columns() const noexcept { return record_.columns; }      // modules, or elements
  std::int32_t codewords() const noexcept { return record_.codewords; }  // of data, without pads
  std::int32_t capacity() const noexcept { return record_.capacity; }    // data codewords, at most
  double xDimension() const noexcept { return record_.x_dimension; }     // width of one module
  double narrowest() const noexcept { return record_.narrowest; }        // width of an element
  Rect symbol() const noexcept { return Rect(record_.symbol); }          // without quiet zone
  Rect total() const noexcept { return Rect(record_.total); }            // with quiet zone
  double markLength() const noexcept { return record_.mark_length; }     // of all strokes
  double jumpLength() const noexcept { return record_.jump_length; }     // from stroke to stroke
  double seconds() const noexcept { return record_.seconds; }            // 0 without speeds

  // True for Pattern::kPoints.
  bool IsPoints() const noexcept { return record_.kind == BARHATCH_DOTS; }
  // The segments; none of a mark of points.
  Strokes<Segment> Segments() const& noexcept { return View<Segment>(!IsPoints()); }
  Strokes<Segment> Segments() const&& = delete;
  // The points; none of a mark of segments.
  Strokes<Point> Points() const& noexcept { return View<Point>(IsPoints()); }
  Strokes<Point> Points() const&& = delete;
  // Dark and light, and in symbologies of two widths wide and narrow.
  ModuleGrid Modules() const& noexcept {
    return {record_.modules, static_cast<std::size_t>(record_.rows),
            static_cast<std::size_t>(record_.columns)};
  }
  ModuleGrid Modules() const&& = delete;
  // Codewords with pads and error correction, or symbol character values.
  ByteRange Values() const& noexcept { return {record_.values, record_.values_count}; }
  ByteRange Values() const&& = delete;
  // The deviations that the mark has met: "D-39-2: what is done; a standard reader sees: ...".
  Lines DeviationLines() const& noexcept { return Lines(ViewOf(record_.deviations_met)); }
  Lines DeviationLines() const&& = delete;
  // The bytes that a standard reader reports; none where it reads nothing.
  std::optional<std::string_view> Reading() const& noexcept {
    if (record_.reading == nullptr) return std::nullopt;
    return std::string_view(record_.reading, record_.reading_length);
  }
  std::optional<std::string_view> Reading() const&& = delete;
  // Text for people, to stand beside a linear symbol.
  std::optional<std::string_view> Hri() const& noexcept {
    if (record_.hri == nullptr) return std::nullopt;
    return std::string_view(record_.hri);
  }
  std::optional<std::string_view> Hri() const&& = delete;
  // The record itself.
  const BarhatchResult& Record() const noexcept { return record_; }

 private:
  static std::string_view ViewOf(const char* text) noexcept {
    return text == nullptr ? std::string_view() : std::string_view(text);
  }

  template <typename Stroke>
  Strokes<Stroke> View(bool isOfThisKind) const noexcept {
    return {record_.strokes, isOfThisKind ? record_.strokes_count : 0};
  }

  // Its block has another owner.
  void Forget() noexcept {
    record_ = {};
    record_.status = BARHATCH_BAD_RECORD;
  }

  BarhatchResult record_{};
};

// A job without a name would take its text along.
BarhatchJob RecordOf(const Job&& job) = delete;
// The record of a job in C. It points to the text of the job, which has to stay.
inline BarhatchJob RecordOf(const Job& job) noexcept {
  BarhatchJob record{};
  record.size = sizeof record;
  record.symbology = static_cast<std::int32_t>(job.symbology);
  record.conformance = static_cast<std::int32_t>(job.conformance);
  record.input = job.text.Input();
  record.text = job.text.Data();
  record.length = job.text.Length();
  record.envelope = static_cast<std::int32_t>(job.envelope);
  record.check = static_cast<std::int32_t>(job.check);
  record.eci = job.eci;
  record.rows = job.rows;
  record.columns = job.columns;
  record.shape = static_cast<std::int32_t>(job.shape);
  record.flags = job.flags.Bits();
  record.addon_gap = job.addonGap;
  record.pattern = static_cast<std::int32_t>(job.pattern);
  record.profile = job.profile;
  record.want = static_cast<std::int32_t>(job.want.Bits());
  record.invert = job.invert ? 1 : 0;
  record.dots_per_module = job.dotsPerModule;
  record.order = static_cast<std::int32_t>(job.order);
  record.x_dimension = job.xDimension;
  record.width = job.width;
  record.height = job.height;
  record.ratio = job.ratio;
  record.quiet = job.quiet;
  record.units_per_mm = job.unitsPerMm;
  record.gap = job.gap;
  record.beam_x = job.beamX;
  record.beam_y = job.beamY;
  record.growth_x = job.growthX;
  record.growth_y = job.growthY;
  record.dot = job.dot;
  record.mark_speed = job.markSpeed;
  record.jump_speed = job.jumpSpeed;
  record.stroke_delay = job.strokeDelay;
  record.jump_delay = job.jumpDelay;
  record.radius = job.radius;
  record.tolerance = job.tolerance;
  record.part = job.part;
  record.parts = job.parts;
  record.part_id = job.partId;
  record.allocate = job.memory.allocate;
  record.release = job.memory.release;
  record.context = job.memory.context;
  return record;
}

// Makes a mark. The job is read during the call only.
inline Result Mark(const Job& job) noexcept { return Result(RecordOf(job)); }

// BARHATCH_VERSION of the library, which may be newer than that of the header.
inline std::string_view Version() noexcept { return BarhatchVersion(); }

}  // namespace host
}  // namespace barhatch

#endif
