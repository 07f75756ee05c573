#include "datamatrix/MatrixReading.h"

#include "datamatrix/CodewordReader.h"

namespace barhatch {

namespace {

constexpr char kGroupSeparator = '\x1D';
constexpr char kHeadOf05[] =
    "[)>\x1E"
    "05\x1D";
constexpr char kHeadOf06[] =
    "[)>\x1E"
    "06\x1D";
constexpr char kMacroTrailer[] = "\x1E\x04";

class Bytes {
 public:
  Bytes(char* out, std::size_t room) : out_(out), room_(room) {}

  void Write(int byte) {
    if (length_ < room_) out_[length_] = static_cast<char>(byte);
    ++length_;
  }

  void WriteFnc1(bool tellsReader) {
    if (!tellsReader) Write(kGroupSeparator);
  }

  void BeginMacro(int format) { WriteAll(format == 5 ? kHeadOf05 : kHeadOf06); }
  void EndMacro() { WriteAll(kMacroTrailer); }

  void Designate(int /*number*/) {}
  void SetProgramming() {}
  void SetStructure(int /*place*/, int /*high*/, int /*low*/) {}

  std::size_t Length() const { return length_; }

 private:
  void WriteAll(const char* text) {
    for (; *text != '\0'; ++text) Write(static_cast<unsigned char>(*text));
  }

  char* out_;
  std::size_t room_;
  std::size_t length_ = 0;
};

}  // namespace

bool ReadCodewords(const std::uint8_t* codewords, int count, char* out, std::size_t room,
                   std::size_t& length) {
  Bytes output(out, room);
  const bool isSound = reading::CodewordReader<Bytes>(codewords, count, output).Read();
  length = output.Length();
  return isSound;
}

}  // namespace barhatch
