#include "api/EntryPoint.h"

#include "api/ApiTrace.h"

namespace barhatch {

int HandleLoaderReason(std::uint32_t reason) {
  switch (reason) {
    case kProcessAttach:
      ForgetApiTrace();
      break;
    case kProcessDetach:
    case kThreadAttach:
    case kThreadDetach:
      EndApiTrace();
      break;
    default:
      break;
  }
  return 1;
}

}  // namespace barhatch

#ifdef BARHATCH_HAS_LOADER_ENTRY
extern "C" int DllMain(void* module, std::uint32_t reason, void* reserved);
int DllMain(void* /*module*/, std::uint32_t reason, void* /*reserved*/) {
  return barhatch::HandleLoaderReason(reason);
}
#endif
