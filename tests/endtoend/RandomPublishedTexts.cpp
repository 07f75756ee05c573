// The texts of RandomPublishedJobs: those of linear symbologies with check characters, of EAN and
// UPC in every form, and element strings.
#include "RandomPublishedJobs.h"
#include "support/CheckCharacters.h"
#include "support/Code93Reader.h"
#include "support/EanUpcReader.h"
#include "support/MsiReader.h"
#include "support/TextClasses.h"

namespace barhatch::test {

namespace {

const std::string kDigits = "0123456789";
const std::string kCode39Set = kDigits + "ABCDEFGHIJKLMNOPQRSTUVWXYZ-. $/+%";
const std::string kAnything =
    "!\"%&'()*+,-./:;<=>?_0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
constexpr std::size_t kMostOfGs1128 = 48;

// Code 39 has the pairs of Code 93.
std::string PairsOf(const std::string& text) {
  std::string pairs;
  for (const char character : text) {
    const std::vector<std::string> names = PublishedCode93Pair(character);
    for (const std::string& name : names) pairs += name.size() == 1 ? name[0] : name[1];
  }
  return pairs;
}

std::string EscapedElement(const std::string& value) {
  std::string escaped;
  for (const char character : value)
    escaped += (character == '(' ? "\\" : "") + std::string(1, character);
  return escaped;
}

// The kind of a symbology of EAN and UPC, and its add-on.
struct EanUpcKind {
  std::size_t digits;  // without check digit
  std::size_t addon;   // that it has in any case
  bool isUpc;
};

std::size_t AddonOf(std::int32_t symbology) {
  switch (symbology) {
    case BARHATCH_EAN_13:
    case BARHATCH_EAN_8:
    case BARHATCH_UPC_E:
    case BARHATCH_UPC_A:
      return 0;
    case BARHATCH_EAN_13_ADDON_2:
    case BARHATCH_EAN_8_ADDON_2:
    case BARHATCH_UPC_E_ADDON_2:
    case BARHATCH_UPC_A_ADDON_2:
      return 2;
    default:
      return 5;
  }
}

EanUpcKind KindOfEanUpc(std::int32_t symbology) {
  const std::size_t addon = AddonOf(symbology);
  switch (symbology) {
    case BARHATCH_EAN_13:
    case BARHATCH_EAN_13_ADDON_2:
    case BARHATCH_EAN_13_ADDON_5:
      return {12, addon, false};
    case BARHATCH_EAN_8:
    case BARHATCH_EAN_8_ADDON_2:
    case BARHATCH_EAN_8_ADDON_5:
      return {7, addon, false};
    case BARHATCH_UPC_E:
    case BARHATCH_UPC_E_ADDON_2:
    case BARHATCH_UPC_E_ADDON_5:
      return {6, addon, true};
    default:
      return {11, addon, true};
  }
}

}  // namespace

std::string RandomPublishedJobs::CodabarText(PublishedJob& made) {
  constexpr std::int32_t kChecks[] = {BARHATCH_CHECK_OWN, BARHATCH_CHECK_NONE,
                                      BARHATCH_CHECK_VERIFY, BARHATCH_CHECK_MOD_16};
  made.options.check = Any(kChecks);
  const std::string data = Data(kDigits + "-$:/.+");
  const bool isAdded = OneIn(3);
  if (isAdded || OneIn(3)) made.options.flags |= BARHATCH_ADD_START_STOP;
  const std::size_t start = isAdded ? 0 : Below(8);
  const std::size_t stop = isAdded ? 0 : Below(8);
  const std::string letters = "ABCDABCD";  // T N * E are other names of them
  const std::string check(made.options.check == BARHATCH_CHECK_VERIFY ? 1 : 0,
                          Modulo16Of(std::string(1, letters[start]) + data + letters[stop]));
  if (isAdded) return data + check;
  const std::string names = "ABCDTN*E";
  return names[start] + data + check + names[stop];
}

std::string RandomPublishedJobs::Code39Text(PublishedJob& made) {
  made.options.check = static_cast<std::int32_t>(Below(4));
  const std::string data = Data(kCode39Set);
  return made.options.check == BARHATCH_CHECK_VERIFY ? data + Modulo43Of(data) : data;
}

std::string RandomPublishedJobs::Code39FullText(PublishedJob& made) {
  made.options.check = static_cast<std::int32_t>(Below(4));
  const std::string data = Data(Bytes(0, 127));
  return made.options.check == BARHATCH_CHECK_VERIFY ? data + Modulo43Of(PairsOf(data)) : data;
}

std::string RandomPublishedJobs::MsiText(PublishedJob& made) {
  constexpr std::int32_t kChecks[] = {0, 1, 2, 6, 7, 8, 9, 10, 11};
  made.options.check = Any(kChecks);
  const std::string data = Data(kDigits);
  const std::int32_t check = made.options.check;
  if (check == BARHATCH_CHECK_VERIFY) return data + PublishedMsiModulo10(data);
  const bool isModulo11 = check >= BARHATCH_MSI_11;
  const std::size_t largest = check >= BARHATCH_MSI_NCR_11 ? 9 : 7;
  made.isSound = !isModulo11 || MsiModulo11Of(data, largest) <= '9';
  return data;
}

std::string RandomPublishedJobs::Code11Text(PublishedJob& made) {
  constexpr std::int32_t kChecks[] = {BARHATCH_CHECK_OWN, BARHATCH_CHECK_NONE,
                                      BARHATCH_CHECK_VERIFY, BARHATCH_CODE_11_C,
                                      BARHATCH_CODE_11_CK};
  made.options.check = Any(kChecks);
  std::string text = Data(kDigits + "-");
  if (made.options.check != BARHATCH_CHECK_VERIFY) return text;
  const bool hasK = text.size() > 10;
  text += Code11CheckOf(text, 10);
  return hasK ? text + Code11CheckOf(text, 9) : text;
}

std::string RandomPublishedJobs::InterleavedText(PublishedJob& made) {
  constexpr std::int32_t kChecks[] = {BARHATCH_CHECK_OWN, BARHATCH_CHECK_NONE,
                                      BARHATCH_CHECK_VERIFY, BARHATCH_CHECK_ITF_10};
  made.options.check = Any(kChecks);
  const std::string data = Data(kDigits);
  return made.options.check == BARHATCH_CHECK_VERIFY ? data + MissingCheckDigit(data) : data;
}

std::string RandomPublishedJobs::Itf14Text(PublishedJob& made) {
  made.options.check = OneIn(3) ? BARHATCH_CHECK_VERIFY : BARHATCH_CHECK_OWN;
  const std::string data = Text(kDigits, 13, 13);
  const bool isGiven = made.options.check == BARHATCH_CHECK_VERIFY || OneIn(2);
  return isGiven ? data + MissingCheckDigit(data) : data;
}

// The number system and six digits that stand for the digits of a UPC-A.
std::string RandomPublishedJobs::UpcEDigits(PublishedJob& made) {
  const bool isSystem1 = OneIn(4);
  if (isSystem1) made.options.flags |= BARHATCH_PERMIT;
  std::string six = Text(kDigits, 6, 6);
  if (six[5] == '3' && six[2] < '3') six[2] = '7';
  if (six[5] == '4' && six[3] == '0') six[3] = '1';
  if (six[5] >= '5' && six[4] == '0') six[4] = '9';
  return (isSystem1 ? "1" : "0") + six;
}

std::string RandomPublishedJobs::EanUpcText(PublishedJob& made) {
  const EanUpcKind kind = KindOfEanUpc(made.options.symbology);
  const bool isUpcE = kind.digits == 6;
  const bool isEan8 = kind.digits == 7;
  const std::string digits = isUpcE ? UpcEDigits(made) : Text(kDigits, kind.digits, kind.digits);
  const std::string upcA = isUpcE ? ExpandedUpcE(digits) : "";
  const char check = MissingCheckDigit(isUpcE ? upcA : digits);
  if (OneIn(4)) made.options.check = BARHATCH_CHECK_VERIFY;
  std::vector<std::string> forms = {digits + check};
  if (isUpcE) forms.push_back(upcA + check);
  if (made.options.check != BARHATCH_CHECK_VERIFY) {
    forms.push_back(digits);
    if (isUpcE) forms.push_back(upcA);
    if (isUpcE && digits[0] == '0') forms.push_back(digits.substr(1));
  }
  const std::string main = forms[Below(forms.size())];
  const std::size_t count = kind.addon != 0 ? kind.addon : OneIn(2) ? 0 : OneIn(2) ? 2 : 5;
  made.digits = digits + check;
  if (count == 0) return main;

  constexpr std::int32_t kGaps[] = {0, 9, 10, 11, 12, 7, 8};
  const std::string addon = Text(kDigits, count, count);
  *made.digits += " " + addon;
  if (isEan8) made.options.flags |= BARHATCH_PERMIT;
  made.options.addon_gap = kGaps[Below(kind.isUpc ? 5 : 7)];
  const bool hasSign = kind.addon == 0 || main.size() == 6 || OneIn(2);
  return main + (hasSign ? "+" : "") + addon;
}

// GS1 General Specifications: elements, in brackets or as a reader reports them.
void RandomPublishedJobs::MakeElements(PublishedJob& made) {
  made.options.input = BARHATCH_GS1;
  const bool hasBrackets = OneIn(2);
  std::string given;
  std::string data;
  std::string seen;
  bool isOpen = false;
  for (std::size_t count = 1 + Below(4); count > 0; --count) {
    const std::size_t kind = Below(7);
    if (seen.find(static_cast<char>(kind)) != std::string::npos) continue;
    seen += static_cast<char>(kind);
    const auto checked = [&](std::size_t digits) {
      const std::string number = Text(kDigits, digits, digits);
      return number + MissingCheckDigit(number);
    };
    const std::string month = "0" + Text("123456789", 1, 1);
    const std::string ais[] = {"01", "17", "3103", "410", "402", "21", "10"};
    const std::string values[] = {checked(13),           Text(kDigits, 2, 2) + month + "00",
                                  Text(kDigits, 6, 6),   checked(12),
                                  checked(16),           Text(kAnything, 1, 20),
                                  Text(kAnything, 1, 20)};
    given += hasBrackets ? "(" + ais[kind] + ")" + EscapedElement(values[kind]) : "";
    data += (isOpen ? "\x1D" : "") + ais[kind] + values[kind];
    isOpen = kind >= 4;
  }
  made.Say(hasBrackets ? given : data);
  made.digits = data;
  const bool isMatrix = made.options.symbology == BARHATCH_DATA_MATRIX;
  if (isMatrix && OneIn(3)) made.options.flags |= BARHATCH_GS_SEPARATORS;
  if (isMatrix) SetSize(made);
  if (!isMatrix) made.isSound = data.size() <= kMostOfGs1128;
}

}  // namespace barhatch::test
