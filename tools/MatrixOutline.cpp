#include "MatrixOutline.h"

#include <algorithm>
#include <string>
#include <vector>

#include "MatrixModes.h"

namespace preview {

namespace {

constexpr std::size_t kTriple = 3;
constexpr std::size_t kEdifactGroup = 4;

class Outliner {
 public:
  explicit Outliner(const BarcodeText& text)
      : units_(text.units), format_(text.format), request_(RequestOf(text)) {
    for (const char16_t unit : units_) bytes_ += static_cast<char>(unit & 0xFF);
  }

  MatrixOutline Outline() {
    if (format_ == 2 || format_ == 3) ++codewords_;
    while (position_ < units_.size() && codewords_ <= kMostDataCodewords) {
      WriteFnc1WhereSecond();
      WriteStretch();
    }
    WriteFnc1WhereSecond();
    Conclude();
    return outline_;
  }

 private:
  void Meet(std::size_t departure) { outline_.met.set(departure); }
  bool IsDesignator(std::size_t at) const { return units_[at] > 255; }
  bool IsDigit(std::size_t at) const { return units_[at] >= u'0' && units_[at] <= u'9'; }
  int CapacityFor(int codewords) const {
    const std::optional<MatrixSize> size = ChooseMatrixSize(codewords, request_);
    return size ? size->dataCodewords : 0;
  }

  void WriteFnc1WhereSecond() {
    if (format_ != 1 || codewords_ != 1) return;
    ++codewords_;
    hasFnc1_ = true;
    if (mode_ != MatrixMode::kAscii) Meet(6);
  }

  void WriteStretch() {
    if (IsDesignator(position_)) {
      codewords_ += units_[position_++] < 16383 ? 3 : 4;
    } else if (mode_ == MatrixMode::kAscii) {
      WriteAscii();
    } else if (mode_ == MatrixMode::kEdifact) {
      WriteEdifact();
    } else {
      WriteTriples();
    }
  }

  MatrixMode Ask(std::size_t at) {
    Meet(2);
    return LookAhead(bytes_, at, mode_);
  }

  bool IsDigitPair(std::size_t at, std::size_t end) const {
    return at + 1 < end && IsDigit(at) && IsDigit(at + 1);
  }

  void Latch(MatrixMode mode) {
    if (mode != MatrixMode::kAscii) ++codewords_;
    mode_ = mode;
  }

  void WriteAscii() {
    const bool isPair = IsDigitPair(position_, units_.size());
    const MatrixMode mode = isPair ? MatrixMode::kAscii : Ask(position_);
    if (mode != MatrixMode::kAscii) return Latch(mode);
    WriteAsciiUntil(position_ + (isPair ? 2 : 1));
  }

  void WriteAsciiUntil(std::size_t end) {
    for (std::size_t i = position_; i < end; ++i) {
      if (units_[i] > 128) Meet(3);
      if (units_[i] == 128) Meet(4);
    }
    codewords_ += AsciiCodewords(position_, end);
    position_ = end;
  }

  int AsciiCodewords(std::size_t begin, std::size_t end) const {
    int count = 0;
    for (std::size_t i = begin; i < end; ++i) {
      const bool isPair = IsDigitPair(i, end);
      count += units_[i] < 128 ? 1 : units_[i] > 128 ? 2 : 0;
      if (isPair) ++i;
    }
    return count;
  }

  // Characters from here to the next designator or the end, so many at most.
  std::size_t DataAhead(std::size_t at, std::size_t limit) const {
    std::size_t ahead = 0;
    while (ahead < limit && at + ahead < units_.size() && !IsDesignator(at + ahead)) ++ahead;
    return ahead;
  }

  // After a group: characters remain, and no designator stands among the next so many.
  bool GoesOn(std::size_t at, std::size_t group) const {
    const std::size_t next = std::min(units_.size() - at, group);
    return next > 0 && DataAhead(at, group) == next;
  }

  void Unlatch() {
    if (mode_ == MatrixMode::kEdifact) edifactUnlatches_.push_back(codewords_);
    ++codewords_;
  }

