// As WrongLayout.cpp, for the records of the mark interface.
#include <stdint.h>
#define int32_t int64_t
#include "../../src/mark/RecordLayout.cpp"
