// The records of the mark interface are an interface between binaries as those of barhatch.h are:
// hosts know these offsets. Pointers and size_t come in a row of even number, so that no field
// needs padding and the offsets are the same whether doubles are aligned to 8 bytes or to 4.
#include <stddef.h>

#include "barhatch_mark.h"

namespace {

constexpr bool kHasLongPointers = sizeof(void*) == 8;
static_assert(sizeof(void*) == sizeof(size_t) && sizeof(void (*)()) == sizeof(size_t), "");

// The offset with pointers of 8 bytes, and with those of 4.
constexpr bool LiesAt(size_t offset, size_t ofLong, size_t ofShort) {
  return offset == (kHasLongPointers ? ofLong : ofShort);
}

static_assert(LiesAt(offsetof(BarhatchJob, size), 0, 0), "");
static_assert(LiesAt(offsetof(BarhatchJob, symbology), 4, 4), "");
static_assert(LiesAt(offsetof(BarhatchJob, conformance), 8, 8), "");
static_assert(LiesAt(offsetof(BarhatchJob, input), 12, 12), "");
static_assert(LiesAt(offsetof(BarhatchJob, text), 16, 16), "");
static_assert(LiesAt(offsetof(BarhatchJob, length), 24, 20), "");
static_assert(LiesAt(offsetof(BarhatchJob, envelope), 32, 24), "");
static_assert(LiesAt(offsetof(BarhatchJob, check), 36, 28), "");
static_assert(LiesAt(offsetof(BarhatchJob, eci), 40, 32), "");
static_assert(LiesAt(offsetof(BarhatchJob, rows), 44, 36), "");
static_assert(LiesAt(offsetof(BarhatchJob, columns), 48, 40), "");
static_assert(LiesAt(offsetof(BarhatchJob, shape), 52, 44), "");
static_assert(LiesAt(offsetof(BarhatchJob, flags), 56, 48), "");
static_assert(LiesAt(offsetof(BarhatchJob, addon_gap), 60, 52), "");
static_assert(LiesAt(offsetof(BarhatchJob, pattern), 64, 56), "");
static_assert(LiesAt(offsetof(BarhatchJob, profile), 68, 60), "");
static_assert(LiesAt(offsetof(BarhatchJob, want), 72, 64), "");
static_assert(LiesAt(offsetof(BarhatchJob, invert), 76, 68), "");
static_assert(LiesAt(offsetof(BarhatchJob, dots_per_module), 80, 72), "");
static_assert(LiesAt(offsetof(BarhatchJob, order), 84, 76), "");
static_assert(LiesAt(offsetof(BarhatchJob, x_dimension), 88, 80), "");
static_assert(LiesAt(offsetof(BarhatchJob, width), 96, 88), "");
static_assert(LiesAt(offsetof(BarhatchJob, height), 104, 96), "");
static_assert(LiesAt(offsetof(BarhatchJob, ratio), 112, 104), "");
static_assert(LiesAt(offsetof(BarhatchJob, quiet), 120, 112), "");
static_assert(LiesAt(offsetof(BarhatchJob, units_per_mm), 128, 120), "");
static_assert(LiesAt(offsetof(BarhatchJob, gap), 136, 128), "");
static_assert(LiesAt(offsetof(BarhatchJob, beam_x), 144, 136), "");
static_assert(LiesAt(offsetof(BarhatchJob, beam_y), 152, 144), "");
static_assert(LiesAt(offsetof(BarhatchJob, growth_x), 160, 152), "");
static_assert(LiesAt(offsetof(BarhatchJob, growth_y), 168, 160), "");
static_assert(LiesAt(offsetof(BarhatchJob, dot), 176, 168), "");
static_assert(LiesAt(offsetof(BarhatchJob, mark_speed), 184, 176), "");
static_assert(LiesAt(offsetof(BarhatchJob, jump_speed), 192, 184), "");
static_assert(LiesAt(offsetof(BarhatchJob, stroke_delay), 200, 192), "");
static_assert(LiesAt(offsetof(BarhatchJob, jump_delay), 208, 200), "");
static_assert(LiesAt(offsetof(BarhatchJob, radius), 216, 208), "");
static_assert(LiesAt(offsetof(BarhatchJob, tolerance), 224, 216), "");
static_assert(LiesAt(offsetof(BarhatchJob, allocate), 232, 224), "");
static_assert(LiesAt(offsetof(BarhatchJob, release), 240, 228), "");
static_assert(LiesAt(offsetof(BarhatchJob, context), 248, 232), "");
static_assert(LiesAt(offsetof(BarhatchJob, reserved), 256, 236), "");
static_assert(LiesAt(offsetof(BarhatchJob, part), 264, 240), "");
static_assert(LiesAt(offsetof(BarhatchJob, parts), 268, 244), "");
static_assert(LiesAt(offsetof(BarhatchJob, part_id), 272, 248), "");
static_assert(LiesAt(offsetof(BarhatchJob, part_reserved), 276, 252), "");
static_assert(LiesAt(sizeof(BarhatchJob), 280, 256), "");

static_assert(LiesAt(offsetof(BarhatchResult, size), 0, 0), "");
static_assert(LiesAt(offsetof(BarhatchResult, status), 4, 4), "");
static_assert(LiesAt(offsetof(BarhatchResult, warnings), 8, 8), "");
static_assert(LiesAt(offsetof(BarhatchResult, position), 12, 12), "");
static_assert(LiesAt(offsetof(BarhatchResult, extent), 16, 16), "");
static_assert(LiesAt(offsetof(BarhatchResult, kind), 20, 20), "");
static_assert(LiesAt(offsetof(BarhatchResult, rows), 24, 24), "");
static_assert(LiesAt(offsetof(BarhatchResult, columns), 28, 28), "");
static_assert(LiesAt(offsetof(BarhatchResult, codewords), 32, 32), "");
static_assert(LiesAt(offsetof(BarhatchResult, capacity), 36, 36), "");
static_assert(LiesAt(offsetof(BarhatchResult, message), 40, 40), "");
static_assert(LiesAt(offsetof(BarhatchResult, strokes_count), 200, 200), "");
static_assert(LiesAt(offsetof(BarhatchResult, strokes), 208, 204), "");
static_assert(LiesAt(offsetof(BarhatchResult, modules), 216, 208), "");
static_assert(LiesAt(offsetof(BarhatchResult, values), 224, 212), "");
static_assert(LiesAt(offsetof(BarhatchResult, values_count), 232, 216), "");
static_assert(LiesAt(offsetof(BarhatchResult, hri), 240, 220), "");
static_assert(LiesAt(offsetof(BarhatchResult, reading), 248, 224), "");
static_assert(LiesAt(offsetof(BarhatchResult, reading_length), 256, 228), "");
static_assert(LiesAt(offsetof(BarhatchResult, name), 264, 232), "");
static_assert(LiesAt(offsetof(BarhatchResult, accepts), 272, 236), "");
static_assert(LiesAt(offsetof(BarhatchResult, deviations_met), 280, 240), "");
static_assert(LiesAt(offsetof(BarhatchResult, block), 288, 244), "");
static_assert(LiesAt(offsetof(BarhatchResult, x_dimension), 296, 248), "");
static_assert(LiesAt(offsetof(BarhatchResult, symbol), 304, 256), "");
static_assert(LiesAt(offsetof(BarhatchResult, total), 336, 288), "");
static_assert(LiesAt(offsetof(BarhatchResult, mark_length), 368, 320), "");
static_assert(LiesAt(offsetof(BarhatchResult, jump_length), 376, 328), "");
static_assert(LiesAt(offsetof(BarhatchResult, narrowest), 384, 336), "");
static_assert(LiesAt(offsetof(BarhatchResult, seconds), 392, 344), "");
static_assert(LiesAt(offsetof(BarhatchResult, deviations), 400, 352), "");
static_assert(LiesAt(sizeof(BarhatchResult), 408, 360), "");

}  // namespace
