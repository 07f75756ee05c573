// The judge is judged first: what the emulated machine must refuse, and what it must count.
#include "device/CeMachine.h"

#include <gtest/gtest.h>

#include <cstring>

namespace barhatch::device {
namespace {

constexpr std::uint32_t kReturn = 0xE12FFF1E;     // bx lr
constexpr std::uint32_t kLoadWord = 0xE5900000;   // ldr r0, [r0]
constexpr std::uint32_t kStoreByte = 0xE5C00000;  // strb r0, [r0]
constexpr std::uint32_t kPushTwo = 0xE92D0030;    // push {r4, r5}
constexpr std::uint32_t kPopTwo = 0xE8BD0030;     // pop {r4, r5}

std::uint32_t RunCode(const std::vector<std::uint32_t>& code, const Words& arguments) {
  CeMachine machine;
  return machine.Call(machine.LoadCode(code), arguments);
}

TEST(CeMachine, RunsArmInstructionsAndReturnsTheFirstRegister) {
  EXPECT_EQ(RunCode({0xE0800001 /* add r0, r0, r1 */, kReturn}, Marshal(40, 2)), 42u);
}

TEST(CeMachine, RefusesInstructionsThatTheDeviceDoesNotHave) {
  const struct {
    const char* name;
    std::uint32_t instruction;
  } newer[] = {{"clz r0, r0", 0xE16F0F10},        {"blx lr", 0xE12FFF3E},
               {"ldrd r0, [sp]", 0xE1CD00D0},     {"strd r0, [sp]", 0xE1CD00F0},
               {"movw r0, #0", 0xE3000000},       {"vadd.f64 d0, d0, d0", 0xEE300B00},
               {"smulbb r0, r0, r0", 0xE1600080}, {"vldr d0, [sp]", 0xED9D0B00},
               {"rev r0, r0", 0xE6BF0F30}};
  for (const auto& row : newer) {
    EXPECT_THROW(RunCode({row.instruction, kReturn}, {}), DeviceFault) << row.name;
  }
}

TEST(CeMachine, DoublesTakeTwoConsecutiveWordsLowWordFirst) {
  EXPECT_EQ(Marshal(7, 2.0, 9U), (Words{7, 0, 0x40000000, 9}));
  EXPECT_EQ(RunCode({0xE1A00002 /* mov r0, r2 */, kReturn}, Marshal(7, 2.0)), 0x40000000u);
}

TEST(CeMachine, WordsFromTheFifthOnAreOnTheStack) {
  EXPECT_EQ(RunCode({0xE59D0000 /* ldr r0, [sp] */, kReturn}, Marshal(1, 2, 3, 4, 5)), 5u);
  EXPECT_EQ(RunCode({0xE59D0004 /* ldr r0, [sp, #4] */, kReturn}, Marshal(1, 2, 3, 4, 5.0)),
            0x40140000u);
}

TEST(CeMachine, TheSkewMovesTheStackByFourBytes) {
  const std::vector<std::uint32_t> code = {0xE20D0007 /* and r0, sp, #7 */, kReturn};
  for (const std::uint32_t skew : {0U, 4U}) {
    CeMachine machine;
    machine.SetStackSkew(skew);
    EXPECT_EQ(machine.Call(machine.LoadCode(code), {}), skew);
  }
}

TEST(CeMachine, RefusesACallThatKeepsTheCallersRegistersOrStack) {
  EXPECT_THROW(RunCode({0xE3A04000 /* mov r4, #0 */, kReturn}, {}), DeviceFault);
  EXPECT_THROW(RunCode({0xE3A0B000 /* mov r11, #0 */, kReturn}, {}), DeviceFault);
  EXPECT_THROW(RunCode({0xE24DD004 /* sub sp, sp, #4 */, kReturn}, {}), DeviceFault);
}

TEST(CeMachine, RefusesHeapAccessOutsideOfLiveBlocks) {
  CeMachine machine;
  const std::uint32_t load = machine.LoadCode({kLoadWord, kReturn});
  const std::uint32_t block = machine.Heap().Allocate(12, Form::kArray);
  EXPECT_EQ(machine.Call(load, Marshal(block + 8)), 0xCDCDCDCDu);
  for (const std::uint32_t outside : {block - 4, block + 9, block + 12, block + 0x100000}) {
    EXPECT_THROW(machine.Call(load, Marshal(outside)), DeviceFault) << outside - block;
  }
  EXPECT_TRUE(machine.Heap().Release(block, Form::kArray));
  EXPECT_THROW(machine.Call(load, Marshal(block)), DeviceFault) << "after its release";
}

TEST(CeMachine, RefusesWritesToCodeAndAccessToNothing) {
  CeMachine machine;
  const std::uint32_t store = machine.LoadCode({kStoreByte, kReturn});
  EXPECT_THROW(machine.Call(store, Marshal(store)), DeviceFault);
  EXPECT_THROW(machine.Call(store, Marshal(0)), DeviceFault);
}

// Page 1: code that stores a byte at r0 or loads the word below; page 2: constants with the address
// of the first constant; page 3: variables.
PeImage SmallImage() {
  PeImage image;
  image.base = 0x10000000;
  image.memory.resize(0x4000);
  image.sections = {{".text", 0x1000, 0x20, true, false, true},
                    {".rdata", 0x2000, 8, true, false, false},
                    {".data", 0x3000, 8, true, true, false}};
  const std::uint32_t code[] = {kStoreByte, kReturn, 0xE59F0000 /* ldr r0, [pc] */, kReturn,
                                0x10002000};
  std::memcpy(image.memory.data() + 0x1000, code, sizeof code);
  image.relocations = {0x1010};
  image.imports = {{"coredll.dll", "free", 0x2004}};
  return image;
}

TEST(CeMachine, LoadedSectionsAreRelocatedBoundAndProtected) {
  for (const std::uint32_t base : {0x10000000U, 0x15430000U}) {
    CeMachine machine;
    machine.Load(SmallImage(), base, [](const PeImage::Import&) { return 0x70001234U; });
    EXPECT_EQ(machine.Call(base + 0x1008, {}), base + 0x2000);
    EXPECT_EQ(machine.ReadWord(base + 0x2004), 0x70001234u);
    machine.Call(base + 0x1000, Marshal(base + 0x3000));
    EXPECT_THROW(machine.Call(base + 0x1000, Marshal(base)), DeviceFault) << "headers";
    EXPECT_THROW(machine.Call(base + 0x1000, Marshal(base + 0x1000)), DeviceFault) << "code";
    EXPECT_THROW(machine.Call(base + 0x1000, Marshal(base + 0x2000)), DeviceFault) << "constants";
    EXPECT_THROW(machine.Call(base + 0x3000, {}), DeviceFault) << "variables are no code";
  }
}

TEST(CeMachine, CountsInstructionsExactly) {
  CeMachine machine;
  // r0 times: subs r0, r0, #1; bne back
  const std::uint32_t loop = machine.LoadCode({0xE2500001, 0x1AFFFFFD, kReturn});
  machine.Call(loop, Marshal(1000));
  EXPECT_EQ(machine.Instructions(), 2001u);
  machine.ResetCounts();
  EXPECT_EQ(machine.Instructions(), 0u);
}

TEST(CeMachine, MeasuresTheStackOfTheDeepestCall) {
  CeMachine machine;
  const std::uint32_t code = machine.LoadCode({kPushTwo, kPopTwo, kReturn, kReturn});
  machine.Call(code + 8, {});
  EXPECT_EQ(machine.DeepestStack(), 0u);
  machine.Call(code, {});
  EXPECT_EQ(machine.DeepestStack(), 8u);
}

TEST(CeMachine, StopsWhatOverrunsItsStackOrNeverEnds) {
  EXPECT_THROW(RunCode({kPushTwo, 0xEAFFFFFD /* b back */}, {}), DeviceFault);
  EXPECT_THROW(RunCode({0xEAFFFFFE /* b to itself */}, {}), DeviceFault);
}

TEST(DeviceHeap, CountsWhatLivesAndTheMostThatDid) {
  DeviceHeap heap(0x1000, 0x1000);
  const std::uint32_t first = heap.Allocate(100, Form::kScalar);
  heap.StartWatching();
  const std::uint32_t second = heap.Allocate(50, Form::kArray);
  EXPECT_EQ(first % 16, 8u) << "8-byte aligned and no better";
  EXPECT_TRUE(heap.Release(first, Form::kScalar));
  EXPECT_EQ(heap.LiveBlocks(), 1u);
  EXPECT_EQ(heap.LiveBytes(), 50u);
  EXPECT_EQ(heap.PeakBytes(), 150u);
  EXPECT_EQ(heap.Allocations(), 1u);
  EXPECT_FALSE(heap.Release(second, Form::kScalar)) << "another form";
  EXPECT_TRUE(heap.Release(second, Form::kArray));
  EXPECT_FALSE(heap.Release(second, Form::kArray)) << "twice";
}

TEST(DeviceHeap, RunsOutOfMemoryWhenFullOrTold) {
  DeviceHeap heap(0x1000, 0x1000);
  EXPECT_EQ(heap.Allocate(0x2000, Form::kScalar), 0u);
  EXPECT_EQ(heap.Allocate(0xFFFFFFFF, Form::kScalar), 0u);
  heap.StartWatching();
  heap.FailFrom(2);
  EXPECT_NE(heap.Allocate(1, Form::kScalar), 0u);
  EXPECT_EQ(heap.Allocate(1, Form::kScalar), 0u);
  EXPECT_EQ(heap.Allocate(1, Form::kScalar), 0u);
}

}  // namespace
}  // namespace barhatch::device
