#include "Outputs.h"

#include <fmt/core.h>

#include <algorithm>
#include <cerrno>
#include <cmath>
#include <fstream>

#include "CsvWriter.h"
#include "DxfWriter.h"
#include "Messages.h"
#include "PngWriter.h"
#include "SvgWriter.h"

namespace preview {

namespace {

constexpr double kLargestPicture = 100e6;  // pixels
constexpr double kPixelsAcross = 1600.0;

bool WriteText(const std::string& path, const std::string& text) {
  std::ofstream out(path, std::ios::binary);
  out << text;
  out.close();
  return !out.fail();
}

std::string TextOf(const std::string& path, const Drawing& drawing, const Look& look,
                   const Options& options) {
  if (HasEnding(path, ".csv")) return CsvOf(drawing);
  if (HasEnding(path, ".dxf")) return DxfOf(drawing);
  if (HasEnding(path, ".svg")) {
    return options.animate ? AnimatedSvgOf(drawing, look, options.speeds) : SvgOf(drawing, look);
  }
  return GcodeOf(drawing, options.speeds, options.laser);
}

// A sheet has more pixels, as its symbols are smaller in it.
double DefaultResolution(double across, const Options& options) {
  const double symbols =
      options.sheet ? std::min<double>(4.0, static_cast<double>(options.columns)) : 1.0;
  return kPixelsAcross * std::max(1.0, symbols / 2) / across;
}

}  // namespace

Look LookOf(const Options& options, double symbolWidth, double moduleSize) {
  // Points have no gap: dots that touch are the least that readers of pictures see as modules.
  const double usualBeam =
      options.request.job.pattern == BARHATCH_POINTS ? moduleSize : options.request.job.gap;
  return {options.margin >= 0.0 ? options.margin : symbolWidth / 10,
          options.beam > 0.0 ? options.beam : usualBeam,
          options.darkPart ? Part::kDark : Part::kLight,
          options.request.job.pattern == BARHATCH_SPIRAL ? StrokeEnds::kProjecting
                                                         : StrokeEnds::kFlush};
}

std::optional<Picture> PictureOf(const Drawing& drawing, const Look& look, const Options& options,
                                 std::string& reason) {
  const double across = drawing.width + 2 * look.margin;
  const double pixelsPerUnit =
      options.pixelsPerUnit > 0.0 ? options.pixelsPerUnit : DefaultResolution(across, options);
  const double columns = std::ceil(across * pixelsPerUnit);
  const double rows = std::ceil((drawing.height + 2 * look.margin) * pixelsPerUnit);
  if (columns * rows <= kLargestPicture) return Draw(drawing, look, pixelsPerUnit);
  reason = fmt::format("{:g} x {:g} pixels are too many for a picture", columns, rows);
  return std::nullopt;
}

std::string WriteOutput(const std::string& path, const Drawing& drawing, const Look& look,
                        const Options& options) {
  errno = 0;
  if (!HasEnding(path, ".png")) {
    const bool isWritten = WriteText(path, TextOf(path, drawing, look, options));
    return isWritten ? "" : SystemFailure("cannot write " + path);
  }
  std::string reason;
  const std::optional<Picture> picture = PictureOf(drawing, look, options, reason);
  if (!picture) return reason;
  return WritePng(path, *picture) ? "" : SystemFailure("cannot write " + path);
}

}  // namespace preview
