#include "device/DeviceLibrary.h"

#include <fstream>
#include <sstream>
#include <stdexcept>

namespace barhatch::device {

namespace {

constexpr std::size_t kLinearBarcodeInfoSize = 72;
constexpr std::size_t kDataMatrixBarcodeInfoSize = 56;
constexpr char kSetMatrixsize[] = "?SetMatrixsize@@YAXW4_matrixSize@@@Z";
constexpr char kTrace[] = "barhatch::(anonymous namespace)::traceStream";
constexpr char kSettings[] = "barhatch::(anonymous namespace)::settingsOfTheProcess";

std::vector<std::uint8_t> LinearRecord(const LinearBarcode& barcode, std::uint32_t text) {
  return RecordWriter(kLinearBarcodeInfoSize)
      .Put(0, barcode.height)
      .Put(8, barcode.width)
      .Put(16, barcode.type)
      .Put(20, text)
      .Put(24, barcode.HatchingType)
      .Put(32, barcode.LineGap)
      .Put(40, barcode.InvertImage)
      .Put(48, barcode.PrintRatio)
      .Put(56, barcode.QuietZone)
      .Put(60, barcode.QuietZoneSize)
      .Put(64, barcode.BorderWidth)
      .Bytes();
}

std::vector<std::uint8_t> MatrixRecord(const MatrixBarcode& barcode, std::uint32_t text) {
  return RecordWriter(kDataMatrixBarcodeInfoSize)
      .Put(0, barcode.height)
      .Put(8, barcode.format)
      .Put(12, text)
      .Put(16, barcode.HatchingType)
      .Put(24, barcode.LineGap)
      .Put(32, barcode.InvertImage)
      .Put(36, barcode.MatrixSize)
      .Put(40, barcode.IsExpanding)
      .Put(41, barcode.QuietZone)
      .Put(44, barcode.QuietZoneSize)
      .Put(48, barcode.BorderWidth)
      .Bytes();
}

}  // namespace

std::string NameOf(Placement placement) {
  return (placement.base == kLinkedBase ? "LinkedBaseSkew" : "OtherBaseSkew") +
         std::to_string(placement.stackSkew);
}

SymbolMap::SymbolMap(const std::string& path) {
  std::ifstream in(path);
  if (!in) throw std::runtime_error("cannot open " + path);
  for (std::string line; std::getline(in, line);) {
    std::istringstream fields(line);
    Entry entry{};
    std::string name;
    if (fields >> std::hex >> entry.address >> std::dec >> entry.size >> std::ws &&
        std::getline(fields, name)) {
      entry.address -= kLinkedBase;
      symbols_[name] = entry;
    }
  }
}

DeviceLibrary::DeviceLibrary(Placement placement)
    : image_(ReadPeFile(BARHATCH_DEVICE_DIRECTORY "/barhatch.dll")),
      map_(BARHATCH_DEVICE_DIRECTORY "/barhatch.map"),
      runtime_(machine_) {
  machine_.SetStackSkew(placement.stackSkew);
  machine_.Load(image_, placement.base,
                [this](const PeImage::Import& import) { return runtime_.Resolve(import); });
  if (CallEntryPoint(kProcessAttach) != 1) throw DeviceFault("the entry point refused");
}

std::uint32_t DeviceLibrary::Call(const std::string& name, const Words& arguments) {
  const auto function = image_.exports.find(name);
  if (function == image_.exports.end()) throw DeviceFault("no export " + name);
  return machine_.Call(machine_.Base() + function->second, arguments);
}

std::uint32_t DeviceLibrary::CallEntryPoint(std::uint32_t reason) {
  return machine_.Call(machine_.Base() + image_.entry, Marshal(machine_.Base(), reason, 0));
}

std::uint32_t DeviceLibrary::Place(const void* bytes, std::size_t size) {
  const std::uint32_t address = Heap().Allocate(static_cast<std::uint32_t>(size), Form::kMalloc);
  if (address == 0) throw DeviceFault("no memory for the host");
  machine_.Write(address, bytes, size);
  return address;
}

std::uint32_t DeviceLibrary::Place(const std::u16string& text) {
  return Place(text.c_str(), sizeof(char16_t) * (text.size() + 1));
}

void DeviceLibrary::Remove(std::uint32_t address) {
  if (!Heap().Release(address, Form::kMalloc)) throw DeviceFault("not placed by the host");
}

void DeviceLibrary::SetBarcodeType(std::int32_t type) { Call("SetBarcodeType", Marshal(type)); }

void DeviceLibrary::SetDataString(const std::u16string& text) {
  const std::uint32_t address = Place(text);
  Call("SetDataString", Marshal(address));
  Remove(address);
}

void DeviceLibrary::SetModuleWidth(double moduleWidth) {
  Call("SetModuleWidth", Marshal(moduleWidth));
}

void DeviceLibrary::SetPrintRatio(double ratio) { Call("SetPrintRatio", Marshal(ratio)); }

void DeviceLibrary::SetImageInversionMode(std::uint8_t invert) {
  Call("SetImageInversionMode", Marshal(0x5A5A5A00U | invert));  // the low byte alone counts
}

void DeviceLibrary::SetHatchPattern(double lineGap, std::int32_t hatchingType) {
  Call("SetHatchPattern", Marshal(lineGap, hatchingType));
}

void DeviceLibrary::SetBarcodeSize(double width, double height) {
  Call("SetBarcodeSize", Marshal(width, height));
}

void DeviceLibrary::SetBarcodeHeight(std::int32_t height) {
  Call("SetBarcodeHeight", Marshal(height));
}

void DeviceLibrary::SetCodeFormat(std::int32_t format) { Call("SetCodeFormat", Marshal(format)); }
void DeviceLibrary::SetMatrixsize(std::int32_t size) { Call(kSetMatrixsize, Marshal(size)); }

BarcodeLibrary::MaybeText DeviceLibrary::GenerateBarcodeString() {
  const std::uint32_t address = Call("GenerateBarcodeString", {});
  if (address == 0) return std::nullopt;
  const std::string letters = machine_.ReadText(address);
  if (!Heap().Release(address, Form::kArray)) throw DeviceFault("no array");
  return letters;
}

BarcodeLibrary::MaybeFill DeviceLibrary::HatchBarcodeString(const std::string& moduleString) {
  const std::uint32_t letters = Place(moduleString);
  const std::uint32_t fill = Call("HatchBarcodeString", Marshal(letters));
  Remove(letters);
  return TakeFill(fill);
}

BarcodeLibrary::MaybeFill DeviceLibrary::GenerateVectorizedBarcode() {
  return TakeFill(Call("GenerateVectorizedBarcode", {}));
}

BarcodeLibrary::MaybeFill DeviceLibrary::GenerateLinearBarcode(const LinearBarcode& barcode) {
  const std::uint32_t text = Place(barcode.text);
  const std::vector<std::uint8_t> bytes = LinearRecord(barcode, text);
  const std::uint32_t record = Place(bytes.data(), bytes.size());
  const std::uint32_t fill = Call("GenerateLinearBarcode", Marshal(record));
  Remove(record);
  Remove(text);
  return TakeFill(fill);
}

std::uint32_t DeviceLibrary::CallGenerateDataMatrixBarcode(const MatrixBarcode& barcode) {
  const std::uint32_t text = Place(barcode.text);
  const std::vector<std::uint8_t> bytes = MatrixRecord(barcode, text);
  const std::uint32_t record = Place(bytes.data(), bytes.size());
  const std::uint32_t fill = Call("GenerateDataMatrixBarcode", Marshal(record));
  Remove(record);
  Remove(text);
  return fill;
}

BarcodeLibrary::MaybeFill DeviceLibrary::GenerateDataMatrixBarcode(const MatrixBarcode& barcode) {
  return TakeFill(CallGenerateDataMatrixBarcode(barcode));
}

BarcodeLibrary::MaybeFill DeviceLibrary::TakeFill(std::uint32_t address) {
  if (address == 0) return std::nullopt;
  Fill fill;
  machine_.Read(address, &fill.FillingShapeType, 4);
  machine_.Read(address + 4, &fill.BufferLength, 4);
  if (const std::uint32_t array = machine_.ReadWord(address + 8)) {
    fill.FilledArray = ReadDoubles(array, static_cast<std::size_t>(fill.BufferLength));
  }
  const std::vector<std::uint64_t> extents = ReadDoubles(address + 16, 2);
  fill.FillHeight = extents[0];
  fill.FillWidth = extents[1];
  Call("FreeBarcodeData", Marshal(address));
  return fill;
}

std::vector<std::uint64_t> DeviceLibrary::ReadDoubles(std::uint32_t address, std::size_t count) {
  std::vector<double> values(count);
  machine_.Read(address, values.data(), sizeof(double) * count);
  std::vector<std::uint64_t> bits;
  for (const double value : values) bits.push_back(BitsOf(value));
  return bits;
}

std::uint32_t DeviceLibrary::AddressOf(const std::string& symbol) const {
  return machine_.Base() + map_.At(symbol).address;
}

void DeviceLibrary::AttachTrace(std::uint32_t stream) {
  machine_.Write(AddressOf(kTrace), &stream, sizeof stream);
}

std::uint32_t DeviceLibrary::Trace() { return machine_.ReadWord(AddressOf(kTrace)); }

std::vector<std::uint8_t> DeviceLibrary::Settings() {
  std::vector<std::uint8_t> bytes(map_.At(kSettings).size);
  machine_.Read(AddressOf(kSettings), bytes.data(), bytes.size());
  MakeNansAlike(bytes);
  return bytes;
}

}  // namespace barhatch::device
