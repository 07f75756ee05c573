// barhatch.dll on the emulated device, used the way a host there uses it: loaded by the loader's
// steps, entry point called, exports found by name, records written field by field at the offsets
// that hosts were built against.
#ifndef BARHATCH_TESTS_DEVICE_DEVICELIBRARY_H
#define BARHATCH_TESTS_DEVICE_DEVICELIBRARY_H

#include <cstdint>
#include <cstring>
#include <map>
#include <string>
#include <vector>

#include "device/BarcodeLibrary.h"
#include "device/CeMachine.h"
#include "device/CeRuntime.h"
#include "device/PeImage.h"

namespace barhatch::device {

// Loader reasons.
enum Reason : std::uint32_t {
  kProcessDetach = 0,
  kProcessAttach = 1,
  kThreadAttach = 2,
  kThreadDetach = 3
};

// Where the DLL is loaded and how the host's stack lies.
struct Placement {
  std::uint32_t base;
  std::uint32_t stackSkew;
};
constexpr std::uint32_t kLinkedBase = 0x10000000;
constexpr std::uint32_t kOtherBase = 0x15430000;
constexpr Placement kPlacements[] = {
    {kLinkedBase, 0}, {kLinkedBase, 4}, {kOtherBase, 0}, {kOtherBase, 4}};

std::string NameOf(Placement placement);  // for the names of tests

// Symbols of the DLL and their distance from its base, read from the map that is built with it.
class SymbolMap {
 public:
  struct Entry {
    std::uint32_t address;
    std::uint32_t size;
  };
  explicit SymbolMap(const std::string& path);
  Entry At(const std::string& symbol) const { return symbols_.at(symbol); }

 private:
  std::map<std::string, Entry> symbols_;
};

// Writes the fields of a record at their offsets; the bytes between hold 0xEE.
class RecordWriter {
 public:
  explicit RecordWriter(std::size_t size) : bytes_(size, 0xEE) {}
  template <typename T>
  RecordWriter& Put(std::size_t offset, T value) {
    if (offset + sizeof value > bytes_.size()) throw DeviceFault("field outside of its record");
    std::memcpy(bytes_.data() + offset, &value, sizeof value);
    return *this;
  }
  const std::vector<std::uint8_t>& Bytes() const { return bytes_; }

 private:
  std::vector<std::uint8_t> bytes_;
};

class DeviceLibrary : public BarcodeLibrary {
 public:
  // Loads the DLL and calls its entry point for process attach.
  explicit DeviceLibrary(Placement placement = {kOtherBase, 4});

  void InitBarcode() override { Call("InitBarcode", {}); }
  void SetBarcodeType(std::int32_t type) override;
  void SetDataString(const std::u16string& text) override;
  void SetModuleWidth(double moduleWidth) override;
  void SetPrintRatio(double ratio) override;
  void SetImageInversionMode(std::uint8_t invert) override;
  void SetHatchPattern(double lineGap, std::int32_t hatchingType) override;
  void SetBarcodeSize(double width, double height) override;
  void SetBarcodeHeight(std::int32_t height) override;
  void SetCodeFormat(std::int32_t format) override;
  void SetMatrixsize(std::int32_t size) override;
  MaybeText GenerateBarcodeString() override;
  MaybeFill HatchBarcodeString(const std::string& moduleString) override;
  MaybeFill GenerateVectorizedBarcode() override;
  MaybeFill GenerateLinearBarcode(const LinearBarcode& barcode) override;
  MaybeFill GenerateDataMatrixBarcode(const MatrixBarcode& barcode) override;
  std::vector<std::uint8_t> Settings() override;

  // Calls an export by its exact name.
  std::uint32_t Call(const std::string& name, const Words& arguments);
  std::uint32_t CallEntryPoint(std::uint32_t reason);

  // Host memory on the device's heap, exactly as long as what it holds.
  std::uint32_t Place(const void* bytes, std::size_t size);
  std::uint32_t Place(const std::string& text) { return Place(text.c_str(), text.size() + 1); }
  std::uint32_t Place(const std::u16string& text);
  void Remove(std::uint32_t address);

  // Places the record and its text, calls the generator, removes both; the fill buffer's address.
  std::uint32_t CallGenerateDataMatrixBarcode(const MatrixBarcode& barcode);

  // Copies the fill buffer at the address and hands it to FreeBarcodeData.
  MaybeFill TakeFill(std::uint32_t address);

  // Sets the trace stream, which no export does: writes the library's own pointer.
  void AttachTrace(std::uint32_t stream);
  std::uint32_t Trace();

  CeMachine& Machine() { return machine_; }
  CeRuntime& Runtime() { return runtime_; }
  const PeImage& Image() const { return image_; }
  DeviceHeap& Heap() { return machine_.Heap(); }

 private:
  std::vector<std::uint64_t> ReadDoubles(std::uint32_t address, std::size_t count);
  std::uint32_t AddressOf(const std::string& symbol) const;

  PeImage image_;
  SymbolMap map_;
  CeMachine machine_;
  CeRuntime runtime_;
};

}  // namespace barhatch::device

#endif
