#include "support/DataMatrixReader.h"

#include <cstddef>

namespace barhatch::test {

namespace {

enum class Scheme { kAscii, kC40, kText, kX12, kEdifact, kBase256, kEnd };

class Reader {
 public:
  explicit Reader(const std::vector<int>& codewords) : codewords_(codewords) {}

  Reading Read() {
    Scheme scheme = Scheme::kAscii;
    while (scheme != Scheme::kEnd && Left() > 0 && reading_.isSound) {
      switch (scheme) {
        case Scheme::kC40:
        case Scheme::kText:
          ReadC40OrText(scheme == Scheme::kC40);
          break;
        case Scheme::kX12:
          ReadX12();
          break;
        case Scheme::kEdifact:
          ReadEdifact();
          break;
        case Scheme::kBase256:
          ReadBase256();
          break;
        default:
          break;
      }
      scheme = Left() > 0 && reading_.isSound ? ReadAscii() : Scheme::kEnd;
    }
    return reading_;
  }

 private:
  std::size_t Left() const { return codewords_.size() - next_; }
  int Next() { return codewords_[next_++]; }
  void Report(int item) { reading_.items.push_back(item); }
  void Break() { reading_.isSound = false; }

  // Up to the next latch, which is returned.
  Scheme ReadAscii() {
    while (Left() > 0 && reading_.isSound) {
      const int codeword = Next();
      if (codeword == 129) return Scheme::kEnd;
      if (codeword == 230) return Scheme::kC40;
      if (codeword == 231) {
        if (Left() == 0) Break();  // its length is missing
        return Scheme::kBase256;
      }
      if (codeword == 238) return Scheme::kX12;
      if (codeword == 239) return Scheme::kText;
      if (codeword == 240) return Scheme::kEdifact;
      ReadAsciiCodeword(codeword);
    }
    return Scheme::kEnd;
  }

  void ReadAsciiCodeword(int codeword) {
    const bool isFirst = next_ == 1;
    if (codeword >= 1 && codeword <= 128) {
      Report(codeword - 1);
    } else if (codeword >= 130 && codeword <= 229) {
      Report('0' + (codeword - 130) / 10);
      Report('0' + (codeword - 130) % 10);
    } else if (codeword == 232) {
      Report(kReadFnc1);
    } else if (codeword == 235 && Left() > 0 && codewords_[next_] >= 1 &&
               codewords_[next_] <= 128) {
      Report(128 + Next() - 1);
    } else if (codeword == 236 && isFirst) {
      Report(kReadMacro05);
    } else if (codeword == 237 && isFirst) {
      Report(kReadMacro06);
    } else if (codeword == 233 && isFirst && Left() >= 3) {
      const int place = Next();
      const int first = Next();
      Report(ReadStructuredAppend(place, first, Next()));
    } else if (codeword == 234 && isFirst) {
      Report(kReadReaderProgramming);
    } else if (codeword == 241) {
      ReadDesignator();
    } else if (codeword != 254 || Left() > 0) {
      Break();
    }
  }

  void ReadDesignator() {
    const int c1 = Left() > 0 ? Next() : 0;
    const std::size_t more = c1 <= 127 ? 0 : c1 <= 191 ? 1 : 2;
    if (c1 < 1 || c1 > 207 || Left() < more) return Break();
    const int c2 = more > 0 ? Next() : 0;
    const int c3 = more > 1 ? Next() : 0;
    if (more == 0) Report(ReadEci(c1 - 1));
    if (more == 1) Report(ReadEci((c1 - 128) * 254 + (c2 - 1) + 127));
    if (more == 2) Report(ReadEci((c1 - 192) * 64516 + (c2 - 1) * 254 + (c3 - 1) + 16383));
  }

  // The three values of the next two codewords; false at an unlatch, explicit or implied.
  bool NextTriple(int (&values)[3]) {
    if (Left() < 2) return false;
    const int high = Next();
    if (high == 254) return false;
    const int packed = high * 256 + Next() - 1;
    if (packed < 0 || packed >= 40 * 40 * 40) {
      Break();
      return false;
    }
    values[0] = packed / 1600;
    values[1] = packed / 40 % 40;
    values[2] = packed % 40;
    return true;
  }

