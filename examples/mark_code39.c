/* Marks one Code 39: prints the strokes in the order in which the head traces them. */
#include <stdio.h>

#include "barhatch.h"

int main(void) {
  static const BarhatchChar text[] = {'A', 'B', 'C', '-', '1', '2', '3', 0};
  LinearBarcodeInfo info = {.height = 12.0,
                            .width = 60.0,
                            .type = 1,
                            .DataString = text,
                            .LineGap = 0.5,
                            .PrintRatio = 3.0};
  FillBufferInfo* fill = GenerateLinearBarcode(&info);
  if (fill == NULL) return 1;
  for (const double* c = fill->FilledArray; c < fill->FilledArray + fill->BufferLength; c += 4)
    printf("from %g %g to %g %g\n", c[0], c[1], c[2], c[3]);
  FreeBarcodeData(fill);
  return 0;
}
