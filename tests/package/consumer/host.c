/* A host in C: the points of a Code 39 symbol of nine characters, five bars each, by both interfaces. */
#include <barhatch_mark.h>
#include <stdio.h>

static int PointsOfTheDevice(void) {
  static const BarhatchChar text[] = {'A', 'B', 'C', '-', '1', '2', '3', 0};
  LinearBarcodeInfo info = {0};
  FillBufferInfo* fill;
  int points = 0;
  InitBarcode();
  info.type = BARHATCH_CODE_39;
  info.DataString = text;
  info.width = 60.0;
  info.height = 12.0;
  info.PrintRatio = 3.0;
  info.HatchingType = BARHATCH_POINTS;
  fill = GenerateLinearBarcode(&info);
  if (fill != NULL) points = fill->BufferLength / 2;
  FreeBarcodeData(fill);
  return points;
}

int main(void) {
  BarhatchJob job = {0};
  BarhatchResult result = {0};
  job.size = sizeof job;
  job.symbology = BARHATCH_CODE_39;
  job.text = "ABC-123";
  job.width = 60.0;
  job.height = 12.0;
  job.pattern = BARHATCH_POINTS;
  result.size = sizeof result;
  if (BarhatchMark(&job, &result) != BARHATCH_OK) {
    puts(result.message);
    return 1;
  }
  if ((int)result.strokes_count == PointsOfTheDevice()) printf("%d points\n", (int)result.strokes_count);
  BarhatchRelease(&result);
  return 0;
}
