#include "symbologies/Code93Symbology.h"

#include <cstddef>
#include <cstring>

#include "job/CharacterClasses.h"
#include "symbologies/Code93Characters.h"
#include "symbologies/CyclicWeights.h"

namespace barhatch {

namespace {

constexpr std::size_t kUsualCapacity =
    31170;  // what a Code 93 module string has always been allocated with
constexpr char kTerminationBar[] = "1";

struct TextSums {
  std::size_t characters;  // symbol characters of the text, those without a value among them
  int c;
  int k;
};

bool IsInNativeSet(const char* text) {
  for (; *text != '\0'; ++text) {
    if (!IsDigit(*text) && !IsAsciiUpper(*text) && !IsOneOf(*text, "-. $/+%")) return false;
  }
  return true;
}

TextSums SumFromTheRight(const char* text) {
  TextSums sums = {0, 0, 0};
  CyclicWeightedSum weightedForC(1, 20);
  CyclicWeightedSum weightedForK(1, 15);
  weightedForK.Add(0);  // the place of C, whose value is known at the end: weight 1
  for (std::size_t i = std::strlen(text); i-- > 0;) {
    const Code93Expansion& expansion = ExpandCode93(text[i]);
    sums.characters += static_cast<std::size_t>(expansion.count);
    for (int part = expansion.count; part-- > 0;) {
      if (expansion.values[part] == kCode93NoValue) continue;  // D-93-2
      weightedForC.Add(expansion.values[part]);
      weightedForK.Add(expansion.values[part]);
    }
  }
  sums.c = weightedForC.Modulo(kCode93CheckModulus);
  sums.k = (weightedForK.Modulo(kCode93CheckModulus) + sums.c) % kCode93CheckModulus;
  return sums;
}

void AppendText(const char* text, ModuleStringBuilder& builder) {
  const char* modules = nullptr;  // D-93-3
  for (; *text != '\0'; ++text) {
    const Code93Expansion& expansion = ExpandCode93(*text);
    for (int part = 0; part < expansion.count; ++part) {
      // D-93-2: without a value the modules stay those of the character before.
      if (expansion.values[part] != kCode93NoValue) modules = Code93Modules(expansion.values[part]);
      if (modules != nullptr) builder.AppendModules<9>(modules);
    }
  }
}

char* EncodeNativeSet(const char* text, QuietZone quietZone) {
  return EncodeCode93(text, Code93Input::kNativeSet, quietZone);
}

char* EncodeFullAscii(const char* text, QuietZone quietZone) {
  return EncodeCode93(text, Code93Input::kFullAscii, quietZone);
}

}  // namespace

char* EncodeCode93(const char* text, Code93Input input, QuietZone quietZone) {
  // D-93-4: the empty text passes.
  if (input == Code93Input::kNativeSet && !IsInNativeSet(text)) return nullptr;

  const TextSums sums = SumFromTheRight(text);
  const int quietModules = QuietModules(quietZone);
  // Nine letters for each character of the text and for start, C, K and stop, the termination bar
  // and the quiet zones.
  ModuleStringBuilder builder(
      kUsualCapacity, 9 * (sums.characters + 4) + 1 + 2 * static_cast<std::size_t>(quietModules));
  builder.AppendSpace(quietModules);
  builder.AppendModules<9>(Code93Modules(kCode93StartStop));
  AppendText(text, builder);
  builder.AppendModules<9>(Code93Modules(sums.c));
  builder.AppendModules<9>(Code93Modules(sums.k));
  builder.AppendModules<9>(Code93Modules(kCode93StartStop));
  builder.AppendModules(kTerminationBar);
  builder.AppendSpace(quietModules);
  return builder.Release();
}

char* Code93Symbology::GenerateString() {
  return EncodeCurrentText(input_ == Code93Input::kFullAscii ? EncodeFullAscii : EncodeNativeSet);
}

}  // namespace barhatch
