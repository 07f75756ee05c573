// The DLL as a file: what its headers say, what it exports and imports, how large it is.
#include <gtest/gtest.h>

#include <cstdio>
#include <fstream>
#include <iterator>
#include <set>

#include "device/PeImage.h"

namespace barhatch::device {
namespace {

constexpr char kDll[] = BARHATCH_DEVICE_DIRECTORY "/barhatch.dll";
constexpr std::uint32_t kLargestCode = 96 * 1024;

// SetMatrixsize stands in the list of exported names under the name that this computer's compiler
// gives it; the platform's compiler decorates it in another way.
std::set<std::string> ListedNames() {
  std::set<std::string> names;
  std::ifstream in(BARHATCH_EXPORTED_NAMES);
  for (std::string node, name; in >> node >> name;) {
    if (node != "BARHATCH_DEVICE_1") continue;  // what is newer than the device
    names.insert(name == "_Z13SetMatrixsize11_matrixSize" ? "?SetMatrixsize@@YAXW4_matrixSize@@@Z"
                                                          : name);
  }
  return names;
}

TEST(DeviceImage, HeadersAreThoseOfAWindowsCeDll) {
  const PeImage image = ReadPeFile(kDll);
  EXPECT_EQ(image.machine, 0x1C0);
  EXPECT_EQ(image.characteristics, 0x210E);
  EXPECT_EQ(image.subsystem, 9);
  EXPECT_EQ(image.subsystemMajor, 4);
  EXPECT_EQ(image.subsystemMinor, 20);
  EXPECT_EQ(image.base, 0x10000000u);
  EXPECT_EQ(image.timestamp, 0u) << "a build is repeatable";
}

TEST(DeviceImage, ExportsAreExactlyTheList) {
  std::set<std::string> exported;
  for (const auto& [name, address] : ReadPeFile(kDll).exports) exported.insert(name);
  EXPECT_EQ(exported, ListedNames());
}

TEST(DeviceImage, ImportsAreWithinTheAllowedList) {
  const std::set<std::string> allowed = {
      "??2@YAPAXI@Z", "??_U@YAPAXI@Z", "??3@YAXPAX@Z", "??_V@YAXPAX@Z", "malloc",
      "free",         "memset",        "memcpy",       "memmove",       "memcmp",
      "swprintf",     "sprintf",       "strlen",       "strtoul",       "atoi",
      "ceil",         "fprintf",       "fflush",       "fclose",        "puts"};
  const PeImage image = ReadPeFile(kDll);
  EXPECT_FALSE(image.imports.empty());
  for (const PeImage::Import& import : image.imports) {
    EXPECT_EQ(import.library, "coredll.dll");
    EXPECT_EQ(allowed.count(import.name), 1u) << import.name;
  }
}

// The names between "```imports" and the end of that block.
std::set<std::string> DocumentedImports() {
  std::set<std::string> names;
  std::ifstream in(BARHATCH_PORTING_GUIDE);
  bool inside = false;
  for (std::string line; std::getline(in, line);) {
    if (inside && line == "```") break;
    if (inside) names.insert(line);
    inside = inside || line == "```imports";
  }
  return names;
}

TEST(DeviceImage, ImportsAreExactlyTheDocumentedOnes) {
  std::set<std::string> imported;
  for (const PeImage::Import& import : ReadPeFile(kDll).imports) imported.insert(import.name);
  EXPECT_EQ(imported, DocumentedImports());
}

TEST(DeviceImage, NoSectionIsBothWritableAndExecutable) {
  const PeImage image = ReadPeFile(kDll);
  for (const PeImage::Section& section : image.sections) {
    EXPECT_FALSE(section.isWritable && section.isExecutable) << section.name;
  }
  ASSERT_NE(image.FindSection(".text"), nullptr);
  EXPECT_TRUE(image.FindSection(".text")->isExecutable);
  EXPECT_FALSE(image.FindSection(".rdata")->isWritable);
}

TEST(DeviceImage, NothingIsInitialisedAtLoadTime) {
  const PeImage image = ReadPeFile(kDll);
  EXPECT_EQ(image.FindSection(".data"), nullptr)
      << "tables are constants, the state begins as zero";
}

TEST(DeviceImage, EntryPointAndExportsLieInTheCode) {
  const PeImage image = ReadPeFile(kDll);
  const PeImage::Section& code = *image.FindSection(".text");
  const auto isCode = [&](std::uint32_t at) {
    return at % 4 == 0 && at >= code.address && at < code.address + code.size;
  };
  EXPECT_TRUE(isCode(image.entry));
  for (const auto& [name, address] : image.exports) EXPECT_TRUE(isCode(address)) << name;
}

TEST(DeviceImage, CodeAndConstantsAreSmall) {
  const PeImage image = ReadPeFile(kDll);
  const std::uint32_t code = image.FindSection(".text")->size;
  const std::uint32_t constants = image.FindSection(".rdata")->size;
  std::printf(".text %u + .rdata %u = %u bytes\n", code, constants, code + constants);
  EXPECT_LT(code + constants, kLargestCode);
}

TEST(DeviceImage, DamagedFilesAreRefused) {
  std::ifstream in(kDll, std::ios::binary);
  const std::string whole(std::istreambuf_iterator<char>(in), {});
  const std::string path = testing::TempDir() + "barhatch-damaged.dll";
  const auto refuses = [&](const std::string& bytes) {
    std::ofstream(path, std::ios::binary | std::ios::trunc) << bytes;
    try {
      ReadPeFile(path);
    } catch (const std::runtime_error&) {
      return true;
    }
    return false;
  };
  EXPECT_FALSE(refuses(whole));
  EXPECT_TRUE(refuses(""));
  EXPECT_TRUE(refuses(whole.substr(0, 0x90)));
  EXPECT_TRUE(refuses(whole.substr(0, whole.size() / 2)));
  std::remove(path.c_str());
}

}  // namespace
}  // namespace barhatch::device
