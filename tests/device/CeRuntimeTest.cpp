// The modelled runtime: formats as the platform's printf fills them, and everything it refuses.
#include "device/CeRuntime.h"

#include <gtest/gtest.h>

namespace barhatch::device {
namespace {

class CeRuntimeModel : public testing::Test {
 protected:
  std::uint32_t Call(const std::string& name, const Words& arguments) {
    return machine_.Call(runtime_.Resolve({"coredll.dll", name, 0}), arguments);
  }
  template <typename Text>
  std::uint32_t Place(const Text& text) {
    const auto size = static_cast<std::uint32_t>(sizeof(text[0]) * (text.size() + 1));
    const std::uint32_t address = machine_.Heap().Allocate(size, Form::kMalloc);
    machine_.Write(address, text.c_str(), size);
    return address;
  }
  template <typename... Arguments>
  std::string Print(const std::string& format, Arguments... arguments) {
    const std::uint32_t stream = runtime_.OpenStream();
    Call("fprintf", Marshal(stream, Place(format), arguments...));
    return runtime_.Written(stream);
  }

  CeMachine machine_;
  CeRuntime runtime_{machine_};
};

TEST_F(CeRuntimeModel, PrintsTheFormatsOfTheTrace) {
  EXPECT_EQ(Print("SetHatchPattern(%ff,%d);\n", 0.1, -3), "SetHatchPattern(0.100000f,-3);\n");
  EXPECT_EQ(Print("%d,%ff", 7, -2.5), "7,-2.500000f") << "a double straddles register and stack";
  EXPECT_EQ(Print("<%s>", Place(std::string("Aa"))), "<Aa>");
  EXPECT_EQ(Print("<%s>", Place(std::u16string(u"XY"))), "<X>") << "wide text as 8-bit text";
  EXPECT_EQ(Print("<%ls>", Place(std::u16string(u"XY\u00e9\u0416"))), "<XY\xE9?>");
  EXPECT_EQ(Print("%f", 1e300).size(), 308u) << "301 digits, the point and 6 more";
  EXPECT_THROW(Print("%x", 1), DeviceFault);
}

TEST_F(CeRuntimeModel, StreamsAreFlushedClosedAndThenRefused) {
  const std::uint32_t stream = runtime_.OpenStream();
  const std::uint32_t text = Place(std::string("a"));
  Call("fprintf", Marshal(stream, text));
  EXPECT_FALSE(runtime_.IsFlushed(stream));
  Call("fflush", Marshal(stream));
  EXPECT_TRUE(runtime_.IsFlushed(stream));
  Call("fclose", Marshal(stream));
  EXPECT_FALSE(runtime_.IsOpen(stream));
  EXPECT_THROW(Call("fprintf", Marshal(stream, text)), DeviceFault);
  EXPECT_THROW(Call("fflush", Marshal(stream)), DeviceFault);
  EXPECT_THROW(Call("fclose", Marshal(stream)), DeviceFault);
  EXPECT_THROW(Call("fflush", Marshal(0)), DeviceFault);
}

TEST_F(CeRuntimeModel, MemoryGoesBackInTheFormItCameIn) {
  const struct {
    const char* allocate;
    const char* release;
  } forms[] = {
      {"??2@YAPAXI@Z", "??3@YAXPAX@Z"}, {"??_U@YAPAXI@Z", "??_V@YAXPAX@Z"}, {"malloc", "free"}};
  for (const auto& from : forms) {
    for (const auto& to : forms) {
      const std::uint32_t block = Call(from.allocate, Marshal(10));
      if (&from == &to) {
        Call(to.release, Marshal(block));
      } else {
        EXPECT_THROW(Call(to.release, Marshal(block)), DeviceFault) << from.allocate;
        Call(from.release, Marshal(block));
      }
      EXPECT_EQ(machine_.Heap().LiveBlocks(), 0u);
    }
    Call(from.release, Marshal(0));
  }
}

TEST_F(CeRuntimeModel, BlockFunctionsStayInsideTheirBlocks) {
  const std::uint32_t text = Place(std::string("abcdef"));
  const std::uint32_t other = Place(std::string("abcxef"));
  EXPECT_EQ(Call("strlen", Marshal(text)), 6u);
  EXPECT_LT(static_cast<std::int32_t>(Call("memcmp", Marshal(text, other, 6))), 0);
  EXPECT_EQ(Call("memcmp", Marshal(text, other, 3)), 0u);
  Call("memmove", Marshal(text + 1, text, 5));
  EXPECT_EQ(machine_.ReadText(text), "aabcde");
  Call("memcpy", Marshal(other, text, 2));
  EXPECT_EQ(machine_.ReadText(other), "aacxef");
  Call("memset", Marshal(text, 'z', 3));
  EXPECT_EQ(machine_.ReadText(text), "zzzcde");
  EXPECT_THROW(Call("memset", Marshal(text, 'z', 8)), DeviceFault);
  EXPECT_THROW(Call("memcpy", Marshal(other, text, 8)), DeviceFault);
  EXPECT_THROW(Call("memcpy", Marshal(text + 1, text, 3)), DeviceFault) << "overlap";
}

TEST_F(CeRuntimeModel, WhatTheModelDoesNotHaveIsRefused) {
  EXPECT_THROW(runtime_.Resolve({"coredll.dll", "fopen", 0}), DeviceFault);
  EXPECT_THROW(runtime_.Resolve({"other.dll", "free", 0}), DeviceFault);
}

}  // namespace
}  // namespace barhatch::device
