#include "mark/EanUpcSentences.h"

#include "symbologies/EanUpcElements.h"
#include "symbologies/SymbologyTable.h"

namespace barhatch {

namespace {

void SayNotStandard(const BarhatchJob& job, Message& message) {
  message << (job.symbology == BARHATCH_UPC_E || job.symbology == BARHATCH_UPC_E_ADDON_2 ||
                      job.symbology == BARHATCH_UPC_E_ADDON_5
                  ? "UPC-E of number system 1 is outside ISO/IEC 15420; set PERMIT"
                  : "an add-on beside EAN-8 is outside ISO/IEC 15420; set PERMIT");
}

void SayAddonDigits(const BarhatchJob& job, std::int32_t digits, std::int32_t place,
                    Message& message) {
  const int asked = EanUpcLayoutOf(RowOf(job.symbology)->drawing.variant).addonDigits;
  message << digits << (digits == 1 ? " digit" : " digits") << " behind + at " << place
          << ": the add-on has ";
  if (asked == 0) {
    message << "2 or 5";
  } else {
    message << asked;
  }
}

void SayUpcEForm(std::int32_t right, std::int32_t place, Message& message) {
  message << "the six digits at " << place << " are no UPC-A number without its zeros: ";
  for (std::int32_t unit = 100000; unit > 0; unit /= 10) message << right / unit % 10;
  message << " are";
}

}  // namespace

void SayEanUpcRefusal(const BarhatchJob& job, const Refusal& refusal, std::int32_t place,
                      Message& message) {
  switch (refusal.reason) {
    case Reason::kNumberSystem:
      message << "number system " << refusal.figure - '0' << " at " << place << " is none: 0 and 1";
      break;
    case Reason::kSecondSign:
      message << "a second + at " << place << ": one stands in front of the add-on";
      break;
    case Reason::kAddonDigits:
      SayAddonDigits(job, refusal.figure, place, message);
      break;
    case Reason::kUpcEForm:
      SayUpcEForm(refusal.figure, place, message);
      break;
    case Reason::kNoUpcE:
      message << "the UPC-A number at " << place << " has no zeros that UPC-E could leave out";
      break;
    default:
      SayNotStandard(job, message);
      break;
  }
}

}  // namespace barhatch
