/* A host in plain C: what barhatch.h promises holds for a C99 compiler, and the library needs nothing of C++ from it. */
#include <stdio.h>
#include <string.h>

#include "barhatch.h"

static int failures = 0;

static void Check(int holds, const char* what) {
  if (!holds) {
    printf("failed: %s\n", what);
    ++failures;
  }
}

static const BarhatchChar kText[] = {'A', '1', 0};

/* What the loader leaves, before any other call: every setting is zero. */
static void CheckBeforeInit(void) {
  FillBufferInfo* fill;
  Check(GenerateBarcodeString() == NULL, "Codabar, type 0, has no symbol for the empty text");
  Check(GenerateVectorizedBarcode() == NULL, "nor a fill");
  Check(HatchBarcodeString("AaA") == NULL, "a line gap of zero fills nothing");
  SetHatchPattern(0.0, 6);
  fill = HatchBarcodeString("AaA");
  Check(fill != NULL && fill->BufferLength == 4, "points need no gap");
  if (fill != NULL) {
    Check(fill->FilledArray[2] == 0.0 && fill->FilledArray[3] == 0.0, "width and height are zero");
    Check(fill->FillHeight == 0.0 && fill->FillWidth == 0.0, "and so are the extents");
  }
  FreeBarcodeData(fill);
  Check(HatchBarcodeString("Bb") == NULL, "with a print ratio of zero wide elements have no width");
}

static void CheckSetters(void) {
  FillBufferInfo* fill;
  InitBarcode();
  SetBarcodeType(1);
  SetDataString(kText);
  SetModuleWidth(2.0);
  SetPrintRatio(3.0);
  SetImageInversionMode(0);
  SetHatchPattern(0.1, 6);
  SetBarcodeSize(63.0, 10.0);
  SetBarcodeHeight(8);
  SetCodeFormat(0);
  fill = GenerateVectorizedBarcode();
  Check(fill != NULL, "GenerateVectorizedBarcode gives a fill");
  if (fill != NULL) {
    /* "*A1*" has four characters of five bars; 63 modules with a print ratio of 3 are one unit each. */
    Check(fill->FillingShapeType == 2, "hatching type 6 gives points");
    Check(fill->BufferLength == 2 * 20, "one point for each bar");
    Check(fill->FilledArray[0] == 0.5 && fill->FilledArray[1] == 4.0, "the first bar is one module wide");
    Check(fill->FillHeight == 8.0 && fill->FillWidth == 43.0, "extents");
  }
  FreeBarcodeData(fill);
}

static void CheckRecord(void) {
  LinearBarcodeInfo info;
  FillBufferInfo* fill;
  memset(&info, 0, sizeof info);
  info.height = 8.0;
  info.width = 63.0;
  info.type = 1;
  info.DataString = kText;
  info.LineGap = 4.0;
  info.PrintRatio = 3.0;
  fill = GenerateLinearBarcode(&info);
  Check(fill != NULL && fill->FillingShapeType == 0 && fill->BufferLength == 4 * 20 * 2, "two lines across 20 bars");
  FreeBarcodeData(fill);
  info.type = 23;
  Check(GenerateLinearBarcode(&info) == NULL, "an unknown type gives null");
  Check(GenerateBarcodeString() == NULL, "its settings stay in force");
}

static void CheckLayoutRecord(void) {
  FillBufferInfo* record = TestStruct();
  Check(record != NULL && record->BufferLength == 12345 && record->FilledArray == NULL, "TestStruct");
  FreeBarcodeData(record);
  FreeBarcodeData(NULL);
}

static void CheckOwnString(void) {
  FillBufferInfo* fill;
  SetHatchPattern(1.0, 1);
  SetBarcodeSize(3.0, 1.0);
  fill = HatchBarcodeString("AaA");
  Check(fill != NULL && fill->BufferLength == 8, "a string of the host's own is hatched");
  FreeBarcodeData(fill);
}

int main(void) {
  CheckBeforeInit();
  CheckSetters();
  CheckRecord();
  CheckLayoutRecord();
  CheckOwnString();
  printf("%d checks failed\n", failures);
  return failures == 0 ? 0 : 1;
}
