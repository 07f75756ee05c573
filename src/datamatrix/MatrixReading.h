// What a standard reader reports of a Data Matrix: data codewords back into bytes, by the book of
// ISO/IEC 16022. 142 164 186 are "123456", 230 91 11 254 67 are "AIM" in C40 and "B".
//
// Read are ASCII with digit pairs and upper shift, C40, Text, X12, EDIFACT and Base 256, with the
// ends of a symbol that imply an unlatch: one codeword left in C40, Text and X12, at most two
// behind a group of EDIFACT. Nothing is taken from the encoder: the reading judges it.
//
// Besides characters, a reader reports:
//   macro 05, 06   "[)>" RS "05" GS in front of the text, RS EOT behind it
//   FNC1           GS (byte 29), but nothing for the first and the second codeword of the symbol,
//                  where it tells the application and not the text; behind a structured append, of
//                  what follows that
//   structured append, reader programming   nothing, as the first codeword
//   ECI            nothing: the bytes stay, what they stand for has changed
//   pads           nothing: the first one ends the text
#ifndef BARHATCH_DATAMATRIX_MATRIXREADING_H
#define BARHATCH_DATAMATRIX_MATRIXREADING_H

#include <cstddef>
#include <cstdint>

namespace barhatch {

// Bytes that so many codewords can give, at most: two digits each, and nine of a macro.
constexpr std::size_t MostBytesRead(int codewords) {
  return 2 * static_cast<std::size_t>(codewords) + 9;
}

// codewords: all data codewords of the symbol, pads included, `count` of them. At most `room` bytes
// are written to `out`, which get no NUL; `length` is how many there are, also where they are more
// than the room. Takes time in proportion to the codewords and no memory.
//
// False when the codewords break the standard (a value that its set lacks, a sequence that is cut
// off, structured append behind other codewords). The bytes are those in
// front of the break. Tolerated, as by common readers, is an unlatch in ASCII as the last codeword.
bool ReadCodewords(const std::uint8_t* codewords, int count, char* out, std::size_t room,
                   std::size_t& length);

}  // namespace barhatch

#endif
