#include "symbologies/EanUpcText.h"

#include <cassert>
#include <cstring>

#include "job/CharacterClasses.h"
#include "symbologies/UpcE.h"

namespace barhatch {

namespace {

// How many digits the parts of a text have. The sign stands between them.
struct Parts {
  std::size_t main;
  std::size_t addon;
  bool hasSign;
};

// One count of main digits that a symbol takes.
struct MainForm {
  EanUpcSymbol symbol;  // without add-on
  std::uint8_t digits;
  bool hasCheckDigit;
  bool needsSign;  // in front of an add-on
};

// clang-format off
constexpr MainForm kMainForms[] = {
    //                     digits check  sign
    {EanUpcSymbol::kEan13, 12,    false, false},
    {EanUpcSymbol::kEan13, 13,    true,  false},
    {EanUpcSymbol::kUpcA,  11,    false, false},
    {EanUpcSymbol::kUpcA,  12,    true,  false},
    {EanUpcSymbol::kEan8,   7,    false, false},
    {EanUpcSymbol::kEan8,   8,    true,  false},
    {EanUpcSymbol::kUpcE,   6,    false, true},
    {EanUpcSymbol::kUpcE,   7,    false, false},
    {EanUpcSymbol::kUpcE,   8,    true,  false},
    {EanUpcSymbol::kUpcE,  11,    false, false},
    {EanUpcSymbol::kUpcE,  12,    true,  false},
};
// clang-format on

// Of two forms with as many digits, add-on included and without a sign, none would be the one that
// is meant.
constexpr bool NoCountIsOfTwoForms() {
  for (const MainForm& form : kMainForms) {
    for (const MainForm& whole : kMainForms) {
      if (form.symbol != whole.symbol || form.needsSign) continue;
      if (form.digits + 2 == whole.digits) return false;
    }
  }
  return true;
}
static_assert(NoCountIsOfTwoForms(), "an add-on of two digits is told from digits of the number");

constexpr std::int32_t At(std::size_t position) { return static_cast<std::int32_t>(position); }

// The three symbols of a kind follow one another: plain, with two and with five digits more.
constexpr EanUpcSymbol PlainOf(EanUpcSymbol symbol) {
  return static_cast<EanUpcSymbol>(static_cast<int>(symbol) / 3 * 3);
}

constexpr EanUpcSymbol WithAddon(EanUpcSymbol plain, std::size_t digits) {
  const int further = digits == 0 ? 0 : digits == 2 ? 1 : 2;
  return static_cast<EanUpcSymbol>(static_cast<int>(plain) + further);
}

constexpr bool SymbolsFollowOneAnother() {
  for (const EanUpcLayout& layout : kEanUpcLayouts) {
    const auto digits = static_cast<std::size_t>(layout.addonDigits);
    if (WithAddon(PlainOf(layout.symbol), digits) != layout.symbol) return false;
  }
  return true;
}
static_assert(SymbolsFollowOneAnother(), "a symbol and its add-on name a layout");

Refusal CheckCharacters(const Characters& text) {
  if (text.length == 0) return {Reason::kEmpty, -1, 0};
  bool hasSign = false;
  for (std::size_t i = 0; i < text.length; ++i) {
    const char character = text.text[i];
    if (IsDigit(character)) continue;
    if (character != kAddonSign) {
      return {Reason::kCharacter, At(i), static_cast<unsigned char>(character)};
    }
    if (hasSign) return {Reason::kSecondSign, At(i), 0};
    hasSign = true;
  }
  return {};
}

// In front of an add-on that is longer than the text the count wraps: no symbol takes it.
Parts Split(const EanUpcLayout& asked, const Characters& text) {
  const auto* const sign =
      static_cast<const char*>(std::memchr(text.text, kAddonSign, text.length));
  if (sign == nullptr) {
    const auto digits = static_cast<std::size_t>(asked.addonDigits);
    return {text.length - digits, digits, false};
  }
  const auto main = static_cast<std::size_t>(sign - text.text);
  return {main, text.length - main - 1, true};
}

bool IsAddon(const EanUpcLayout& asked, std::size_t digits) {
  if (asked.addonDigits == 0) return digits == 2 || digits == 5;
  return digits == static_cast<std::size_t>(asked.addonDigits);
}

// Null for a count of main digits that the symbol does not take.
const MainForm* FormOf(EanUpcSymbol plain, const Parts& parts) {
  for (const MainForm& form : kMainForms) {
    if (form.symbol != plain || form.digits != parts.main) continue;
    return form.needsSign && parts.addon != 0 && !parts.hasSign ? nullptr : &form;
  }
  return nullptr;
}

Refusal RefusedLength(const Characters& text, const Parts& parts) {
  if (!parts.hasSign) return {Reason::kLength, -1, FigureOf(text.length)};
  return {Reason::kLength, At(parts.main), FigureOf(parts.main)};
}

Refusal VerifyCheckDigit(const Characters& main, int right) {
  const std::size_t last = main.length - 1;
  const char character = static_cast<char>('0' + right);
  if (main.text[last] == character) return {};
  return {Reason::kCheck, At(last), character};
}

// Writes the number system and the six digits; what stands behind them is not to be read.
Refusal ReadUpcE(const Characters& main, bool hasCheckDigit, Conformance& how, char* upcE) {
  const std::size_t inFront = main.length < kUpcEDigits ? 1 : 0;
  upcE[0] = '0';
  if (main.length < kUpcADigits) {
    std::memcpy(upcE + inFront, main.text, main.length);
  } else if (!SuppressUpcA(main.text, upcE)) {
    return {Reason::kNoUpcE, 0, 0, kUpcADigits};
  }
  const Refusal form = CheckUpcEForm({upcE, kUpcEDigits}, how);
  if (form.IsRefused()) {
    return {form.reason, form.position - At(inFront), form.figure, form.extent};
  }
  return hasCheckDigit ? VerifyCheckDigit(main, UpcECheckDigit(upcE)) : Refusal{};
}

Refusal ReadMain(const MainForm& form, const Characters& main, Conformance& how, char* digits) {
  if (form.symbol == EanUpcSymbol::kUpcE) return ReadUpcE(main, form.hasCheckDigit, how, digits);
  const std::size_t given = form.hasCheckDigit ? main.length - 1 : main.length;
  std::memcpy(digits, main.text, given);
  if (!form.hasCheckDigit) return {};
  return VerifyCheckDigit(main, CheckDigit(main.text, static_cast<int>(given)));
}

static_assert(PreparationRoom(1) >= kWorkingCapacity, "the digits have room");

}  // namespace

Refusal ReadEanUpcText(EanUpcSymbol asked, const Characters& text, CheckScheme check,
                       Conformance& how, EanUpcDigits& read) {
  const Refusal characters = CheckCharacters(text);
  if (characters.IsRefused()) return characters;

  const EanUpcLayout& layout = EanUpcLayoutOf(asked);
  const Parts parts = Split(layout, text);
  const std::int32_t behindMain = At(text.length - parts.main);
  if (parts.hasSign && !IsAddon(layout, parts.addon)) {
    return {Reason::kAddonDigits, At(parts.main), FigureOf(parts.addon), behindMain};
  }
  const EanUpcSymbol plain = PlainOf(asked);
  const MainForm* const form = FormOf(plain, parts);
  if (form == nullptr) return RefusedLength(text, parts);
  if (check == CheckScheme::kVerify && !form->hasCheckDigit) {
    return {Reason::kCheckCount, -1, FigureOf(parts.main)};
  }
  const bool isBesideEan8 = plain == EanUpcSymbol::kEan8 && parts.addon != 0;
  if (isBesideEan8 && !how.Deviates(Deviation::kDEAN_2)) {
    return {Reason::kNotStandard, At(parts.main), 0, behindMain};
  }
  read.symbol = WithAddon(plain, parts.addon);
  const Refusal main = ReadMain(*form, {text.text, parts.main}, how, read.digits);
  if (main.IsRefused()) return main;
  const auto mainDigits = static_cast<std::size_t>(layout.mainDigits);
  std::memcpy(read.digits + mainDigits, text.text + text.length - parts.addon, parts.addon);
  read.length = mainDigits + parts.addon;
  read.digits[read.length] = '\0';
  return {};
}

Refusal PrepareEanUpc(const LinearOptions& options, PreparedText& text, Conformance& how) {
  EanUpcDigits read = {};
  const auto asked = static_cast<EanUpcSymbol>(text.variant);
  const Refusal refusal = ReadEanUpcText(asked, {text.room, text.length}, options.check, how, read);
  if (refusal.IsRefused()) return refusal;
  std::memcpy(text.room, read.digits, sizeof read.digits);
  text.length = read.length;
  text.variant = EanUpcVariant(read.symbol, options.addonGap);
  if (EanUpcLayoutOf(read.symbol).addonDigits != 0) text.quiet.right = kAddonQuietModules;
  return {};
}

}  // namespace barhatch
