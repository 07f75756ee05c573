// What a symbol by the book says, from two sides that share nothing with the library: read from its
// modules, and expected from the text and the options of its job.
#ifndef BARHATCH_TESTS_ENDTOEND_PUBLISHEDREADINGS_H
#define BARHATCH_TESTS_ENDTOEND_PUBLISHEDREADINGS_H

#include <optional>
#include <string>
#include <vector>

#include "RandomPublishedJobs.h"
#include "barhatch_mark.h"

namespace barhatch::test {

// A linear symbol as a module string: capitals for bars, B and b for wide elements.
std::string LettersOf(const BarhatchResult& result);

struct PlainReading {
  std::string text;        // as readers report it
  std::vector<int> items;  // of a Data Matrix: as in support/DataMatrixReader.h
};

// Nothing for a symbol that is none: elements, check characters, gap of the add-on, modules and
// error correction are all looked at. letters: of a Data Matrix 'A' and 'a', row by row.
std::optional<PlainReading> ReadPlainly(const BarhatchJob& job, const BarhatchResult& result,
                                        const std::string& letters);

// Nothing where the job leaves it open: of texts that were spoilt, and of EAN and UPC then.
std::optional<std::string> ExpectedText(const PublishedJob& made);
std::optional<std::vector<int>> ExpectedItems(const PublishedJob& made);

}  // namespace barhatch::test

#endif
