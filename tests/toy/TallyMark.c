/* Marks "310" in the toy symbology and tells what came of it. */
#include <stdio.h>
#include <string.h>

#include "barhatch_mark.h"

static int Refused(const char* text, int32_t status, int32_t position) {
  BarhatchJob job = {0};
  BarhatchResult result = {0};
  job.size = sizeof job;
  result.size = sizeof result;
  job.symbology = BARHATCH_TALLY;
  job.want = BARHATCH_WANT_VALIDATION;
  job.text = text;
  BarhatchMark(&job, &result);
  puts(result.message);
  return result.status == status && result.position == position;
}

int main(void) {
  BarhatchJob job = {0};
  BarhatchResult result = {0};
  int32_t i;
  int isRight;
  job.size = sizeof job;
  result.size = sizeof result;
  job.symbology = BARHATCH_TALLY;
  job.text = "310";
  job.x_dimension = 0.5;
  job.height = 5.0;
  job.gap = 0.1;
  if (BarhatchMark(&job, &result) != BARHATCH_OK) {
    puts(result.message);
    return 1;
  }
  for (i = 0; i < result.columns; ++i) putchar(result.modules[i] & BARHATCH_DARK ? '#' : '.');
  printf("\n%s reads %s, %lu strokes\n", result.name, result.reading, (unsigned long)result.strokes_count);
  isRight = result.columns == 5 + 2 + 1 + 2 + 19 && strcmp(result.reading, "310") == 0 &&
            strcmp(result.name, "Tally") == 0 && result.total[0] == -result.x_dimension * 3;
  BarhatchRelease(&result);
  return isRight && Refused("3a", BARHATCH_BAD_CHARACTER, 2) && Refused("", BARHATCH_EMPTY, 0) ? 0 : 1;
}