  void WriteEdifact() {
    while (DataAhead(position_, kEdifactGroup) == kEdifactGroup) {
      for (const std::size_t end = position_ + kEdifactGroup; position_ < end; ++position_) {
        if (units_[position_] < u' ' || units_[position_] > u'^') Meet(9);
      }
      codewords_ += 3;
      const MatrixMode mode = GoesOn(position_, kEdifactGroup) ? Ask(position_) : mode_;
      if (mode == mode_) continue;
      Unlatch();
      return Latch(mode);
    }
    EndStretch(position_ + DataAhead(position_, kEdifactGroup));
  }

  std::size_t ValuesBetween(std::size_t begin, std::size_t end) const {
    std::size_t values = 0;
    for (std::size_t i = begin; i < end; ++i) values += ValueCount(mode_, bytes_[i]);
    return values;
  }

  // The last place where the values fill their codewords or lack one that a pad stands for.
  std::size_t LastPlaceToLeave(std::size_t end) const {
    std::size_t values = ValuesBetween(position_, end);
    while (values % 3 == 1) values -= ValueCount(mode_, bytes_[--end]);
    return end;
  }

  void PackUntil(std::size_t end) {
    codewords_ += static_cast<int>((ValuesBetween(position_, end) + 1) / 3 * 2);
    position_ = end;
  }

  bool HasX12Group(std::size_t at) const {
    for (std::size_t i = at; i < at + kTriple; ++i) {
      if (ValueCount(MatrixMode::kX12, bytes_[i]) == 0) return false;
    }
    return true;
  }

  void WriteTriples() {
    std::size_t end = position_;
    while (DataAhead(end, kTriple) == kTriple) {
      if (mode_ == MatrixMode::kX12 && !HasX12Group(end)) return LeaveX12(end);
      end += kTriple;
      const MatrixMode mode = GoesOn(end, kTriple) ? Ask(end) : mode_;
      if (mode != mode_) return LeaveTriples(end, mode);
    }
    const std::size_t restEnd = end + DataAhead(end, kTriple);
    if (restEnd == units_.size() && Finishes(end)) return PackUntil(restEnd);
    // A last character that would leave values over ends the text in ASCII.
    if (restEnd == units_.size()) codewordsByTheBook_ = CodewordsByTheBook();
    const bool isWhole = end == restEnd && restEnd == units_.size();
    if (isWhole && ValuesBetween(position_, end) % 3 != 0) --end;
    PackUntil(LastPlaceToLeave(end));
    EndStretch(restEnd);
  }

  // One or two characters behind the groups whose values fill the symbol, with those left over.
  bool Finishes(std::size_t end) const {
    if (mode_ == MatrixMode::kX12 || end == units_.size()) return false;
    const std::size_t last = ValuesBetween(position_, end) % 3 + ValuesBetween(end, units_.size());
    return (last == 2 || last == 3) && CapacityFor(CodewordsByTheBook()) == CodewordsByTheBook();
  }

  // Of a symbol that the rest of the text, all of it in this mode, fills without an unlatch; -1
  // where it could fill none.
  int CodewordsByTheBook() const {
    for (std::size_t i = position_; i < units_.size(); ++i) {
      if (ValueCount(mode_, bytes_[i]) == 0) return -1;
    }
    const std::size_t values = ValuesBetween(position_, units_.size());
    const int whole = codewords_ + static_cast<int>(values / 3 * 2);
    if (values % 3 == 0) return whole;
    if (values % 3 == 2) return mode_ == MatrixMode::kX12 ? -1 : whole + 2;
    return ValueCount(mode_, bytes_.back()) == 1 ? whole + 1 : -1;
  }

  void LeaveTriples(std::size_t end, MatrixMode mode) {
    const bool isWhole = ValuesBetween(position_, end) % 3 == 0;
    PackUntil(LastPlaceToLeave(end));
    if (isWhole && IsOneBelowSquare()) {
      Meet(7);
    } else {
      Unlatch();
    }
    WriteAsciiUntil(end);
    Latch(mode);
  }

