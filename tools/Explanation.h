// Says, by the rules of the documents and without asking the library, whether a text makes a
// symbol, and which departures from a standard touch it.
#ifndef BARHATCH_TOOLS_EXPLANATION_H
#define BARHATCH_TOOLS_EXPLANATION_H

#include <string>
#include <vector>

#include "BarcodeText.h"
#include "Departures.h"

namespace preview {

struct Explanation {
  bool isAccepted = false;
  std::string reason;  // of a refusal: a sentence without its full stop
  std::vector<const Departure*> departures;
  std::vector<std::string> notes;  // what else becomes of the text
};

Explanation Explain(const BarcodeText& text);

}  // namespace preview

#endif
