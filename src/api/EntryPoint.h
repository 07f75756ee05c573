// What the platform's loader tells the library.
#ifndef BARHATCH_API_ENTRYPOINT_H
#define BARHATCH_API_ENTRYPOINT_H

#include <cstdint>

namespace barhatch {

// The loader's reason codes.
enum LoaderReason : std::uint32_t {
  kProcessDetach = 0,
  kProcessAttach = 1,
  kThreadAttach = 2,
  kThreadDetach = 3,
};

// Process attach: there is no trace stream. Process detach, thread attach and thread detach: a
// trace stream is flushed and closed. Any other reason: nothing. Returns 1, success, for every
// reason.
int HandleLoaderReason(std::uint32_t reason);

}  // namespace barhatch

#endif
