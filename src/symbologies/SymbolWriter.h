// Writes the module string of a symbol element by element between its quiet zones, into one array
// of fixed size, and hands it over at the end. No encoder writes a letter itself, and none knows
// whether there is a quiet zone.
#ifndef BARHATCH_SYMBOLOGIES_SYMBOLWRITER_H
#define BARHATCH_SYMBOLOGIES_SYMBOLWRITER_H

#include <cstddef>

#include "job/Memory.h"
#include "job/ModuleString.h"
#include "job/Refusal.h"
#include "symbologies/LetterTables.h"

namespace barhatch {

// Light modules at the two ends.
struct QuietModules {
  int left;
  int right;
};

class SymbolWriter {
 public:
  // The array comes from memory and has room for usualCapacity characters, the size that hosts of
  // the symbology have always been given (0 where no host has), or for what is needed, whichever is
  // more.
  SymbolWriter(const Memory& memory, std::size_t usualCapacity, QuietModules quiet)
      : memory_(memory), usualCapacity_(usualCapacity), quiet_(quiet) {}
  ~SymbolWriter() { memory_.Release(letters_); }
  SymbolWriter(const SymbolWriter&) = delete;
  SymbolWriter& operator=(const SymbolWriter&) = delete;

  // The first call of an encoder. letters: those that will be appended, at most. Writes the left
  // quiet zone.
  void Open(std::size_t letters);

  // Wide and narrow elements as a literal of digits, bar first, then space, bar, ...: "0110" is a
  // narrow bar, a wide space, a wide bar and a narrow space.
  template <std::size_t kSize>
  void AppendElements(const char (&elements)[kSize]) {
    if (char* room = Room(kSize - 1)) {
      for (std::size_t i = 0; i < kSize - 1; ++i)
        room[i] = ElementLetter(elements[i], static_cast<int>(i));
    }
  }

  // Single modules as a literal of digits: '1' dark, '0' light.
  template <std::size_t kSize>
  void AppendModules(const char (&modules)[kSize]) {
    if (char* room = Room(kSize - 1)) {
      for (std::size_t i = 0; i < kSize - 1; ++i) room[i] = ModuleLetter(modules[i]);
    }
  }

  // A row of a LetterTable.
  template <std::size_t kLetters>
  void AppendLetters(const char (&row)[kLetters]) {
    if (char* room = Room(kLetters)) CopyLetters(room, row);
  }

  // Room for a run of letters, which count as written; null when there is no memory or more letters
  // come than announced.
  char* Room(std::size_t letters) {
    if (capacity_ - length_ <= letters) {
      overflowed_ = true;
      return nullptr;
    }
    char* const room = letters_ + length_;
    length_ += letters;
    return room;
  }

  // Narrow light elements, as between characters.
  void AppendSpace(int modules);

  // Writes the right quiet zone and gives the finished string with a NUL, which the caller gives
  // back to the memory; null when there was no memory, the writer was never opened, or more letters
  // were appended than announced. The writer is empty afterwards.
  char* Release();

  // Letters of the string without the NUL; keeps its value after Release.
  std::size_t Length() const { return length_; }

  // For an encoder that needs room to think.
  const Memory& GetMemory() const { return memory_; }

  // Instead of Open, where only drawing shows that a symbol exceeds its limit.
  void Refuse(const Refusal& refusal) { refusal_ = refusal; }

  // Why Release gives null: that, or no memory.
  Refusal WhyNone() const {
    return refusal_.IsRefused() ? refusal_ : Refusal{Reason::kNoMemory, -1, 0};
  }

 private:
  const Memory& memory_;
  const std::size_t usualCapacity_;
  const QuietModules quiet_;
  std::size_t capacity_ = 0;
  std::size_t length_ = 0;
  bool overflowed_ = false;
  Refusal refusal_;
  char* letters_ = nullptr;
};

}  // namespace barhatch

#endif
