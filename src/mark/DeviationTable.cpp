#include "mark/DeviationTable.h"

namespace barhatch {

const DeviationRow kDeviationRows[kDeviationCount] = {
    {"D-39-1", "the character table holds 011000000 for 'W'", "111000000",
     "none: no text reaches the rows of 'E' to 'Z' (D-39-3)", "-"},
    {"D-39-2", "'/' is written with the elements of '%'", "010100010", "text with '/'",
     "'%' where '/' was given: wrong text, no error"},
    {"D-39-3",
     "the letters 'E' to 'Z' are accepted and each written as 011111111 (a narrow bar and eight "
     "wide elements)",
     "a pattern of its own for each letter", "text with a letter from 'E' to 'Z'",
     "no Code 39 character: the symbol cannot be read"},
    {"D-39-4", "'*' is accepted inside the data and written as the start/stop character",
     "'*' is not a data character", "text with '*'", "the symbol ends at the first '*'"},
    {"D-39-5", "\"%%\" in the data is written as one '%', pair by pair from the left",
     "every character stands for itself", "text with two '%' in a row", "one '%' for each pair"},
    {"D-39-6", "an empty text gives start and stop alone",
     "a symbol holds at least one data character", "the empty text",
     "nothing: there is no data to read"},
    {"D-128-1",
     "type 5: one character left over after pairs of digits in set C, at the very end of the text, "
     "is written with its set B value while the symbol is still in set C",
     "a switch to set B goes before it",
     "type 5, five characters or more: (a) nothing but digits, an odd number of them; (b) the last "
     "character is not a digit and an even run of 4 or more digits stands before it, or, when that "
     "run does not begin the text, also an odd run of 5 or more",
     "two wrong digits for the last character, its code less 32: \"12345\" reads 123421, \"1234A\" "
     "reads 123433; no error"},
    {"D-128-2", "type 6: character 127 (DEL) is written as value 95 in set A, without a switch",
     "127 is in set B only; 95 in set A is the control character 31 (US)",
     "type 6, a 127 with no character from 96 to 126 before it", "character 31 for 127; no error"},
    {"D-128-3",
     "no more text is taken once 79 values (characters, pairs of digits, switches) follow the "
     "start character; the rest is dropped and a valid symbol is written",
     "no such limit",
     "type 7: 80 characters or more. Types 5 and 8: 80 characters or more, unless pairs of digits "
     "in set C make the values fewer (158 digits at most). Type 6: 80 characters or more, and 79 "
     "when the first is not from 96 to 126 and a later one is",
     "the beginning of the text; no error"},
    {"D-128-4",
     "types 5, 6 and 8: the step that reaches the limit of D-128-3 may write a switch and a "
     "character, so that 80 values follow the start; the switch may be the last of them, with no "
     "data after it",
     "a switch stands before data",
     "as D-128-3, where the code set changes at the limit, and texts of 80 values that end so "
     "(type 8: 78 pairs and one more character, which is written whole)",
     "the same as without the switch"},
    {"D-25-1", "the check digit is computed with weight 3 on the leftmost digit",
     "weight 3 on the rightmost digit",
     "none: no symbol is written with a check digit of the library (texts with an even number of "
     "digits would differ)",
     "-"},
    {"D-25-2", "an empty text gives a symbol of start and stop alone",
     "a symbol has at least one pair of digits", "the empty text",
     "nothing: there is no data to read"},
    {"D-93-1",
     "'$', '%', '+' and '/' are written as the shift pairs (/)D, (/)E, (/)K and (/)O, by both "
     "types; the values 39 to 42 occur as check characters only",
     "these four have characters of their own", "text with '$', '%', '+' or '/'",
     "the same text; the symbol is nine modules wider for each of them and its check characters "
     "differ"},
    {"D-93-2",
     "a byte of 128 or above is accepted by type 22: the modules of the symbol character before it "
     "(of a shift pair, the letter) are written once more, and no check sum counts it",
     "not encodable", "type 22: text with a unit whose low byte is 128 or above",
     "as a rule a wrong check character: no read. Where the sums happen to agree, a wrong text "
     "without error (the byte 128 after \"0\" reads as \"00\")"},
    {"D-93-3",
     "such bytes at the beginning of the text, with no character before them, write nothing",
     "not encodable", "type 22: text that begins with such a unit",
     "the text without them: wrong text, no error"},
    {"D-93-4", "the empty text is accepted: start, the check characters 0 and 0, stop",
     "a symbol holds at least one data character", "empty text", "no text or no read"},
    {"D-MSI-1", "the empty text is accepted: start, the check digit 0, stop",
     "a symbol holds at least one data digit", "empty text",
     "no text, or \"0\" from a reader that does not test check digits"},
    {"D-CB-1",
     "text without start and stop characters is accepted and written without them; none are added",
     "a symbol begins and ends with a start/stop character",
     "text that neither begins nor ends with one of A, B, C, D, T, N, * or E",
     "no symbol: it cannot be read"},
    {"D-CB-2",
     "a start character without a stop character, a stop character without a start character and a "
     "start/stop character alone are accepted",
     "both are there",
     "text with a start/stop character at one end only, and text of nothing but one",
     "no symbol: it cannot be read"},
    {"D-CB-3", "a start character and a stop character with no data between them are accepted",
     "a symbol holds at least one data character", "text of two start/stop characters",
     "no data, or no symbol"},
    {"D-11-1", "K is written for ten data characters already", "C alone for ten data characters",
     "text of ten characters",
     "a reader that expects C alone there takes C for data and tests K in its place: no read, or, "
     "where K happens to fit, a wrong text with one character too many. A reader that expects C "
     "and K at any length reads it"},
    {"D-11-2", "the empty text is accepted: start, the check character 0, stop",
     "a symbol holds at least one data character", "empty text",
     "no text, or \"0\" from a reader that does not test check characters"},
    {"D-EAN-1", "an add-on follows eight light modules behind the last bar of the main symbol",
     "9 to 12 light modules beside a UPC symbol (7 to 12 beside EAN)", "types 13, 14, 19 and 20",
     "the same digits; a reader that insists on nine light modules may read the main symbol "
     "without its add-on or not at all"},
    {"D-EAN-2", "EAN-8 can have an add-on", "add-ons stand beside EAN-13, UPC-A and UPC-E",
     "types 17 and 18",
     "EAN-8 as usual; many readers do not look for an add-on there and leave it out"},
    {"D-EAN-3",
     "UPC-E takes number system 1 as well as 0 and draws it with the complementary parities",
     "UPC-E is for number system 0", "types 10, 19 and 20, text beginning with '1'",
     "the number with number system 1, where the reader knows it; others do not read the symbol"},
    {"D-EAN-4",
     "UPC-E takes any six digits, also those that suppressing the zeros of a UPC-A number does not "
     "give: a last digit 3 with a third digit 0 to 2, 4 with a fourth digit 0, 5 to 9 with a fifth "
     "digit 0",
     "one UPC-E for each UPC-A number", "types 10, 19 and 20, such six digits",
     "the six digits that were given and the right UPC-A number; another UPC-E stands for the same "
     "number"},
    {"D-DM-1",
     "in 144 x 144 the error codewords of blocks 8 and 9, which have one data codeword less, come "
     "first in each round: positions 1558, 1559, 1568, ...",
     "block 0 first: positions 1558, 1568, ... are its error codewords", "every 144 x 144 symbol",
     "nothing: this is the order that the industry writes and reads. A reader that takes them in "
     "another order (libdmtx) does not get the text"},
    {"D-DM-2",
     "the look-ahead counts every mode to the end of the text; outside ASCII, ASCII starts at 2 "
     "like the others; in front of a character that neither X12 nor EDIFACT has, small letters "
     "apart, half an ASCII codeword is dropped; Base 256 has no start weight of its own and bytes "
     "above 127 have no extra weight, so Base 256 is never chosen",
     "the test stops as soon as one mode is ahead; outside ASCII, ASCII starts at 1; half a "
     "codeword is always rounded up; Base 256 starts a quarter higher; bytes above 127 weigh more",
     "every text with a choice of modes",
     "nothing: other codewords than from other encoders, and more of them for binary data"},
    {"D-DM-3", "a byte from 129 to 255 is written in ASCII as 235, byte - 128", "235, byte - 127",
     "bytes above 128 that ASCII encodes (C40 and Text write them by the book)",
     "the byte one lower, no error"},
    {"D-DM-4", "the byte 128 is dropped in ASCII", "235, 1", "the byte 128 that ASCII encodes",
     "the text without it"},
    {"D-DM-5", "Base 256 passes over its characters and writes nothing", "a length and the bytes",
     "none: Base 256 is never chosen (D-DM-2)", "-"},
    {"D-DM-6",
     "the FNC1 of code format 1 is written whenever there is exactly one codeword: behind a latch "
     "too, and not at all where the first character takes two codewords",
     "behind the first character, which stays in ASCII for it",
     "code format 1 with a text that starts in C40, Text, X12 or EDIFACT, or with a byte above 128 "
     "or a designator",
     "behind a latch: wrong text, as 232 is read as data of that mode; else: the text without "
     "FNC1"},
    {"D-DM-7",
     "behind whole groups of values, where one more codeword would fill the smallest square that "
     "holds more than those written, C40, Text and X12 are left without 254 for another mode, and "
     "they and EDIFACT at the end of the text: whatever the symbol and whatever follows",
     "the unlatch is left out at the end of the symbol alone",
     "mode changes without a pad at 2, 4, 7, 11, 17, ... codewords; texts that end there in a "
     "larger or rectangular symbol",
     "what follows is read as data of the mode that was left: wrong text behind the right "
     "beginning (at the end of the text: the pads as characters)"},
    {"D-DM-8",
     "at the end of a text in C40, Text, X12 or EDIFACT the unlatch is written also where the "
     "symbol would be full without it: behind a whole group; in C40 and Text where the group that "
     "ends the text leaves values over, and where one or two characters behind the last group "
     "have, with the values that wait, more than three",
     "no unlatch in these cases",
     "texts that end at 3, 5, 8, 12, ... codewords in these modes, or would end there by the book; "
     "in rectangles at 10, 16, 32 and 49",
     "nothing: as a rule the next symbol size, a refusal where that does not suit the request or "
     "does not exist, or a rectangle whose last codeword is the unlatch"},
    {"D-DM-9", "EDIFACT writes the low six bits of any character",
     "EDIFACT has the characters from space to ^ alone",
     "other characters that the look-ahead takes along in EDIFACT",
     "another character with the same six bits (! for a); from _ and the bytes 31, 159 and 223 on, "
     "wrong text, as theirs are the unlatch"},
    {"D-DM-10",
     "the EDIFACT unlatch is the codeword 124 behind a whole group, also where only one or two "
     "codewords of the symbol are left; characters that fill no group go out in ASCII behind it",
     "the unlatch follows the last character within its group; in the last two codewords there is "
     "none",
     "texts that end in EDIFACT with a whole group two codewords below the symbol's capacity (one, "
     "in rectangles)",
     "a { behind the text; elsewhere nothing"},
};

}  // namespace barhatch
