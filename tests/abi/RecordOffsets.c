/* Prints every field of the records that Python hosts declare: its offset and size here, then the
 * size of the record. */
#include <stddef.h>
#include <stdio.h>

#include "barhatch_mark.h"

#define FIELD(record, field)                                                  \
  printf("%s.%s %u %u\n", #record, #field, (unsigned)offsetof(record, field), \
         (unsigned)sizeof(((record*)0)->field))
#define SIZE(record) printf("%s %u\n", #record, (unsigned)sizeof(record))

int main(void) {
  FIELD(BarhatchJob, size);
  FIELD(BarhatchJob, symbology);
  FIELD(BarhatchJob, conformance);
  FIELD(BarhatchJob, input);
  FIELD(BarhatchJob, text);
  FIELD(BarhatchJob, length);
  FIELD(BarhatchJob, envelope);
  FIELD(BarhatchJob, check);
  FIELD(BarhatchJob, eci);
  FIELD(BarhatchJob, rows);
  FIELD(BarhatchJob, columns);
  FIELD(BarhatchJob, shape);
  FIELD(BarhatchJob, flags);
  FIELD(BarhatchJob, addon_gap);
  FIELD(BarhatchJob, pattern);
  FIELD(BarhatchJob, profile);
  FIELD(BarhatchJob, want);
  FIELD(BarhatchJob, invert);
  FIELD(BarhatchJob, dots_per_module);
  FIELD(BarhatchJob, order);
  FIELD(BarhatchJob, x_dimension);
  FIELD(BarhatchJob, width);
  FIELD(BarhatchJob, height);
  FIELD(BarhatchJob, ratio);
  FIELD(BarhatchJob, quiet);
  FIELD(BarhatchJob, units_per_mm);
  FIELD(BarhatchJob, gap);
  FIELD(BarhatchJob, beam_x);
  FIELD(BarhatchJob, beam_y);
  FIELD(BarhatchJob, growth_x);
  FIELD(BarhatchJob, growth_y);
  FIELD(BarhatchJob, dot);
  FIELD(BarhatchJob, mark_speed);
  FIELD(BarhatchJob, jump_speed);
  FIELD(BarhatchJob, stroke_delay);
  FIELD(BarhatchJob, jump_delay);
  FIELD(BarhatchJob, radius);
  FIELD(BarhatchJob, tolerance);
  FIELD(BarhatchJob, allocate);
  FIELD(BarhatchJob, release);
  FIELD(BarhatchJob, context);
  FIELD(BarhatchJob, reserved);
  FIELD(BarhatchJob, part);
  FIELD(BarhatchJob, parts);
  FIELD(BarhatchJob, part_id);
  FIELD(BarhatchJob, part_reserved);
  SIZE(BarhatchJob);
  FIELD(BarhatchResult, size);
  FIELD(BarhatchResult, status);
  FIELD(BarhatchResult, warnings);
  FIELD(BarhatchResult, position);
  FIELD(BarhatchResult, extent);
  FIELD(BarhatchResult, kind);
  FIELD(BarhatchResult, rows);
  FIELD(BarhatchResult, columns);
  FIELD(BarhatchResult, codewords);
  FIELD(BarhatchResult, capacity);
  FIELD(BarhatchResult, message);
  FIELD(BarhatchResult, strokes_count);
  FIELD(BarhatchResult, strokes);
  FIELD(BarhatchResult, modules);
  FIELD(BarhatchResult, values);
  FIELD(BarhatchResult, values_count);
  FIELD(BarhatchResult, hri);
  FIELD(BarhatchResult, reading);
  FIELD(BarhatchResult, reading_length);
  FIELD(BarhatchResult, name);
  FIELD(BarhatchResult, accepts);
  FIELD(BarhatchResult, deviations_met);
  FIELD(BarhatchResult, block);
  FIELD(BarhatchResult, x_dimension);
  FIELD(BarhatchResult, symbol);
  FIELD(BarhatchResult, total);
  FIELD(BarhatchResult, mark_length);
  FIELD(BarhatchResult, jump_length);
  FIELD(BarhatchResult, narrowest);
  FIELD(BarhatchResult, seconds);
  FIELD(BarhatchResult, deviations);
  SIZE(BarhatchResult);
  FIELD(FillBufferInfo, FillingShapeType);
  FIELD(FillBufferInfo, BufferLength);
  FIELD(FillBufferInfo, FilledArray);
  FIELD(FillBufferInfo, FillHeight);
  FIELD(FillBufferInfo, FillWidth);
  SIZE(FillBufferInfo);
  return 0;
}
