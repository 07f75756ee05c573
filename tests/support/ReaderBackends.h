// One function for each reader library, so that no test meets their headers. See ReaderOracle.h.
#ifndef BARHATCH_TESTS_SUPPORT_READERBACKENDS_H
#define BARHATCH_TESTS_SUPPORT_READERBACKENDS_H

#include <optional>

#include "support/ReaderOracle.h"

namespace barhatch::test {

std::optional<ReadResult> ReadWithZxing(const Raster& picture, Format format, AddOn addOn);
std::optional<ReadResult> ReadWithZbar(const Raster& picture, Format format, AddOn addOn);
std::optional<ReadResult> ReadWithDmtx(const Raster& picture);

}  // namespace barhatch::test

#endif
