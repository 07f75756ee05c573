#include "mark/Names.h"

#include "barhatch_mark.h"

namespace barhatch {

namespace {

constexpr SymbologyName kDataMatrix = {"Data Matrix", "all characters, and bytes",
                                       "bytes; characters above 255 designate an ECI"};

}  // namespace

const SymbologyName* NameOf(std::int32_t symbology) {
  if (symbology == BARHATCH_DATA_MATRIX) return &kDataMatrix;
  const SymbologyRow* const row = RowOf(symbology);
  return row != nullptr ? &row->name : nullptr;
}

const char* AcceptedBy(const SymbologyName& name, std::int32_t conformance) {
  const bool isLess = conformance == BARHATCH_DEVICE && name.deviceAccepts != nullptr;
  return isLess ? name.deviceAccepts : name.accepts;
}

}  // namespace barhatch
