// Writes a drawing to a file whose ending says what it is.
#ifndef BARHATCH_TOOLS_OUTPUTS_H
#define BARHATCH_TOOLS_OUTPUTS_H

#include <optional>
#include <string>

#include "CommandLine.h"
#include "Drawing.h"
#include "MarkImage.h"

namespace preview {

// How pictures show a drawing whose symbols are so wide and have modules of that size.
Look LookOf(const Options& options, double symbolWidth, double moduleSize);

// Nothing and a reason where the picture would be too large.
std::optional<Picture> PictureOf(const Drawing& drawing, const Look& look, const Options& options,
                                 std::string& reason);

// Empty, or why the file was not written.
std::string WriteOutput(const std::string& path, const Drawing& drawing, const Look& look,
                        const Options& options);

}  // namespace preview

#endif
