#include "symbologies/Code93.h"

#include "symbologies/Code93Characters.h"
#include "symbologies/CyclicWeights.h"

namespace barhatch {

namespace {

constexpr std::size_t kModules = 9;

struct TextSums {
  std::size_t characters;  // symbol characters of the text, those without a value among them
  std::size_t leading;     // of those: without a value and with no character before them
  int c;
  int k;
};

TextSums SumFromTheRight(const Characters& text, Conformance& how) {
  TextSums sums = {0, 0, 0, 0};
  CyclicWeightedSum weightedForC(1, kCode93LongestWeightOfC);
  CyclicWeightedSum weightedForK(1, kCode93LongestWeightOfK);
  weightedForK.Add(0);  // the place of C, whose value is known at the end: weight 1
  for (std::size_t i = text.length; i-- > 0;) {
    const Code93Expansion& expansion = ExpandCode93(text.text[i], how);
    sums.characters += static_cast<std::size_t>(expansion.count);
    if (expansion.values[0] == kCode93NoValue) {  // D-93-2, D-93-3: in no sum
      ++sums.leading;
      continue;
    }
    sums.leading = 0;
    for (int part = expansion.count; part-- > 0;) {
      weightedForC.Add(expansion.values[part]);
      weightedForK.Add(expansion.values[part]);
    }
  }
  sums.c = weightedForC.Modulo(kCode93CheckModulus);
  sums.k = (weightedForK.Modulo(kCode93CheckModulus) + sums.c) % kCode93CheckModulus;
  return sums;
}

// A byte without a value draws the character before it once more, D-93-2; with none before it
// nothing, D-93-3.
char* DrawText(const Characters& text, char* at, Conformance& how) {
  const char* letters = nullptr;
  for (std::size_t i = 0; i < text.length; ++i) {
    const Code93Expansion& expansion = ExpandCode93(text.text[i], how);
    for (int part = 0; part < expansion.count; ++part) {
      const int value = expansion.values[part];
      if (value != kCode93NoValue) letters = Code93Letters(value);
      if (letters != nullptr) at = CopyLetters<kModules>(at, letters);
    }
  }
  return at;
}

}  // namespace

void EncodeCode93(const Characters& text, int /*variant*/, Conformance& how, SymbolWriter& out) {
  const TextSums sums = SumFromTheRight(text, how);
  // Nine letters for each character of the text and for start, C, K and stop, and the termination
  // bar.
  out.Open(kModules * (sums.characters + 4) + 1);
  const std::size_t drawn = sums.characters - sums.leading;
  char* at = out.Room(kModules * (drawn + 4));
  if (at == nullptr) return;
  at = CopyLetters<kModules>(at, Code93Letters(kCode93StartStop));
  at = DrawText(text, at, how);
  at = CopyLetters<kModules>(at, Code93Letters(sums.c));
  at = CopyLetters<kModules>(at, Code93Letters(sums.k));
  CopyLetters<kModules>(at, Code93Letters(kCode93StartStop));
  out.AppendModules(kCode93TerminationBar);
}

}  // namespace barhatch
