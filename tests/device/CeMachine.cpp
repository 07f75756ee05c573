#include "device/CeMachine.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <utility>

namespace barhatch::device {

namespace {

constexpr std::uint32_t kHeap = 0x20000000;
constexpr std::uint32_t kHeapSize = 0x2000000;
constexpr std::uint32_t kStack = 0x60000000;
constexpr std::uint32_t kRuntime = 0x70000000;  // its first word is where calls return to
constexpr std::uint32_t kRuntimeSize = 0x1000;
constexpr std::uint32_t kOwnCode = 0x78000000;
constexpr std::uint32_t kPage = 0x1000;
constexpr std::uint32_t kReturn = 0xE12FFF1E;      // bx lr
constexpr std::uint32_t kSystemMode = 0x1F;        // the mode programs run in, ARM state
constexpr std::uint32_t kUndefined = 0xDEADBEEF;   // in argument registers without argument
constexpr std::uint32_t kPreserved = 0xC0DE0000;   // in registers that a call has to restore
constexpr std::uint64_t kLongestCall = 200000000;  // instructions; whatever takes more hangs
constexpr std::uint8_t kUntouched = 0xA5;          // on the stack

constexpr int kArgumentRegisters[] = {UC_ARM_REG_R0, UC_ARM_REG_R1, UC_ARM_REG_R2, UC_ARM_REG_R3};
constexpr int kPreservedRegisters[] = {UC_ARM_REG_R4,  UC_ARM_REG_R5, UC_ARM_REG_R6,
                                       UC_ARM_REG_R7,  UC_ARM_REG_R8, UC_ARM_REG_R9,
                                       UC_ARM_REG_R10, UC_ARM_REG_R11};

void Check(uc_err error) {
  if (error != UC_ERR_OK) throw DeviceFault(uc_strerror(error));
}

std::uint32_t ToPages(std::uint32_t size) { return (size + kPage - 1) / kPage * kPage; }

std::uint32_t Protection(const PeImage::Section& section) {
  std::uint32_t protection = UC_PROT_NONE;
  if (section.isReadable) protection |= UC_PROT_READ;
  if (section.isWritable) protection |= UC_PROT_WRITE;
  if (section.isExecutable) protection |= UC_PROT_EXEC;
  return protection;
}

}  // namespace

Words ToWords(std::int32_t value) { return {static_cast<std::uint32_t>(value)}; }
Words ToWords(std::uint32_t value) { return {value}; }
Words ToWords(double value) {
  Words words(2);
  std::memcpy(words.data(), &value, sizeof value);
  return words;
}

CeMachine::CeMachine()
    : heap_(kHeap, kHeapSize), stack_(kStackSize, kUntouched), nextSlot_(kRuntime + 16) {
  Check(uc_open(UC_ARCH_ARM, UC_MODE_ARM, &engine_));
  Check(uc_ctl_set_cpu_model(engine_, UC_CPU_ARM_TI925T));
  Check(uc_mem_map_ptr(engine_, kHeap, kHeapSize, UC_PROT_READ | UC_PROT_WRITE, heap_.Bytes()));
  Check(uc_mem_map_ptr(engine_, kStack, kStackSize, UC_PROT_READ | UC_PROT_WRITE, stack_.data()));
  Check(uc_mem_map(engine_, kRuntime, kRuntimeSize, UC_PROT_READ | UC_PROT_EXEC));
  const Words returns(kRuntimeSize / 4, kReturn);
  Check(uc_mem_write(engine_, kRuntime, returns.data(), kRuntimeSize));
  uc_hook hook = 0;
  Check(uc_hook_add(engine_, &hook, UC_HOOK_CODE, reinterpret_cast<void*>(OnRuntimeCall), this,
                    kRuntime + 4, kRuntime + kRuntimeSize - 1));
  Check(uc_hook_add(engine_, &hook, UC_HOOK_BLOCK, reinterpret_cast<void*>(OnBlock), this, 1, 0));
  Check(uc_hook_add(engine_, &hook, UC_HOOK_MEM_READ | UC_HOOK_MEM_WRITE,
                    reinterpret_cast<void*>(OnHeapAccess), this, kHeap, kHeap + kHeapSize - 1));
}

CeMachine::~CeMachine() { uc_close(engine_); }

void CeMachine::Load(const PeImage& image, std::uint32_t base, const Resolver& resolve) {
  std::vector<std::uint8_t> memory = image.memory;
  const auto setWord = [&](std::uint32_t at, std::uint32_t value) {
    if (at + 4 > memory.size()) throw DeviceFault("a table points outside of the image");
    std::memcpy(memory.data() + at, &value, sizeof value);
  };
  const auto word = [&](std::uint32_t at) {
    std::uint32_t value = 0;
    std::memcpy(&value, memory.data() + at, sizeof value);
    return value;
  };
  for (const std::uint32_t place : image.relocations) {
    setWord(place, word(place) + base - image.base);
  }
  for (const PeImage::Import& import : image.imports) setWord(import.slot, resolve(import));
  base_ = base;
  imageEnd_ = base + ToPages(static_cast<std::uint32_t>(memory.size()));
  Check(uc_mem_map(engine_, base, imageEnd_ - base, UC_PROT_READ));
  Check(uc_mem_write(engine_, base, memory.data(), memory.size()));
  for (const PeImage::Section& section : image.sections) {
    Check(uc_mem_protect(engine_, base + section.address, ToPages(section.size),
                         Protection(section)));
  }
}

std::uint32_t CeMachine::LoadCode(const std::vector<std::uint32_t>& instructions) {
  Check(uc_mem_map(engine_, kOwnCode, kPage, UC_PROT_READ | UC_PROT_EXEC));
  Check(uc_mem_write(engine_, kOwnCode, instructions.data(), 4 * instructions.size()));
  base_ = kOwnCode;
  imageEnd_ = kOwnCode + kPage;
  return kOwnCode;
}

std::uint32_t CeMachine::Bind(const std::string& name, HostFunction function) {
  if (nextSlot_ >= kRuntime + kRuntimeSize) throw DeviceFault("too many runtime functions");
  const std::uint32_t address = nextSlot_;
  nextSlot_ += 4;
  slots_[address] = {name, std::move(function)};
  return address;
}

std::uint32_t CeMachine::Call(std::uint32_t function, const Words& arguments) {
  const std::uint32_t stackPointer = PrepareCall(arguments);
  fault_.clear();
  instructionLimit_ = instructions_ + kLongestCall;
  const uc_err error = uc_emu_start(engine_, function, kRuntime, 0, 0);
  if (!fault_.empty()) throw DeviceFault(fault_);
  if (error != UC_ERR_OK) throw DeviceFault(Where(uc_strerror(error)));
  CheckReturn(stackPointer);
  MeasureStack(stackPointer);
  return Register(UC_ARM_REG_R0);
}

// Registers and stack for a call; returns the stack pointer that the function gets.
std::uint32_t CeMachine::PrepareCall(const Words& arguments) {
  constexpr std::size_t kInRegisters = 4;
  const std::size_t onStack = arguments.size() > kInRegisters ? arguments.size() - kInRegisters : 0;
  std::uint32_t stackPointer = kStack + kStackSize - 64 - stackSkew_;
  stackPointer -= 8 * static_cast<std::uint32_t>((onStack + 1) / 2);
  if (onStack != 0) Write(stackPointer, arguments.data() + kInRegisters, 4 * onStack);
  SetRegister(UC_ARM_REG_CPSR, kSystemMode);  // first: sp and lr are banked by mode
  for (std::size_t i = 0; i < kInRegisters; ++i) {
    SetRegister(kArgumentRegisters[i], i < arguments.size() ? arguments[i] : kUndefined);
  }
  for (const int id : kPreservedRegisters) {
    SetRegister(id, kPreserved + static_cast<std::uint32_t>(id));
  }
  SetRegister(UC_ARM_REG_SP, stackPointer);
  SetRegister(UC_ARM_REG_LR, kRuntime);
  return stackPointer;
}

void CeMachine::CheckReturn(std::uint32_t stackPointer) const {
  if (Register(UC_ARM_REG_PC) != kRuntime) throw DeviceFault(Where("did not return"));
  if (Register(UC_ARM_REG_SP) != stackPointer) throw DeviceFault("stack pointer not restored");
  for (const int id : kPreservedRegisters) {
    if (Register(id) != kPreserved + static_cast<std::uint32_t>(id)) {
      throw DeviceFault("a register that belongs to the caller is lost");
    }
  }
}

// Everything below the caller's stack pointer was untouched before the call and is so again.
void CeMachine::MeasureStack(std::uint32_t stackPointer) {
  const auto end = stack_.begin() + (stackPointer - kStack);
  const auto lowest =
      std::find_if(stack_.begin(), end, [](auto byte) { return byte != kUntouched; });
  deepestStack_ = std::max(deepestStack_, static_cast<std::uint32_t>(end - lowest));
  std::fill(lowest, end, kUntouched);
}

std::uint32_t CeMachine::Register(int id) const {
  std::uint32_t value = 0;
  Check(uc_reg_read(engine_, id, &value));
  return value;
}

void CeMachine::SetRegister(int id, std::uint32_t value) {
  Check(uc_reg_write(engine_, id, &value));
}

std::uint32_t CeMachine::Argument(std::uint32_t index) {
  if (index < 4) return Register(kArgumentRegisters[index]);
  return ReadWord(Register(UC_ARM_REG_SP) + 4 * (index - 4));
}

double CeMachine::DoubleArgument(std::uint32_t index) {
  const std::uint32_t words[2] = {Argument(index), Argument(index + 1)};
  double value = 0.0;
  std::memcpy(&value, words, sizeof value);
  return value;
}

void CeMachine::SetResult(std::uint32_t value) { SetRegister(UC_ARM_REG_R0, value); }

void CeMachine::SetResult(double value) {
  const Words words = ToWords(value);
  SetRegister(UC_ARM_REG_R0, words[0]);
  SetRegister(UC_ARM_REG_R1, words[1]);
}

void CeMachine::CheckHeap(std::uint32_t address, std::size_t size) const {
  if (size == 0 || address < kHeap || address >= kHeap + kHeapSize) return;
  if (!heap_.IsAlive(address, static_cast<std::uint32_t>(size))) {
    throw DeviceFault("access outside of a live block");
  }
}

void CeMachine::Read(std::uint32_t address, void* into, std::size_t size) {
  CheckHeap(address, size);
  Check(uc_mem_read(engine_, address, into, size));
}

void CeMachine::Write(std::uint32_t address, const void* from, std::size_t size) {
  CheckHeap(address, size);
  Check(uc_mem_write(engine_, address, from, size));
}

std::uint32_t CeMachine::ReadWord(std::uint32_t address) {
  std::uint32_t value = 0;
  Read(address, &value, sizeof value);
  return value;
}

std::string CeMachine::ReadText(std::uint32_t address) {
  std::string text;
  for (char c = 0;; text += c) {
    Read(address++, &c, 1);
    if (c == 0) return text;
  }
}

void CeMachine::ResetCounts() {
  instructions_ = runtimeCalls_ = 0;
  deepestStack_ = 0;
}

std::string CeMachine::Where(const std::string& what) const {
  char text[160];
  const std::uint32_t pc = Register(UC_ARM_REG_PC);
  std::snprintf(text, sizeof text, "%s at pc=%08x (base + %x) lr=%08x", what.c_str(), pc,
                pc - base_, Register(UC_ARM_REG_LR));
  return text;
}

// Nothing may be thrown through the emulator's frames: the fault is noted and the machine stopped.
void CeMachine::Stop(const std::string& why) {
  if (fault_.empty()) fault_ = Where(why);
  uc_emu_stop(engine_);
}

void CeMachine::OnRuntimeCall(uc_engine* /*engine*/, std::uint64_t address, std::uint32_t /*size*/,
                              void* machine) {
  auto& self = *static_cast<CeMachine*>(machine);
  const auto slot = self.slots_.find(static_cast<std::uint32_t>(address));
  if (slot == self.slots_.end()) {
    self.Stop("no runtime function");
    return;
  }
  ++self.runtimeCalls_;
  try {
    slot->second.function(self);
  } catch (const std::exception& error) {
    self.Stop(slot->second.name + ": " + error.what());
  }
}

void CeMachine::OnHeapAccess(uc_engine* /*engine*/, uc_mem_type /*type*/, std::uint64_t address,
                             int size, std::int64_t /*value*/, void* machine) {
  auto& self = *static_cast<CeMachine*>(machine);
  if (!self.heap_.IsAlive(static_cast<std::uint32_t>(address), static_cast<std::uint32_t>(size))) {
    self.Stop("access outside of a live block");
  }
}

// Every instruction of ARM state has four bytes.
void CeMachine::OnBlock(uc_engine* /*engine*/, std::uint64_t address, std::uint32_t size,
                        void* machine) {
  auto& self = *static_cast<CeMachine*>(machine);
  if (address < self.base_ || address >= self.imageEnd_) return;
  self.instructions_ += size / 4;
  if (self.instructions_ > self.instructionLimit_) self.Stop("does not come to an end");
}

}  // namespace barhatch::device
