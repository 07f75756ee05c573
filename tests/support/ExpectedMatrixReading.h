// What a standard reader makes of a Data Matrix of the library: the plain encodation with the
// deviations of docs/deviations.md, read by the plain reader, and held to what the register says.
#ifndef BARHATCH_TESTS_SUPPORT_EXPECTEDMATRIXREADING_H
#define BARHATCH_TESTS_SUPPORT_EXPECTEDMATRIXREADING_H

#include <optional>
#include <string>

#include "support/DataMatrixReader.h"
#include "support/ReferenceEncodation.h"
#include "support/SymbolSizeReference.h"

namespace barhatch::test {

struct ExpectedMatrixReading {
  std::optional<ReferenceSize> size;  // none: the text is refused
  Reading reading;                    // sound or not, with what stands in front of the break
  std::string ids;                    // the rows that change what is read, up to the break
};

ExpectedMatrixReading ExpectedReadingOfMatrix(const std::u16string& text, int codeFormat,
                                              const ReferenceRequest& request);

}  // namespace barhatch::test

#endif
