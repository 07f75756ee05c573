// The tables of the rules as text: for the terminal, and as the Markdown of the documents.
#ifndef BARHATCH_TOOLS_TYPETABLES_H
#define BARHATCH_TOOLS_TYPETABLES_H

#include <string>

namespace preview {

// --list: the 23 types and Data Matrix, one a line.
std::string TypeList();

// --table types: the table of docs/symbologies.md.
std::string TypeTable();

// --table departures: id, what the library does and what a standard reader sees, as in
// docs/deviations.md.
std::string DepartureTable();

}  // namespace preview

#endif
