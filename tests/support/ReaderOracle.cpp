#include "support/ReaderOracle.h"

#include "support/ReaderBackends.h"

namespace barhatch::test {

#if !BARHATCH_WITH_ZXING
std::optional<ReadResult> ReadWithZxing(const Raster&, Format, AddOn) { return std::nullopt; }
#endif
#if !BARHATCH_WITH_ZBAR
std::optional<ReadResult> ReadWithZbar(const Raster&, Format, AddOn) { return std::nullopt; }
#endif
#if !BARHATCH_WITH_DMTX
std::optional<ReadResult> ReadWithDmtx(const Raster&) { return std::nullopt; }
#endif

bool HasReader(Reader reader) {
  switch (reader) {
    case Reader::kZxing:
      return BARHATCH_WITH_ZXING;
    case Reader::kZbar:
      return BARHATCH_WITH_ZBAR;
    case Reader::kDmtx:
      return BARHATCH_WITH_DMTX;
  }
  return false;
}

std::optional<ReadResult> Read(Reader reader, const Raster& picture, Format format, AddOn addOn) {
  switch (reader) {
    case Reader::kZxing:
      return ReadWithZxing(picture, format, addOn);
    case Reader::kZbar:
      return ReadWithZbar(picture, format, addOn);
    case Reader::kDmtx:
      return format == Format::kDataMatrix ? ReadWithDmtx(picture) : std::nullopt;
  }
  return std::nullopt;
}

}  // namespace barhatch::test
