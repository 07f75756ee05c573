#include "support/EncodationSearch.h"

#include <algorithm>
#include <cstddef>

#include "support/DataMatrixReader.h"

namespace barhatch::test {

namespace {

enum Scheme { kAscii, kC40, kText, kX12, kEdifact, kBase256, kSchemes };

bool IsDigit(int item) { return item >= '0' && item <= '9'; }
bool IsIn(int item, int first, int last) { return item >= first && item <= last; }
bool IsEci(int item) { return item >= ReadEci(0); }

int AsciiCost(int item) {
  if (item == kReadFnc1) return 1;
  if (IsEci(item)) return item <= ReadEci(126) ? 2 : item <= ReadEci(16382) ? 3 : 4;
  return item < 128 ? 1 : 2;
}

// 0: not in the scheme.
int Values(Scheme scheme, int item) {
  if (item == kReadFnc1) return scheme == kC40 || scheme == kText ? 2 : 0;
  if (IsEci(item)) return 0;
  const bool isBasic = item == ' ' || IsDigit(item);
  switch (scheme) {
    case kX12:
      return isBasic || IsIn(item, 'A', 'Z') || item == '\r' || item == '*' || item == '>' ? 1 : 0;
    case kEdifact:
      return IsIn(item, 32, 94) ? 1 : 0;
    case kBase256:
      return 1;
    default:
      break;
  }
  if (item >= 128) return 2 + Values(scheme, item - 128);
  const bool isLetter = scheme == kC40 ? IsIn(item, 'A', 'Z') : IsIn(item, 'a', 'z');
  return isBasic || isLetter ? 1 : 2;
}

// What is known on the way: the scheme, what waits in it (of Base 256 the bytes of the run), and
// the codewords so far.
struct Standing {
  int scheme;
  int waiting;
  int used;
};

class Search {
 public:
  Search(const std::vector<int>& items, int capacity, LastCodeword last)
      : items_(items),
        capacity_(capacity),
        last_(last),
        mostWaiting_(std::max(4, static_cast<int>(items.size()) + 1)),
        reached_((items.size() + 1) * Index({kSchemes, 0, 0})) {}

  bool Run() {
    Stand(0, {kAscii, 0, 0});
    for (std::size_t place = 0; place <= items_.size(); ++place) {
      // There and back, and there once more.
      for (int round = 0; round < 3; ++round) {
        ForEach(place, [&](const Standing& s) { Change(place, s); });
      }
      bool ends = false;
      ForEach(place, [&](const Standing& s) {
        ends = ends || Ends(place, s);
        Take(place, s);
      });
      if (ends) return true;
    }
    return false;
  }

 private:
  int Left(const Standing& standing) const { return capacity_ - standing.used; }

  std::size_t Index(const Standing& s) const {
    const int perScheme = mostWaiting_ * (capacity_ + 1);
    return static_cast<std::size_t>(s.scheme * perScheme + s.waiting * (capacity_ + 1) + s.used);
  }

  void Stand(std::size_t place, const Standing& s) {
    if (s.used <= capacity_) reached_[place * Index({kSchemes, 0, 0}) + Index(s)] = 1;
  }

  template <typename Function>
  void ForEach(std::size_t place, const Function& function) {
    const char* next = &reached_[place * Index({kSchemes, 0, 0})];
    for (int scheme = 0; scheme < kSchemes; ++scheme) {
      for (int waiting = 0; waiting < mostWaiting_; ++waiting) {
        for (int used = 0; used <= capacity_; ++used) {
          if (*next++ != 0) function(Standing{scheme, waiting, used});
        }
      }
    }
  }

  void Change(std::size_t place, const Standing& s) {
    switch (s.scheme) {
      case kAscii:
        for (const int scheme : {kC40, kText, kX12, kEdifact})
          Stand(place, {scheme, 0, s.used + 1});
        return Stand(place, {kBase256, 0, s.used + 2});
      case kEdifact:
        // In the last two codewords of a symbol readers are in ASCII by themselves.
        if (Left(s) <= 2) return;
        return Stand(place, {kAscii, 0, s.used + (s.waiting < 3 ? s.waiting + 1 : 3)});
      case kBase256:
        if (s.waiting > 0) Stand(place, {kAscii, 0, s.used + (s.waiting > 249 ? 1 : 0)});
        return;
      default:
        if (s.waiting == 0) Stand(place, {kAscii, 0, s.used + 1});
        return;
    }
  }

  void Take(std::size_t place, const Standing& s) {
    if (place == items_.size()) return;
    const int item = items_[place];
    if (s.scheme == kAscii) {
      Stand(place + 1, {kAscii, 0, s.used + AsciiCost(item)});
      if (IsPairAt(place)) Stand(place + 2, {kAscii, 0, s.used + 1});
      return;
    }
    int waiting = s.waiting + Values(static_cast<Scheme>(s.scheme), item);
    if (waiting == s.waiting) return;
    if (s.scheme == kBase256) return Stand(place + 1, {kBase256, waiting, s.used + 1});
    const int group = s.scheme == kEdifact ? 4 : 3;
    const int codewords = (group - 1) * (waiting / group);
    Stand(place + 1, {s.scheme, waiting % group, s.used + codewords});
  }

  bool IsPairAt(std::size_t place) const {
    return place + 1 < items_.size() && IsDigit(items_[place]) && IsDigit(items_[place + 1]);
  }

  int AsciiCostFrom(std::size_t place) const {
    int cost = 0;
    for (; place < items_.size(); ++place) {
      cost += AsciiCost(items_[place]);
      if (IsPairAt(place)) ++place;
    }
    return cost;
  }

  bool Ends(std::size_t place, const Standing& s) const {
    const std::size_t rest = items_.size() - place;
    switch (s.scheme) {
      case kAscii:
        return rest == 0;
      case kEdifact:
        return s.waiting == 0 && Left(s) <= 2 && AsciiCostFrom(place) <= Left(s);
      case kBase256:  // the length, or 0 for the whole rest of the symbol
        if (rest > 0 || s.waiting == 0) return false;
        return Left(s) == 0 || s.used + (s.waiting > 249 ? 1 : 0) <= capacity_;
      default:
        break;
    }
    if (rest == 0 && s.waiting == 0 && Left(s) == 0) return true;
    if (rest == 0 && s.waiting == 2 && s.scheme != kX12 && Left(s) == 2) return true;
    return s.waiting == 0 && Left(s) == 1 && rest > 0 && MayBeLastCodeword(place, s.scheme);
  }

  bool MayBeLastCodeword(std::size_t place, int scheme) const {
    const bool areBytes = items_[place] < 256 && items_.back() < 256;
    if (!areBytes || AsciiCostFrom(place) != 1) return false;
    if (last_ == LastCodeword::kLoose) return true;
    return place + 1 == items_.size() && Values(static_cast<Scheme>(scheme), items_[place]) == 1;
  }

  const std::vector<int>& items_;
  const int capacity_;
  const LastCodeword last_;
  const int mostWaiting_;
  std::vector<char> reached_;  // by place and standing
};

}  // namespace

bool Fits(const std::vector<int>& items, int capacity, LastCodeword last) {
  return Search(items, capacity, last).Run();
}

int LeastCapacity(const std::vector<int>& items, LastCodeword last) {
  int capacity = 0;
  while (!Fits(items, capacity, last)) ++capacity;
  return capacity;
}

}  // namespace barhatch::test