  void ReadC40OrText(bool isC40) {
    shift_ = 0;
    upper_ = 0;
    int values[3];
    while (reading_.isSound && NextTriple(values)) {
      for (const int value : values) {
        if (reading_.isSound) ReadC40OrTextValue(value, isC40);
      }
    }
  }

  void ReportShifted(int character) {
    Report(character + upper_);
    shift_ = 0;
    upper_ = 0;
  }

  void ReadC40OrTextValue(int value, bool isC40) {
    const char firstLetter = isC40 ? 'A' : 'a';
    if (shift_ == 0) {
      if (value < 3) {
        shift_ = value + 1;
      } else if (value == 3) {
        ReportShifted(' ');
      } else {
        ReportShifted(value < 14 ? '0' + value - 4 : firstLetter + value - 14);
      }
    } else if (shift_ == 1) {
      if (value > 31) return Break();
      ReportShifted(value);
    } else if (shift_ == 2) {
      ReadShift2Value(value);
    } else {
      ReadShift3Value(value, isC40);
    }
  }

  void ReadShift2Value(int value) {
    const char* const signs = "!\"#$%&'()*+,-./:;<=>?@[\\]^_";
    if (value < 27) return ReportShifted(signs[value]);
    shift_ = 0;
    if (upper_ != 0 || (value != 27 && value != 30)) return Break();  // no upper FNC1
    if (value == 27) return Report(kReadFnc1);
    upper_ = 128;
  }

  void ReadShift3Value(int value, bool isC40) {
    if (value > 31) return Break();
    if (isC40) return ReportShifted(96 + value);
    if (value == 0) return ReportShifted('`');
    ReportShifted(value <= 26 ? 'A' + value - 1 : '{' + value - 27);
  }

  void ReadX12() {
    int values[3];
    while (reading_.isSound && NextTriple(values)) {
      for (const int value : values) {
        const char signs[] = {'\r', '*', '>', ' '};
        Report(value < 4 ? signs[value] : value < 14 ? '0' + value - 4 : 'A' + value - 14);
      }
    }
  }

  // Four values of six bits in three codewords; the value 31 ends the scheme at the end of the
  // codeword that its last bit is in.
  void ReadEdifact() {
    while (Left() > 2) {
      const std::size_t group = next_;
      const int bits = codewords_[group] << 16 | codewords_[group + 1] << 8 | codewords_[group + 2];
      for (int i = 0; i < 4; ++i) {
        next_ = group + static_cast<std::size_t>((6 * (i + 1) + 7) / 8);
        const int value = bits >> (18 - 6 * i) & 0x3F;
        if (value == 31) return;
        Report(value < 32 ? value + 64 : value);
      }
    }
  }

  int Unrandomised(std::size_t position) const {
    const int pseudo = static_cast<int>(149 * (position + 1) % 255) + 1;
    const int value = codewords_[position] - pseudo;
    return value >= 0 ? value : value + 256;
  }

  void ReadBase256() {
    std::size_t length = static_cast<std::size_t>(Unrandomised(next_++));
    if (length == 0) {
      length = Left();
    } else if (length >= 250 && Left() > 0) {
      length = (length - 249) * 250 + static_cast<std::size_t>(Unrandomised(next_++));
    }
    if (length > Left()) return Break();
    for (; length > 0; --length) Report(Unrandomised(next_++));
  }

  const std::vector<int>& codewords_;
  std::size_t next_ = 0;
  Reading reading_;
  int shift_ = 0;
  int upper_ = 0;
};

}  // namespace

Reading ReadDataCodewords(const std::vector<int>& codewords) { return Reader(codewords).Read(); }

std::vector<int> ItemsOf(const std::string& bytes) {
  std::vector<int> items;
  for (const char byte : bytes) items.push_back(static_cast<unsigned char>(byte));
  return items;
}

std::vector<int> Padded(std::vector<int> codewords, int capacity) {
  const std::size_t count = codewords.size();
  while (static_cast<int>(codewords.size()) < capacity) {
    const int position = static_cast<int>(codewords.size()) + 1;
    int pad = 129;
    if (codewords.size() > count) {
      pad += 149 * position % 253 + 1;
      if (pad > 254) pad -= 254;
    }
    codewords.push_back(pad);
  }
  return codewords;
}

}  // namespace barhatch::test
