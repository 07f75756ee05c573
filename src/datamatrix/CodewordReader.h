// The codewords of a Data Matrix read one after the other, by the book of ISO/IEC 16022: what
// MatrixReading.h reports and TextProof.h compares. Nothing is taken from the encoder.
//
// An Output takes what is read, in the order in which it stands:
//   Write(byte)                a byte, 0..255
//   WriteFnc1(tellsReader)     FNC1; true for the first and the second codeword
//   Designate(number)          ECI
//   BeginMacro(format)         5 or 6, in front of all bytes; EndMacro() behind them
//   SetProgramming()           reader programming
//   SetStructure(place, high, low)   structured append, its three codewords
#ifndef BARHATCH_DATAMATRIX_CODEWORDREADER_H
#define BARHATCH_DATAMATRIX_CODEWORDREADER_H

#include <cstddef>
#include <cstdint>

namespace barhatch {

namespace reading {

enum Codeword {
  kLastAscii = 128,
  kPad = 129,
  kFirstPair = 130,
  kLastPair = 229,
  kLatchC40 = 230,
  kLatchBase256 = 231,
  kFnc1 = 232,
  kStructuredAppend = 233,
  kReaderProgramming = 234,
  kUpperShift = 235,
  kMacro05 = 236,
  kMacro06 = 237,
  kLatchX12 = 238,
  kLatchText = 239,
  kLatchEdifact = 240,
  kEci = 241,
  kUnlatch = 254,
};

// ISO/IEC 16022, C40 and Text, the set of shift 2: its values from 0.
constexpr char kShift2Signs[] = "!\"#$%&'()*+,-./:;<=>?@[\\]^_";
constexpr int kShift2SignCount = sizeof(kShift2Signs) - 1;
static_assert(kShift2SignCount == 27, "FNC1 follows");
constexpr int kShift2Fnc1 = 27;
constexpr int kShift2UpperShift = 30;
// Values 0 to 3 of X12.
constexpr char kX12Signs[] = {'\r', '*', '>', ' '};

constexpr int kEdifactUnlatch = 31;

// Letters of the basic set of C40 and of Text, and of the set of shift 3.
struct Letters {
  char basic;    // value 14
  char shifted;  // value 1 of shift 3
};
constexpr Letters kC40Letters = {'A', 'a'};
constexpr Letters kTextLetters = {'a', 'A'};

template <typename Output>
class CodewordReader {
 public:
  CodewordReader(const std::uint8_t* codewords, int count, Output& output)
      : codewords_(codewords), count_(count), output_(output) {}

  // False for a break.
  bool Read() {
    while (next_ < count_ && !isBroken_ && !hasEnded_) ReadAsciiCodeword(Next());
    if (isBroken_) return false;
    if (isMacro_) output_.EndMacro();
    return true;
  }

 private:
  int Left() const { return count_ - next_; }
  int Next() { return codewords_[next_++]; }
  void Break() { isBroken_ = true; }

  void ReadAsciiCodeword(int codeword) {
    if (codeword >= 1 && codeword <= kLastAscii) return output_.Write(codeword - 1);
    if (codeword >= kFirstPair && codeword <= kLastPair) return WritePair(codeword - kFirstPair);
    switch (codeword) {
      case kPad:
        hasEnded_ = true;
        return;
      case kLatchC40:
        return ReadShiftedSets(kC40Letters);
      case kLatchText:
        return ReadShiftedSets(kTextLetters);
      case kLatchX12:
        return ReadX12();
      case kLatchEdifact:
        return ReadEdifact();
      case kLatchBase256:
        return ReadBase256();
      default:
        return ReadFunction(codeword);
    }
  }

  void WritePair(int pair) {
    output_.Write('0' + pair / 10);
    output_.Write('0' + pair % 10);
  }

  void ReadFunction(int codeword) {
    switch (codeword) {
      case kFnc1:
        return output_.WriteFnc1(next_ <= begin_ + 2);
      case kStructuredAppend:
        return ReadStructure();
      case kReaderProgramming:
        return next_ == 1 ? output_.SetProgramming() : Break();
      case kUpperShift:
        return ReadUpperShift();
      case kEci:
        return ReadDesignator();
      case kMacro05:
        return ReadMacro(5);
      case kMacro06:
        return ReadMacro(6);
      default:
        if (codeword != kUnlatch || Left() > 0) Break();
    }
  }

  void ReadUpperShift() {
    const int codeword = Left() > 0 ? Next() : 0;
    if (codeword < 1 || codeword > kLastAscii) return Break();
    output_.Write(codeword - 1 + 128);
  }

