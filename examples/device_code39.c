/* Usage: device_code39
 * The device interface, barhatch.h: marks one Code 39 and prints the strokes in the order in which
 * the head traces them. */
#include <stdio.h>

#include "barhatch_mark.h" /* includes barhatch.h, and has names for its types and patterns */

int main(void) {
  static const BarhatchChar text[] = {'A', 'B', 'C', '-', '1', '2', '3', 0};
  LinearBarcodeInfo info = {.height = 12.0,
                            .width = 60.0,
                            .type = BARHATCH_CODE_39,
                            .DataString = text,
                            .HatchingType = BARHATCH_SCAN_LINES,
                            .LineGap = 0.5,
                            .PrintRatio = 3.0};
  FillBufferInfo* fill = GenerateLinearBarcode(&info);
  if (fill == NULL) {
    fputs("refused; the device interface tells no reason\n", stderr);
    return 1;
  }
  for (const double* c = fill->FilledArray; c < fill->FilledArray + fill->BufferLength; c += 4)
    printf("from %g %g to %g %g\n", c[0], c[1], c[2], c[3]);
  FreeBarcodeData(fill);
  return 0;
}
