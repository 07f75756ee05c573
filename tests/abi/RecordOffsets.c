/* Prints every field of every record: its offset and size here, then the size of the record. */
#include <stddef.h>
#include <stdio.h>

#include "barhatch.h"

#define FIELD(record, field)                                                  \
  printf("%s.%s %u %u\n", #record, #field, (unsigned)offsetof(record, field), \
         (unsigned)sizeof(((record*)0)->field))
#define SIZE(record) printf("%s %u\n", #record, (unsigned)sizeof(record))

int main(void) {
  FIELD(LinearBarcodeInfo, height);
  FIELD(LinearBarcodeInfo, width);
  FIELD(LinearBarcodeInfo, type);
  FIELD(LinearBarcodeInfo, DataString);
  FIELD(LinearBarcodeInfo, HatchingType);
  FIELD(LinearBarcodeInfo, LineGap);
  FIELD(LinearBarcodeInfo, InvertImage);
  FIELD(LinearBarcodeInfo, PrintRatio);
  FIELD(LinearBarcodeInfo, QuietZone);
  FIELD(LinearBarcodeInfo, QuietZoneSize);
  FIELD(LinearBarcodeInfo, BorderWidth);
  SIZE(LinearBarcodeInfo);
  FIELD(DataMatrixBarcodeInfo, height);
  FIELD(DataMatrixBarcodeInfo, format);
  FIELD(DataMatrixBarcodeInfo, DataString);
  FIELD(DataMatrixBarcodeInfo, HatchingType);
  FIELD(DataMatrixBarcodeInfo, LineGap);
  FIELD(DataMatrixBarcodeInfo, InvertImage);
  FIELD(DataMatrixBarcodeInfo, MatrixSize);
  FIELD(DataMatrixBarcodeInfo, IsExpanding);
  FIELD(DataMatrixBarcodeInfo, QuietZone);
  FIELD(DataMatrixBarcodeInfo, QuietZoneSize);
  FIELD(DataMatrixBarcodeInfo, BorderWidth);
  SIZE(DataMatrixBarcodeInfo);
  FIELD(TwoDStringResult, numrows);
  FIELD(TwoDStringResult, numcols);
  FIELD(TwoDStringResult, data);
  SIZE(TwoDStringResult);
  FIELD(FillBufferInfo, FillingShapeType);
  FIELD(FillBufferInfo, BufferLength);
  FIELD(FillBufferInfo, FilledArray);
  FIELD(FillBufferInfo, FillHeight);
  FIELD(FillBufferInfo, FillWidth);
  SIZE(FillBufferInfo);
  return 0;
}
