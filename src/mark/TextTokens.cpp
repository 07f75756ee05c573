#include "mark/TextTokens.h"

#include "gs1/ElementStrings.h"

namespace barhatch {

Refusal TextTokens::Read(const BarhatchJob& job, const InputText& text, std::size_t count,
                         MarkedSymbol& symbol) {
  tokens_ = static_cast<Token*>(memory_.Allocate((count + 1) * sizeof(Token)));
  if (tokens_ == nullptr) return {Reason::kNoMemory};
  length_ = count;
  text.CopyTokens(tokens_, count);
  return job.input == BARHATCH_GS1 ? ParseElements(job, symbol) : Refusal{};
}

Refusal TextTokens::ParseElements(const BarhatchJob& job, MarkedSymbol& symbol) {
  const ElementOptions options = {(job.flags & BARHATCH_PERMIT) != 0, kFnc1Token};
  ElementString found;
  const Refusal refusal = barhatch::ParseElements(Get(), options, memory_, found);
  if (refusal.IsRefused()) return refusal;
  memory_.Release(tokens_);
  tokens_ = found.tokens;
  length_ = found.length;
  symbol.people = found.text;
  symbol.peopleLength = found.textLength;
  if (found.missesPartner) symbol.warnings |= BARHATCH_W_PARTNERS;
  if (found.hasNeedlessSeparator) symbol.warnings |= BARHATCH_W_ELEMENT_ORDER;
  return {};
}

}  // namespace barhatch
