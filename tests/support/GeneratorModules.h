// The symbols of an independent generator, for comparisons.
#ifndef BARHATCH_TESTS_SUPPORT_GENERATORMODULES_H
#define BARHATCH_TESTS_SUPPORT_GENERATORMODULES_H

#include <zint.h>

#include <memory>
#include <string>

namespace barhatch::test {

// The generator's modules as '1' and '0'; its error text when it refuses.
inline std::string ModulesOfTheGenerator(int symbology, int option, const std::string& text) {
  const std::unique_ptr<zint_symbol, void (*)(zint_symbol*)> symbol(ZBarcode_Create(),
                                                                    ZBarcode_Delete);
  symbol->symbology = symbology;
  symbol->option_2 = option;
  const auto* bytes = reinterpret_cast<const unsigned char*>(text.data());
  if (ZBarcode_Encode(symbol.get(), bytes, static_cast<int>(text.size())) >= ZINT_ERROR) {
    return symbol->errtxt;
  }
  std::string modules;
  for (int x = 0; x < symbol->width; ++x) {
    modules += ((symbol->encoded_data[0][x / 8] >> (x % 8)) & 1) != 0 ? '1' : '0';
  }
  return modules;
}

}  // namespace barhatch::test

#endif
