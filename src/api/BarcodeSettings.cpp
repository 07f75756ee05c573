#include "api/BarcodeSettings.h"

namespace barhatch {

namespace {

BarcodeSettings settingsOfTheProcess;

}  // namespace

BarcodeSettings& CurrentSettings() { return settingsOfTheProcess; }

void ResetSettings(BarcodeSettings& settings) {
  settings.type = 0;
  settings.DataString[0] = u'1';
  settings.DataString[1] = u'2';
  settings.DataString[2] = u'3';
  settings.DataString[3] = u'\0';
  settings.DataStringRefused = false;
  settings.width = 1.0;
  settings.height = 0.5;
  settings.ModuleWidth = 2.0;
  settings.PrintRatio = 3.0;
  settings.InvertImage = 0;
  settings.HatchingType = 0;
  settings.LineGap = 0.0001;
  settings.QuietZone = 0;
  settings.QuietZoneSize = 1;
  settings.BorderWidth = 0;
  settings.MatrixSize = 0x0C0C;  // 12 rows, 12 columns
  settings.format = 0;
  settings.IsExpanding = 0;
  settings.FillHeight = 0.5;
  settings.FillWidth = 1.0;
  settings.ReservedInteger3 = 3;
  settings.ReservedInteger90 = 90;
  settings.ReservedDouble = 0.0;
}

}  // namespace barhatch
