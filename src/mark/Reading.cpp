#include "mark/Reading.h"

#include <cstring>

namespace barhatch {

namespace {

constexpr char kGs = '\x1D';
constexpr char kEnvelopeEnd[] = "\x1E\x04";
constexpr std::size_t kEnvelopeHead = 7;  // [)> RS 05 GS

bool IsSame(const Characters& a, const Characters& b) {
  return a.length == b.length && std::memcmp(a.text, b.text, a.length) == 0;
}

bool IsReadingOfEanUpc(const Characters& text, std::size_t main, const Characters& reading) {
  const std::size_t addOn = text.length - main;
  const std::size_t expected = main + 1 + (addOn > 0 ? addOn + 1 : 0);
  if (reading.length != expected || std::memcmp(reading.text, text.text, main) != 0) return false;
  if (addOn == 0) return true;
  return reading.text[main + 1] == ' ' &&
         std::memcmp(reading.text + main + 2, text.text + main, addOn) == 0;
}

// Takes characters away from the front of a reading as they come.
class Rest {
 public:
  explicit Rest(const Characters& reading) : rest_(reading) {}

  bool Take(char character) {
    if (rest_.length == 0 || *rest_.text != character) return false;
    ++rest_.text;
    --rest_.length;
    return true;
  }

  bool IsEmpty() const { return rest_.length == 0; }

 private:
  Characters rest_;
};

bool TakeEnvelopeHead(Rest& rest, Header header) {
  const char* const head = header == Header::kMacro05 ? "[)>\x1E"
                                                        "05\x1D"
                                                      : "[)>\x1E"
                                                        "06\x1D";
  for (std::size_t i = 0; i < kEnvelopeHead; ++i) {
    if (!rest.Take(head[i])) return false;
  }
  return true;
}

bool TakeText(Rest& rest, const TextUnits& text, bool hasFnc1) {
  bool mayHaveFnc1 = hasFnc1;
  for (std::size_t i = 0; i < text.length; ++i) {
    if (text.units[i] > 255) continue;
    const char byte = static_cast<char>(text.units[i]);
    // Behind the first letter or the first two digits.
    if (mayHaveFnc1 && (i == 1 || i == 2) && byte != kGs && rest.Take(kGs)) mayHaveFnc1 = false;
    if (!rest.Take(byte)) return false;
  }
  if (mayHaveFnc1 && !rest.IsEmpty()) rest.Take(kGs);
  return true;
}

}  // namespace

bool IsReadingOfLinear(const ReadingForm& form, const Characters& text, const Characters& reading) {
  const std::size_t leftOut = std::size_t{form.inFront} + form.behind;
  if (text.length < leftOut) return false;
  const Characters rest = {text.text + form.inFront, text.length - leftOut};
  if (form.mainDigits > 0) return IsReadingOfEanUpc(rest, form.mainDigits, reading);
  if (!form.inPairs || rest.length % 2 == 0) return IsSame(reading, rest);
  return reading.length > 0 && reading.text[0] == '0' &&
         IsSame({reading.text + 1, reading.length - 1}, rest);
}

bool IsReadingOfMatrix(const TextUnits& text, Header header, const Characters& reading) {
  const bool hasEnvelope = header == Header::kMacro05 || header == Header::kMacro06;
  Rest rest(reading);
  if (hasEnvelope && !TakeEnvelopeHead(rest, header)) return false;
  if (!TakeText(rest, text, header == Header::kFnc1Second)) return false;
  if (hasEnvelope && !(rest.Take(kEnvelopeEnd[0]) && rest.Take(kEnvelopeEnd[1]))) return false;
  return rest.IsEmpty();
}

}  // namespace barhatch
