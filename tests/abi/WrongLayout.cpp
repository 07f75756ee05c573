// The record layouts with a header in which every int32_t is twice as wide: has to be refused by
// the assertions.
#include <stdint.h>
#define int32_t int64_t
#include "../../src/api/RecordLayout.cpp"
