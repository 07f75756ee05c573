// An emulated ARM of architecture v4T without floating-point unit, with a stack, a heap and one
// DLL.
//
// The machine is stricter than the device. It refuses instructions of any newer architecture,
// writes to code and constants, accesses to heap memory outside of a live block, and calls that do
// not restore the stack pointer and r4-r11 or do not come to an end. A refusal is an exception
// (DeviceFault) out of Call.
//
//   0x10000000..  the DLL, wherever it is loaded     0x60000000  stack, 64 KiB as on the device
//   0x20000000    heap, watched                      0x70000000  functions of the runtime
#ifndef BARHATCH_TESTS_DEVICE_CEMACHINE_H
#define BARHATCH_TESTS_DEVICE_CEMACHINE_H

#include <unicorn/unicorn.h>

#include <cstdint>
#include <functional>
#include <map>
#include <stdexcept>
#include <string>
#include <vector>

#include "device/DeviceHeap.h"
#include "device/PeImage.h"

namespace barhatch::device {

class DeviceFault : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// Arguments as the platform passes them: consecutive 32-bit words, the first four in r0-r3, the
// rest on the stack; a double is two of them, low word first, wherever it falls.
using Words = std::vector<std::uint32_t>;
Words ToWords(std::int32_t value);
Words ToWords(std::uint32_t value);
Words ToWords(double value);

template <typename... Arguments>
Words Marshal(Arguments... arguments) {
  Words all;
  for (const Words& words : std::initializer_list<Words>{ToWords(arguments)...}) {
    all.insert(all.end(), words.begin(), words.end());
  }
  return all;
}

class CeMachine {
 public:
  // A function of the runtime: reads its arguments from the machine, may set a result.
  using HostFunction = std::function<void(CeMachine&)>;
  using Resolver = std::function<std::uint32_t(const PeImage::Import&)>;

  static constexpr std::uint32_t kStackSize = 0x10000;

  CeMachine();
  ~CeMachine();
  CeMachine(const CeMachine&) = delete;
  CeMachine& operator=(const CeMachine&) = delete;

  // Does what the loader does: maps the image at the address, relocates it, fills the import slots
  // and gives every section its protection. Once for each machine.
  void Load(const PeImage& image, std::uint32_t base, const Resolver& resolve);

  // Maps memory for code of a test's own and copies the instructions there.
  std::uint32_t LoadCode(const std::vector<std::uint32_t>& instructions);

  // Calls a function with the stack pointer 8-byte aligned plus the skew. Returns r0.
  std::uint32_t Call(std::uint32_t function, const Words& arguments);
  void SetStackSkew(std::uint32_t bytes) { stackSkew_ = bytes; }

  // The address under which the emulated code calls the function.
  std::uint32_t Bind(const std::string& name, HostFunction function);

  // For functions of the runtime.
  std::uint32_t Argument(std::uint32_t index);
  double DoubleArgument(std::uint32_t index);
  void SetResult(std::uint32_t value);
  void SetResult(double value);

  // Memory. Heap addresses have to lie in a live block.
  void Read(std::uint32_t address, void* into, std::size_t size);
  void Write(std::uint32_t address, const void* from, std::size_t size);
  std::uint32_t ReadWord(std::uint32_t address);
  std::string ReadText(std::uint32_t address);

  DeviceHeap& Heap() { return heap_; }
  std::uint32_t Base() const { return base_; }

  // Instructions of the DLL (and of LoadCode) since the last ResetCounts, those of the runtime not
  // included.
  std::uint64_t Instructions() const { return instructions_; }
  std::uint64_t RuntimeCalls() const { return runtimeCalls_; }
  std::uint32_t DeepestStack() const { return deepestStack_; }  // bytes, of a single call
  void ResetCounts();

 private:
  struct Slot {
    std::string name;
    HostFunction function;
  };

  static void OnRuntimeCall(uc_engine* engine, std::uint64_t address, std::uint32_t size,
                            void* machine);
  static void OnHeapAccess(uc_engine* engine, uc_mem_type type, std::uint64_t address, int size,
                           std::int64_t value, void* machine);
  static void OnBlock(uc_engine* engine, std::uint64_t address, std::uint32_t size, void* machine);

  std::uint32_t Register(int id) const;
  void SetRegister(int id, std::uint32_t value);
  std::uint32_t PrepareCall(const Words& arguments);
  void CheckReturn(std::uint32_t stackPointer) const;
  void MeasureStack(std::uint32_t stackPointer);
  void Stop(const std::string& why);
  std::string Where(const std::string& what) const;
  void CheckHeap(std::uint32_t address, std::size_t size) const;

  uc_engine* engine_ = nullptr;
  DeviceHeap heap_;
  std::vector<std::uint8_t> stack_;
  std::map<std::uint32_t, Slot> slots_;
  std::uint32_t nextSlot_;
  std::uint32_t base_ = 0;
  std::uint32_t imageEnd_ = 0;
  std::uint32_t stackSkew_ = 0;
  std::uint64_t instructions_ = 0;
  std::uint64_t instructionLimit_ = 0;
  std::uint64_t runtimeCalls_ = 0;
  std::uint32_t deepestStack_ = 0;
  std::string fault_;
};

}  // namespace barhatch::device

#endif
