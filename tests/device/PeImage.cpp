#include "device/PeImage.h"

#include <cstring>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace barhatch::device {

namespace {

using Bytes = std::vector<std::uint8_t>;

enum Directory : std::uint32_t { kExports = 0, kImports = 1, kRelocations = 5 };

constexpr std::uint32_t kByOrdinal = 0x80000000;
constexpr std::uint32_t kDirectories = 96;  // offset in the optional header

[[noreturn]] void Refuse(const std::string& why) { throw std::runtime_error("PE file: " + why); }

template <typename T>
T Get(const Bytes& bytes, std::size_t at) {
  if (at > bytes.size() || bytes.size() - at < sizeof(T)) Refuse("reaches beyond its end");
  T value;
  std::memcpy(&value, bytes.data() + at, sizeof value);
  return value;
}
std::uint32_t Word(const Bytes& bytes, std::size_t at) { return Get<std::uint32_t>(bytes, at); }
std::uint16_t Half(const Bytes& bytes, std::size_t at) { return Get<std::uint16_t>(bytes, at); }

std::string Text(const Bytes& bytes, std::size_t at) {
  std::string text;
  while (const char c = Get<char>(bytes, at++)) text += c;
  return text;
}

Bytes ReadBytes(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  if (!in) Refuse("cannot open " + path);
  return Bytes(std::istreambuf_iterator<char>(in), {});
}

void Copy(const Bytes& file, std::size_t from, std::size_t size, Bytes& memory, std::size_t to) {
  if (from + size > file.size() || to + size > memory.size()) Refuse("a section has no room");
  std::memcpy(memory.data() + to, file.data() + from, size);
}

void ReadSection(const Bytes& file, std::size_t header, PeImage& image) {
  PeImage::Section section;
  section.name = std::string(reinterpret_cast<const char*>(file.data()) + header, 8).c_str();
  section.size = Word(file, header + 8);
  section.address = Word(file, header + 12);
  const std::uint32_t inFile = Word(file, header + 16);
  const std::uint32_t characteristics = Word(file, header + 36);
  section.isExecutable = (characteristics >> 29 & 1) != 0;
  section.isReadable = (characteristics >> 30 & 1) != 0;
  section.isWritable = (characteristics >> 31 & 1) != 0;
  if (inFile != 0) {
    Copy(file, Word(file, header + 20), inFile < section.size ? inFile : section.size, image.memory,
         section.address);
  }
  image.sections.push_back(section);
}

void ReadImports(std::uint32_t table, PeImage& image) {
  const Bytes& memory = image.memory;
  for (std::uint32_t d = table; Word(memory, d + 12) != 0; d += 20) {
    const std::string library = Text(memory, Word(memory, d + 12));
    const std::uint32_t names = Word(memory, d);
    const std::uint32_t slots = Word(memory, d + 16);
    for (std::uint32_t i = 0; const std::uint32_t entry = Word(memory, names + 4 * i); ++i) {
      if ((entry & kByOrdinal) != 0) Refuse("import by ordinal");
      image.imports.push_back({library, Text(memory, entry + 2), slots + 4 * i});
    }
  }
}

void ReadExports(std::uint32_t table, PeImage& image) {
  const Bytes& memory = image.memory;
  const std::uint32_t functions = Word(memory, table + 28);
  const std::uint32_t names = Word(memory, table + 32);
  const std::uint32_t ordinals = Word(memory, table + 36);
  for (std::uint32_t i = 0; i < Word(memory, table + 24); ++i) {
    const std::uint32_t function = Half(memory, ordinals + 2 * i);
    image.exports[Text(memory, Word(memory, names + 4 * i))] =
        Word(memory, functions + 4 * function);
  }
}

void ReadRelocations(std::uint32_t table, std::uint32_t size, PeImage& image) {
  for (std::uint32_t block = table; block < table + size;) {
    const std::uint32_t page = Word(image.memory, block);
    const std::uint32_t blockSize = Word(image.memory, block + 4);
    if (blockSize < 8) Refuse("relocation block without header");
    for (std::uint32_t at = block + 8; at < block + blockSize; at += 2) {
      const std::uint16_t entry = Half(image.memory, at);
      if (entry >> 12 == 3) image.relocations.push_back(page + (entry & 0xFFF));
      if (entry >> 12 != 3 && entry >> 12 != 0) Refuse("relocation of another type");
    }
    block += blockSize;
  }
}

void ReadTables(const Bytes& file, std::uint32_t directories, PeImage& image) {
  const auto address = [&](Directory d) { return Word(file, directories + 8 * d); };
  if (address(kImports) != 0) ReadImports(address(kImports), image);
  if (address(kExports) != 0) ReadExports(address(kExports), image);
  ReadRelocations(address(kRelocations), Word(file, directories + 8 * kRelocations + 4), image);
}

}  // namespace

const PeImage::Section* PeImage::FindSection(const std::string& name) const {
  for (const Section& section : sections) {
    if (section.name == name) return &section;
  }
  return nullptr;
}

PeImage ReadPeFile(const std::string& path) {
  const Bytes file = ReadBytes(path);
  const std::uint32_t header = Word(file, 0x3C);
  if (Word(file, header) != 0x4550) Refuse("no signature");
  const std::uint32_t optional = header + 24;
  PeImage image;
  image.machine = Half(file, header + 4);
  image.timestamp = Word(file, header + 8);
  image.characteristics = Half(file, header + 22);
  image.entry = Word(file, optional + 16);
  image.base = Word(file, optional + 28);
  image.subsystemMajor = Half(file, optional + 48);
  image.subsystemMinor = Half(file, optional + 50);
  image.subsystem = Half(file, optional + 68);
  image.memory.resize(Word(file, optional + 56));
  Copy(file, 0, Word(file, optional + 60), image.memory, 0);
  const std::uint32_t sections = optional + Half(file, header + 20);
  for (std::uint32_t i = 0; i < Half(file, header + 6); ++i) {
    ReadSection(file, sections + 40 * i, image);
  }
  ReadTables(file, optional + kDirectories, image);
  return image;
}

}  // namespace barhatch::device
