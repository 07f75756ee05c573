// Options that are fields of a job under other names: tables of names and numbers without any rule.
// What a symbology does not have the library refuses, in its own words.
#ifndef BARHATCH_TOOLS_JOBOPTIONS_H
#define BARHATCH_TOOLS_JOBOPTIONS_H

#include <cstdint>
#include <string>

#include "barhatch.hpp"

namespace CLI {
class App;
}

namespace preview {

// Adds them all; each writes its field of the job. The job stays where it is.
void DescribeJobOptions(CLI::App& app, BarhatchJob& job);

// --format: the device's number of a Data Matrix with FNC1 in second position (1) or the header of
// macro 05 or 06 (2 and 3); 0 is plain.
void SetFormat(BarhatchJob& job, std::int32_t format);

// The names of --check: "own, none, verify".
std::string CheckNames();

// REQUIRES: one of them.
void SetCheck(BarhatchJob& job, const std::string& name);

// Those that the library takes for a symbology by the book.
std::string ChecksOf(std::int32_t symbology);

}  // namespace preview

#endif
