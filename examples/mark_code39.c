/* Usage: mark_code39 [TEXT]
 * Marks a Code 39, ABC-123 if there is no other text: prints the strokes in the order in which the
 * head traces them, or why there are none, with a caret below the place in the text. */
#include <stdio.h>

#include "barhatch_mark.h"

static void Complain(const char* text, const BarhatchResult* result) {
  if (result->position > 0) fprintf(stderr, "%s\n%*s\n", text, (int)result->position, "^");
  fprintf(stderr, "%s\n", result->message);
}

int main(int argc, char** argv) {
  const char* text = argc == 2 ? argv[1] : "ABC-123";
  BarhatchJob job = {.size = sizeof job,
                     .symbology = BARHATCH_CODE_39,
                     .text = text,
                     .width = 60.0,
                     .height = 12.0,
                     .gap = 0.5};
  BarhatchResult result = {.size = sizeof result};
  if (argc > 2) {
    fputs("Usage: mark_code39 [TEXT]\n", stderr);
    return 2;
  }
  if (BarhatchMark(&job, &result) != BARHATCH_OK) Complain(text, &result);
  for (size_t i = 0; i < result.strokes_count; ++i) {
    const double* c = result.strokes + 4 * i;
    printf("from %g %g to %g %g\n", c[0], c[1], c[2], c[3]);
  }
  BarhatchRelease(&result);
  return result.status == BARHATCH_OK ? 0 : 1;
}
