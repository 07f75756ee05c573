// Pattern tables spread out as letters of the module string when the library is compiled: drawing a
// pattern is then a copy.
#ifndef BARHATCH_SYMBOLOGIES_LETTERTABLES_H
#define BARHATCH_SYMBOLOGIES_LETTERTABLES_H

#include <cstddef>

#include "job/ModuleString.h"

namespace barhatch {

template <std::size_t kRows, std::size_t kLetters>
struct LetterTable {
  char rows[kRows][kLetters];
};

// Rows of single modules, '1' dark: ModuleLetters(kRows, &Row::modules).
template <typename Row, std::size_t kRows, std::size_t kLength>
constexpr LetterTable<kRows, kLength - 1> ModuleLetters(const Row (&rows)[kRows],
                                                        char (Row::*modules)[kLength]) {
  LetterTable<kRows, kLength - 1> table{};
  for (std::size_t row = 0; row < kRows; ++row) {
    for (std::size_t i = 0; i < kLength - 1; ++i)
      table.rows[row][i] = ModuleLetter((rows[row].*modules)[i]);
  }
  return table;
}

// Rows of elements, '1' wide, bar first; with kGap a narrow space stands behind each row.
template <std::size_t kGap, typename Row, std::size_t kRows, std::size_t kLength>
constexpr LetterTable<kRows, kLength - 1 + kGap> ElementLetters(const Row (&rows)[kRows],
                                                                char (Row::*elements)[kLength]) {
  LetterTable<kRows, kLength - 1 + kGap> table{};
  for (std::size_t row = 0; row < kRows; ++row) {
    for (std::size_t i = 0; i < kLength - 1; ++i)
      table.rows[row][i] = ElementLetter((rows[row].*elements)[i], static_cast<int>(i));
    for (std::size_t i = 0; i < kGap; ++i) table.rows[row][kLength - 1 + i] = kNarrowSpace;
  }
  return table;
}

// Which row a character has: its place in the table by that member. Characters in no row have 0.
struct CharacterRows {
  unsigned char of[128] = {};

  template <typename Row, std::size_t kRows>
  constexpr void Add(const Row (&rows)[kRows], char Row::*character) {
    for (std::size_t row = 0; row < kRows; ++row)
      of[static_cast<unsigned char>(rows[row].*character)] = static_cast<unsigned char>(row);
  }
};

// Copies letters and returns where the next ones go. The count is a constant so that no loop runs.
template <std::size_t kLetters>
char* CopyLetters(char* at, const char* letters) {
  for (std::size_t i = 0; i < kLetters; ++i) at[i] = letters[i];
  return at + kLetters;
}

// The same for a whole row.
template <std::size_t kLetters>
char* CopyLetters(char* at, const char (&row)[kLetters]) {
  return CopyLetters<kLetters>(at, &row[0]);
}

}  // namespace barhatch

#endif