  void LeaveX12(std::size_t end) {
    PackUntil(end);
    Unlatch();
    WriteAsciiUntil(end + kTriple);
    mode_ = MatrixMode::kAscii;
  }

  bool IsOneBelowSquare() const { return NextSquareCapacity(codewords_) == codewords_ + 1; }

  // The rest of the text, or what stands in front of a designator, goes on in ASCII.
  void EndStretch(std::size_t restEnd) {
    if (restEnd == units_.size() && position_ == restEnd) return EndWithGroup();
    if (restEnd < units_.size() || !IsUnlatchImplied()) {
      Unlatch();
      isUnlatchedForRest_ = restEnd == units_.size();
    }
    WriteAsciiUntil(restEnd);
    mode_ = MatrixMode::kAscii;
  }

  void EndWithGroup() {
    modeAtEnd_ = mode_;
    codewordsAtEnd_ = codewords_;
    isUnlatchedAtEnd_ = !IsOneBelowSquare();
    if (isUnlatchedAtEnd_) Unlatch();
    mode_ = MatrixMode::kAscii;
  }

  bool IsUnlatchImplied() const {
    const int rest = AsciiCodewords(position_, units_.size());
    const int capacity = CapacityFor(codewords_ + rest);
    if (mode_ == MatrixMode::kEdifact) return capacity != 0 && capacity - codewords_ <= 2;
    return units_.size() - position_ == 1 && rest == 1 && capacity == codewords_ + 1;
  }

  void Conclude() {
    outline_.codewords = codewords_;
    if (codewords_ <= kMostDataCodewords) outline_.size = ChooseMatrixSize(codewords_, request_);
    if (!outline_.size) {
      outline_.met.reset();
      return;
    }
    const int capacity = outline_.size->dataCodewords;
    if (outline_.size->rows == 144) Meet(1);
    if (format_ == 1 && !hasFnc1_ && codewords_ > 0) Meet(6);
    for (const int at : edifactUnlatches_) {
      if (capacity - at <= 2) Meet(10);
    }
    if (codewordsAtEnd_ >= 0) ConcludeGroupAtEnd(capacity);
    if (isUnlatchedForRest_ && codewordsByTheBook_ >= 0 &&
        CapacityFor(codewordsByTheBook_) == codewordsByTheBook_) {
      Meet(8);
    }
  }

  void ConcludeGroupAtEnd(int capacity) {
    const int mayStay = modeAtEnd_ == MatrixMode::kEdifact ? 2 : 1;
    if (!isUnlatchedAtEnd_ && capacity - codewordsAtEnd_ > mayStay) Meet(7);
    const bool wouldHaveFilled = CapacityFor(codewordsAtEnd_) == codewordsAtEnd_;
    if (isUnlatchedAtEnd_ && (wouldHaveFilled || capacity == codewords_)) Meet(8);
  }

  const std::u16string& units_;
  std::string bytes_;
  int format_;
  MatrixRequest request_;
  std::size_t position_ = 0;
  MatrixMode mode_ = MatrixMode::kAscii;
  int codewords_ = 0;
  bool hasFnc1_ = false;
  std::vector<int> edifactUnlatches_;  // codewords in front of each
  MatrixMode modeAtEnd_ = MatrixMode::kAscii;
  int codewordsAtEnd_ = -1;  // where the text ends with a whole group: before its unlatch
  bool isUnlatchedAtEnd_ = false;
  int codewordsByTheBook_ = -1;  // where the text ends in C40, Text or X12
  bool isUnlatchedForRest_ = false;
  MatrixOutline outline_;
};

}  // namespace

MatrixRequest RequestOf(const BarcodeText& text) {
  return {text.matrixSize >> 8 & 0xFF, text.matrixSize & 0xFF, text.expand};
}

MatrixOutline OutlineOf(const BarcodeText& text) { return Outliner(text).Outline(); }

}  // namespace preview
