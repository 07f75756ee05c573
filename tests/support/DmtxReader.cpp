#include <dmtx.h>

#include <cmath>
#include <memory>
#include <vector>

#include "support/ReaderBackends.h"

namespace barhatch::test {

namespace {

constexpr int kGroupSeparator = 29;  // what stands for an FNC1
constexpr int kSmallestPicture = 8;  // libdmtx aborts the program on a picture of a pixel or two

template <typename Object, DmtxPassFail (*Destroy)(Object**)>
struct Destroyer {
  void operator()(Object* object) const { Destroy(&object); }
};
using Image = std::unique_ptr<DmtxImage, Destroyer<DmtxImage, dmtxImageDestroy>>;
using Decoder = std::unique_ptr<DmtxDecode, Destroyer<DmtxDecode, dmtxDecodeDestroy>>;
using Region = std::unique_ptr<DmtxRegion, Destroyer<DmtxRegion, dmtxRegionDestroy>>;
using Message = std::unique_ptr<DmtxMessage, Destroyer<DmtxMessage, dmtxMessageDestroy>>;

DmtxVector2 Corner(const DmtxRegion& region, double x, double y) {
  DmtxVector2 corner = {x, y};
  DmtxMatrix3 transform;
  dmtxMatrix3Copy(transform, const_cast<DmtxRegion&>(region).fit2raw);
  dmtxMatrix3VMultiplyBy(&corner, transform);
  return corner;
}

// The solid corner of the finder must be at the lower left (y grows upwards in libdmtx), and dark.
bool IsUprightAndDark(const DmtxRegion& region) {
  const DmtxVector2 origin = Corner(region, 0, 0);
  const DmtxVector2 right = Corner(region, 1, 0);
  const DmtxVector2 top = Corner(region, 0, 1);
  return right.X - origin.X > 2 * std::abs(right.Y - origin.Y) &&
         top.Y - origin.Y > 2 * std::abs(top.X - origin.X) && region.onColor < region.offColor;
}

}  // namespace

// Without a time limit, so that the answer does not depend on the machine: the search ends with the
// picture.
std::optional<ReadResult> ReadWithDmtx(const Raster& picture) {
  if (picture.Width() < kSmallestPicture || picture.Height() < kSmallestPicture) {
    return std::nullopt;
  }
  const std::size_t size =
      static_cast<std::size_t>(picture.Width()) * static_cast<std::size_t>(picture.Height());
  std::vector<unsigned char> pixels(picture.Pixels(), picture.Pixels() + size);
  const Image image(
      dmtxImageCreate(pixels.data(), picture.Width(), picture.Height(), DmtxPack8bppK));
  const Decoder decoder(dmtxDecodeCreate(image.get(), 1));
  decoder->fnc1 = kGroupSeparator;
  while (const Region region{dmtxRegionFindNext(decoder.get(), nullptr)}) {
    const Message message(dmtxDecodeMatrixRegion(decoder.get(), region.get(), DmtxUndefined));
    if (!message) continue;
    if (!IsUprightAndDark(*region)) return std::nullopt;
    ReadResult result;
    result.text = std::string(message->output, message->output + message->outputIdx);
    result.rows = region->symbolRows;
    result.columns = region->symbolCols;
    return result;
  }
  return std::nullopt;
}

}  // namespace barhatch::test
