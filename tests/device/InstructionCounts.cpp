#include "device/InstructionCounts.h"

#include "device/LinearCases.h"

namespace barhatch::device {

namespace {

constexpr std::int32_t kPoints = 6;
constexpr std::int32_t kPatterns[] = {0, 1, 2, 3, 5};

double CostOfAStroke(DeviceLibrary& device, std::int32_t pattern) {
  const FillCount few = CountFill(device, pattern, 50.0);
  const FillCount many = CountFill(device, pattern, 100.0);
  return static_cast<double>(many.instructions - few.instructions) / (many.strokes - few.strokes);
}

double CostOfAPoint(DeviceLibrary& device) {
  const auto count = [&](const std::string& letters) {
    const std::uint32_t address = device.Place(letters);
    device.Machine().ResetCounts();
    const std::uint32_t fill = device.Call("HatchBarcodeString", Marshal(address));
    const std::uint64_t instructions = device.Machine().Instructions();
    device.Remove(address);
    device.TakeFill(fill);
    return instructions;
  };
  device.InitBarcode();
  device.SetHatchPattern(1.0, kPoints);
  std::string once;
  for (int i = 0; i < 50; ++i) once += "Aa";
  return static_cast<double>(count(once + once) - count(once)) / 50.0;
}

std::uint64_t CountRecord(DeviceLibrary& device, std::int32_t type) {
  LinearBarcode barcode;
  barcode.type = type;
  barcode.text = Wide(KindOf(type).typical);
  barcode.width = 40.0;
  barcode.height = 10.0;
  barcode.LineGap = 1.0;
  device.GenerateLinearBarcode(barcode);  // its settings stay in force
  device.Machine().ResetCounts();
  const std::uint32_t fill = device.Call("GenerateVectorizedBarcode", {});
  const std::uint64_t instructions = device.Machine().Instructions();
  device.TakeFill(fill);
  return fill == 0 ? 0 : instructions;
}

void AddUnlessRefused(std::vector<InstructionCount>& counts, const std::string& name,
                      std::uint64_t instructions) {
  if (instructions != 0) counts.push_back({name, static_cast<double>(instructions)});
}

// Words and numbers as on a label.
std::u16string LabelText(std::size_t length) {
  const std::u16string sample = u"Part 4711-08/15, Lot 2024-11-21 A; made in Town. ";
  std::u16string text;
  while (text.size() < length) text += sample;
  return text.substr(0, length);
}

void AddMatrices(DeviceLibrary& device, std::vector<InstructionCount>& counts) {
  for (const std::size_t length : {10U, 50U, 300U, 1500U}) {
    AddUnlessRefused(counts, "matrix/text-" + std::to_string(length),
                     CountMatrix(device, LabelText(length)));
  }
  AddUnlessRefused(counts, "matrix/digits-3116", CountMatrix(device, std::u16string(3116, u'7')));
}

}  // namespace

std::uint64_t CountString(DeviceLibrary& device, std::int32_t type, const std::string& text) {
  device.SetBarcodeType(type);
  device.SetDataString(Wide(text));
  device.Machine().ResetCounts();
  const auto letters = device.GenerateBarcodeString();
  return letters ? device.Machine().Instructions() : 0;
}

FillCount CountFill(DeviceLibrary& device, std::int32_t pattern, double lines) {
  constexpr double kNarrow = 0.25;
  device.InitBarcode();
  device.SetBarcodeType(1);
  device.SetDataString(u"A");
  // 47 modules: three characters of 15 (print ratio 3) and two gaps.
  device.SetBarcodeSize(47.0 * kNarrow, pattern == 5 ? 100.0 * kNarrow : 8.0);
  const bool isVertical = pattern == 1 || pattern == 3;
  device.SetHatchPattern((isVertical || pattern == 5 ? kNarrow : 8.0) / (lines + 0.5), pattern);
  const std::uint32_t letters = device.Call("GenerateBarcodeString", {});
  device.Machine().ResetCounts();
  const std::uint32_t address = device.Call("HatchBarcodeString", Marshal(letters));
  const std::uint64_t instructions = device.Machine().Instructions();
  device.Heap().Release(letters, Form::kArray);
  const auto fill = device.TakeFill(address);
  return {instructions, fill ? static_cast<std::uint32_t>(fill->BufferLength) / 4 : 0};
}

std::uint64_t CountMatrix(DeviceLibrary& device, const std::u16string& text) {
  MatrixBarcode barcode;
  barcode.text = text;
  barcode.HatchingType = kPoints;
  device.Machine().ResetCounts();
  const std::uint32_t fill = device.CallGenerateDataMatrixBarcode(barcode);
  const std::uint64_t instructions = device.Machine().Instructions();
  device.TakeFill(fill);
  return fill == 0 ? 0 : instructions;
}

std::vector<InstructionCount> CountInstructions(DeviceLibrary& device) {
  std::vector<InstructionCount> counts;
  device.InitBarcode();
  for (std::int32_t type = 0; type < kTypes; ++type) {
    const TextKind& kind = KindOf(type);
    AddUnlessRefused(counts, std::string("string/") + kind.name,
                     CountString(device, type, kind.typical));
    AddUnlessRefused(counts, std::string("fill/") + kind.name, CountRecord(device, type));
  }
  for (const std::int32_t pattern : kPatterns) {
    counts.push_back({"stroke/" + std::to_string(pattern), CostOfAStroke(device, pattern)});
  }
  counts.push_back({"stroke/" + std::to_string(kPoints), CostOfAPoint(device)});
  AddMatrices(device, counts);
  return counts;
}

}  // namespace barhatch::device
