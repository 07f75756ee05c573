// A DLL as the device's loader sees it: read from the file into the form it has in memory, with the
// tables the loader works through. Every access is checked against the file's and the image's
// bounds; a file that breaks them is refused by an exception.
#ifndef BARHATCH_TESTS_DEVICE_PEIMAGE_H
#define BARHATCH_TESTS_DEVICE_PEIMAGE_H

#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace barhatch::device {

// Addresses are relative to the image's base, except `base` itself.
struct PeImage {
  struct Section {
    std::string name;
    std::uint32_t address;
    std::uint32_t size;
    bool isReadable;
    bool isWritable;
    bool isExecutable;
  };
  struct Import {
    std::string library;
    std::string name;
    std::uint32_t slot;  // the word that receives the function's address
  };

  std::uint16_t machine = 0;
  std::uint16_t characteristics = 0;
  std::uint16_t subsystem = 0;
  std::uint16_t subsystemMajor = 0;
  std::uint16_t subsystemMinor = 0;
  std::uint32_t timestamp = 0;
  std::uint32_t base = 0;  // where the image would like to lie
  std::uint32_t entry = 0;
  std::vector<std::uint8_t> memory;  // headers and sections, each at its address
  std::vector<Section> sections;
  std::vector<Import> imports;
  std::map<std::string, std::uint32_t> exports;
  std::vector<std::uint32_t> relocations;  // words that hold an address of the image

  const Section* FindSection(const std::string& name) const;
};

PeImage ReadPeFile(const std::string& path);

}  // namespace barhatch::device

#endif