  // One codeword up to 126, two up to 16382, three up to 999999.
  void ReadDesignator() {
    const int first = Left() > 0 ? Next() : 0;
    const int more = first <= 127 ? 0 : first <= 191 ? 1 : 2;
    if (first < 1 || first > 207 || Left() < more) return Break();
    int number = more == 0 ? first - 1 : more == 1 ? first - 128 : first - 192;
    for (int i = 0; i < more; ++i) number = number * 254 + Next() - 1;
    output_.Designate(number + (more == 0 ? 0 : more == 1 ? 127 : 16383));
  }

  // Which symbol of which message this is; the text begins behind it.
  void ReadStructure() {
    if (next_ != 1 || Left() < 3) return Break();
    output_.SetStructure(codewords_[1], codewords_[2], codewords_[3]);
    next_ = begin_ = 4;
  }

  void ReadMacro(int format) {
    if (next_ != 1) return Break();
    output_.BeginMacro(format);
    isMacro_ = true;
  }

  // Three values of two codewords; false behind the last ones, at an unlatch or where one codeword
  // is left.
  bool NextTriple(int (&values)[3]) {
    if (isBroken_ || Left() < 2) return false;
    const int high = Next();
    if (high == kUnlatch) return false;
    int packed = high * 256 + Next() - 1;
    if (packed < 0 || packed >= 40 * 40 * 40) {
      Break();
      return false;
    }
    for (int i = 2; i >= 0; --i, packed /= 40) values[i] = packed % 40;
    return true;
  }

  void ReadShiftedSets(const Letters& letters) {
    shift_ = 0;
    upper_ = 0;
    int values[3];
    while (NextTriple(values)) {
      for (int i = 0; i < 3 && !isBroken_; ++i) ReadShiftedValue(values[i], letters);
    }
  }

  void ReadShiftedValue(int value, const Letters& letters) {
    switch (shift_) {
      case 1:
        return value < 32 ? WriteShifted(value) : Break();
      case 2:
        return ReadValueOfShift2(value);
      case 3:
        return ReadValueOfShift3(value, letters);
      default:
        return ReadBasicValue(value, letters);
    }
  }

  void WriteShifted(int character) {
    output_.Write(character + upper_);
    shift_ = 0;
    upper_ = 0;
  }

  void ReadBasicValue(int value, const Letters& letters) {
    if (value < 3) {
      shift_ = value + 1;
    } else if (value == 3) {
      WriteShifted(' ');
    } else {
      WriteShifted(value < 14 ? '0' + value - 4 : letters.basic + value - 14);
    }
  }

  void ReadValueOfShift2(int value) {
    if (value < kShift2SignCount) return WriteShifted(kShift2Signs[value]);
    if (upper_ != 0) return Break();  // no FNC1 and no second shift of the upper half
    shift_ = 0;
    if (value == kShift2Fnc1) return output_.WriteFnc1(false);
    if (value != kShift2UpperShift) return Break();
    upper_ = 128;
  }

  void ReadValueOfShift3(int value, const Letters& letters) {
    if (value > 31) return Break();
    const bool isLetter = value >= 1 && value <= 26;
    WriteShifted(isLetter ? letters.shifted + value - 1 : '`' + value);
  }

  void ReadX12() {
    int values[3];
    while (NextTriple(values)) {
      for (const int value : values) {
        output_.Write(value < 4    ? kX12Signs[value]
                      : value < 14 ? '0' + value - 4
                                   : 'A' + value - 14);
      }
    }
  }

  // Four values of six bits in three codewords. The unlatch ends the mode at the end of the
  // codeword that its last bit is in.
  void ReadEdifact() {
    while (Left() > 2) {
      const int bits = codewords_[next_] << 16 | codewords_[next_ + 1] << 8 | codewords_[next_ + 2];
      for (int i = 0; i < 4; ++i) {
        const int value = bits >> (18 - 6 * i) & 0x3F;
        if (value == kEdifactUnlatch) {
          next_ += i < 3 ? i + 1 : 3;
          return;
        }
        output_.Write(value < 32 ? value + 64 : value);
      }
      next_ += 3;
    }
  }

  // The 255-state randomising by position is taken off.
  int NextUnrandomised() {
    const int pseudo = 149 * (next_ + 1) % 255 + 1;
    return (Next() - pseudo) & 0xFF;
  }

  // A length of 0 reaches to the end of the symbol.
  void ReadBase256() {
    if (Left() == 0) return Break();
    int length = NextUnrandomised();
    if (length == 0) {
      length = Left();
    } else if (length >= 250 && Left() > 0) {
      length = (length - 249) * 250 + NextUnrandomised();
    }
    if (length > Left()) return Break();
    for (; length > 0; --length) output_.Write(NextUnrandomised());
  }

  const std::uint8_t* codewords_;
  int count_;
  Output& output_;
  int next_ = 0;
  int begin_ = 0;  // of the text, behind a structured append
  bool isBroken_ = false;
  bool hasEnded_ = false;
  bool isMacro_ = false;
  int shift_ = 0;
  int upper_ = 0;
};

}  // namespace reading

}  // namespace barhatch

#endif
