/* A host in C: the points of a Code 39 symbol of nine characters, five bars each. */
#include <barhatch.h>
#include <stdio.h>

int main(void) {
  static const BarhatchChar text[] = {'A', 'B', 'C', '-', '1', '2', '3', 0};
  LinearBarcodeInfo info = {0};
  FillBufferInfo* fill;
  InitBarcode();
  info.type = 1;
  info.DataString = text;
  info.width = 60.0;
  info.height = 12.0;
  info.PrintRatio = 3.0;
  info.HatchingType = 6;
  fill = GenerateLinearBarcode(&info);
  if (fill == NULL) return 1;
  printf("%d points\n", fill->BufferLength / 2);
  FreeBarcodeData(fill);
  return 0;
}
