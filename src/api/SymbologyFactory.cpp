#include "api/SymbologyFactory.h"

#include <new>

#include "api/UsualCapacities.h"

namespace barhatch {

Symbology* SymbologyFactory(std::int32_t type) {
  if (static_cast<std::uint32_t>(type) >= kLinearTypes) return nullptr;
  return new (std::nothrow) TableSymbology(type);
}

}  // namespace barhatch
