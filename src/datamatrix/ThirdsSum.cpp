#include "datamatrix/ThirdsSum.h"

#include <cassert>

namespace barhatch {

namespace {

// Indexed by weight in thirds.
constexpr double kWeights[] = {0, 0, 2.0 / 3, 0, 4.0 / 3, 0, 0, 0, 0, 0, 10.0 / 3};

// REQUIRES: neither the sum nor the result nor any step between them reaches the next power of two.
double AddManyTimes(double sum, double weight, int times) {
  if (times == 0) return sum;
  const double rounded = (sum + weight) - sum;
  return sum + rounded * times;
}

}  // namespace

void ThirdsSum::Count(Tally& tally, std::size_t index, int sign) {
  ++work_;
  const int thirds = ThirdsAt(index);
  std::uint16_t& count = thirds == 2 ? tally.singles : thirds == 4 ? tally.doubles : tally.leaves;
  // cppcheck-suppress danglingTempReference ; both branches are members of the tally
  count = static_cast<std::uint16_t>(count + sign);
}

void ThirdsSum::MoveBegin(Pass& pass, std::size_t position) {
  assert(position <= pass.end);
  for (std::size_t i = pass.begin; i < position; ++i) Count(pass.tally, i, -1);
  pass.begin = static_cast<std::uint16_t>(position);
}

void ThirdsSum::MoveEnd(Pass& pass, int limitThirds) {
  while (pass.end < length_ && pass.tally.Thirds() <= limitThirds) Count(pass.tally, pass.end++, 1);
  while (pass.end > pass.begin && pass.tally.Thirds() - ThirdsAt(pass.end - 1u) > limitThirds) {
    Count(pass.tally, --pass.end, -1);
  }
}

double ThirdsSum::AddOneByOne(double sum, std::size_t begin, std::size_t end) {
  for (std::size_t i = begin; i < end; ++i) {
    ++work_;
    sum += kWeights[ThirdsAt(i)];
  }
  return sum;
}

// A pass that lags behind the one before it starts from there.
const ThirdsSum::Pass& ThirdsSum::MovePass(int power, std::size_t position, int start,
                                           const Pass& before) {
  Pass& pass = passes_[power - kFirstPower];
  if (pass.end < before.end) pass = before;
  MoveBegin(pass, position);
  MoveEnd(pass, 3 * ((1 << power) - start));
  return pass;
}

// From the end of one pass to that of the next: all but the last two characters stay below the next
// power of two, the last but one may meet it.
double ThirdsSum::AddBetween(double sum, const Pass& from, const Pass& to) {
  if (from.end + 2 >= to.end) return AddOneByOne(sum, from.end, to.end);
  Tally tally = to.tally;
  Count(tally, to.end - 1u, -1);
  Count(tally, to.end - 2u, -1);
  sum = AddManyTimes(sum, kWeights[2], tally.singles - from.tally.singles);
  sum = AddManyTimes(sum, kWeights[4], tally.doubles - from.tally.doubles);
  sum = AddManyTimes(sum, kWeights[10], tally.leaves - from.tally.leaves);
  return AddOneByOne(sum, to.end - 2u, to.end);
}

bool ThirdsSum::ExceedsExactSum(std::size_t position, int start) {
  Pass done;
  done.begin = done.end = static_cast<std::uint16_t>(position);
  done = MovePass(kFirstPower, position, start, done);
  double sum = AddOneByOne(start, position, done.end);
  for (int power = kFirstPower + 1; done.end < length_; ++power) {
    const Pass& next = MovePass(power, position, start, done);
    sum = AddBetween(sum, done, next);
    done = next;
  }
  const int exactSum = (3 * start + done.tally.Thirds()) / 3;
  return sum > exactSum;
}

}  // namespace barhatch
