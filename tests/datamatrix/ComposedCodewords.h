// Data codewords that keep the standard, put together mode by mode from random characters: what an
// encoder may write, whether ours does or not.
#ifndef BARHATCH_TESTS_DATAMATRIX_COMPOSEDCODEWORDS_H
#define BARHATCH_TESTS_DATAMATRIX_COMPOSEDCODEWORDS_H

#include <cstddef>
#include <random>
#include <vector>

namespace barhatch::test {

class Composer {
 public:
  explicit Composer(unsigned seed) : random_(seed) {}

  std::size_t Below(int limit) { return random_() % static_cast<unsigned>(limit); }

  std::vector<int> Compose() {
    codewords_.clear();
    if (Below(6) == 0) Put(236 + Pick(2));
    for (int parts = 1 + Pick(5); parts > 0; --parts) AddPart();
    return codewords_;
  }

 private:
  int Pick(int limit) { return static_cast<int>(Below(limit)); }
  void Put(int codeword) { codewords_.push_back(codeword); }

  void AddPart() {
    switch (Pick(9)) {
      case 0:
        return AddDesignator();
      case 1:
        return Put(232);
      case 2:
        return AddShiftedSets(230);
      case 3:
        return AddShiftedSets(239);
      case 4:
        return AddX12();
      case 5:
        return AddEdifact();
      case 6:
        return AddBase256();
      default:
        for (int count = 1 + Pick(6); count > 0; --count) AddAscii();
    }
  }

  void AddAscii() {
    const int kind = Pick(5);
    if (kind == 0) Put(235);
    Put(kind == 1 ? 130 + Pick(100) : 1 + Pick(128));
  }

  void AddDesignator() {
    Put(241);
    const int kind = Pick(3);
    if (kind == 0) return Put(1 + Pick(127));
    Put(kind == 1 ? 128 + Pick(64) : 192);  // a number that readers know what to do with
    for (int i = 0; i < kind; ++i) Put(1 + Pick(254));
  }

  void PutTriple(const std::vector<int>& values) {
    const int packed = 1600 * values[0] + 40 * values[1] + values[2] + 1;
    Put(packed / 256);
    Put(packed % 256);
  }

  // Values of whole characters, filled up with shifts that shift nothing.
  void AddShiftedSets(int latch) {
    std::vector<int> values;
    for (int count = 1 + Pick(8); count > 0; --count) AddShiftedCharacter(values);
    while (values.size() % 3 != 0) values.push_back(Pick(3));
    Put(latch);
    for (std::size_t i = 0; i < values.size(); i += 3)
      PutTriple({values[i], values[i + 1], values[i + 2]});
    Put(254);
  }

  void AddShiftedCharacter(std::vector<int>& values) {
    const bool isUpper = Pick(6) == 0;
    if (isUpper) values.insert(values.end(), {1, 30});
    const int set = Pick(4);
    if (set < 3) values.push_back(set);
    values.push_back(set == 3   ? 3 + Pick(37)
                     : set == 1 ? Pick(isUpper ? 27 : 28)  // 27 is FNC1
                                : Pick(32));
  }

  void AddX12() {
    Put(238);
    for (int count = 1 + Pick(4); count > 0; --count) PutTriple({Pick(40), Pick(40), Pick(40)});
    Put(254);
  }

  // The unlatch at any place of the last group.
  void AddEdifact() {
    std::vector<int> values;
    for (int count = Pick(9); count > 0; --count) values.push_back((32 + Pick(63)) & 63);
    values.push_back(31);
    const std::size_t used = (6 * values.size() + 7) / 8;
    while (values.size() % 4 != 0) values.push_back(0);
    std::vector<int> packed;
    for (std::size_t i = 0; i < values.size(); i += 4) {
      const int bits = values[i] << 18 | values[i + 1] << 12 | values[i + 2] << 6 | values[i + 3];
      packed.insert(packed.end(), {bits >> 16, bits >> 8 & 255, bits & 255});
    }
    Put(240);
    for (std::size_t i = 0; i < used; ++i) Put(packed[i]);
    for (int count = 0; count < 3; ++count)
      Put(1 + Pick(128));  // the end of the symbol is not near
  }

  void AddBase256() {
    Put(231);
    const int length = Pick(12) == 0 ? 250 + Pick(60) : 1 + Pick(20);
    if (length >= 250) PutRandomised(length / 250 + 249);
    PutRandomised(length % 250);
    for (int i = 0; i < length; ++i) PutRandomised(Pick(256));
  }

  void PutRandomised(int value) {
    const int position = static_cast<int>(codewords_.size()) + 1;
    Put((value + 149 * position % 255 + 1) % 256);
  }

  std::mt19937 random_;
  std::vector<int> codewords_;
};

}  // namespace barhatch::test

#endif
