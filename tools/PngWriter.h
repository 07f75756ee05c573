// A picture as a grey PNG.
#ifndef BARHATCH_TOOLS_PNGWRITER_H
#define BARHATCH_TOOLS_PNGWRITER_H

#include <string>

#include "MarkImage.h"

namespace preview {

// False when the file cannot be written.
bool WritePng(const std::string& path, const Picture& picture);

}  // namespace preview

#endif
