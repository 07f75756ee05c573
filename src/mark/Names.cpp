#include "mark/Names.h"

#include "barhatch_mark.h"

namespace barhatch {

namespace {

constexpr char kCode39Set[] = "digits, A-Z, - . $ / + % and space";
constexpr char kBytes[] = "characters from 0 to 255";
constexpr char kFromSpace[] = "characters from 32 to 127";
constexpr char kUpcESet[] = "7 digits: number system and six";

constexpr SymbologyName kNames[] = {
    {BARHATCH_CODABAR, "Codabar", "digits and - $ : / . + between two of A B C D T N * E", nullptr},
    {BARHATCH_CODE_39, "Code 39", kCode39Set, nullptr},
    {BARHATCH_CODE_93, "Code 93", kCode39Set, nullptr},
    {BARHATCH_EAN_13, "EAN-13", "12 digits", nullptr},
    {BARHATCH_MSI, "MSI", "digits", nullptr},
    {BARHATCH_CODE_128, "Code 128", kBytes, kFromSpace},
    {BARHATCH_CODE_128_A, "Code 128 from set A", kBytes, kFromSpace},
    {BARHATCH_CODE_128_B, "Code 128 set B", kFromSpace, nullptr},
    {BARHATCH_CODE_128_C, "Code 128 from set C", kBytes, kFromSpace},
    {BARHATCH_UPC_A, "UPC-A", "11 digits", nullptr},
    {BARHATCH_UPC_E, "UPC-E", kUpcESet, nullptr},
    {BARHATCH_CODE_11, "Code 11", "digits and -", nullptr},
    {BARHATCH_EAN_8, "EAN-8", "7 digits", nullptr},
    {BARHATCH_UPC_A_ADDON_2, "UPC-A with 2-digit add-on", "13 digits: 11 and 2", nullptr},
    {BARHATCH_UPC_A_ADDON_5, "UPC-A with 5-digit add-on", "16 digits: 11 and 5", nullptr},
    {BARHATCH_EAN_13_ADDON_2, "EAN-13 with 2-digit add-on", "14 digits: 12 and 2", nullptr},
    {BARHATCH_EAN_13_ADDON_5, "EAN-13 with 5-digit add-on", "17 digits: 12 and 5", nullptr},
    {BARHATCH_EAN_8_ADDON_2, "EAN-8 with 2-digit add-on", "9 digits: 7 and 2", nullptr},
    {BARHATCH_EAN_8_ADDON_5, "EAN-8 with 5-digit add-on", "12 digits: 7 and 5", nullptr},
    {BARHATCH_UPC_E_ADDON_2, "UPC-E with 2-digit add-on", "9 digits: 7 and 2", nullptr},
    {BARHATCH_UPC_E_ADDON_5, "UPC-E with 5-digit add-on", "12 digits: 7 and 5", nullptr},
    {BARHATCH_INTERLEAVED_2_OF_5, "Interleaved 2 of 5", "digits", nullptr},
    {BARHATCH_CODE_93_FULL, "Code 93, full ASCII", "characters from 0 to 127", nullptr},
    {BARHATCH_DATA_MATRIX, "Data Matrix", "all characters, and bytes",
     "bytes; characters above 255 designate an ECI"},
    {BARHATCH_ITF_14, "ITF-14", "13 or 14 digits", nullptr},
    {BARHATCH_CODE_39_FULL, "Code 39, full ASCII", "characters from 0 to 127", nullptr},
};

}  // namespace

const SymbologyName* NameOf(std::int32_t symbology) {
  for (const SymbologyName& row : kNames) {
    if (row.symbology == symbology) return &row;
  }
  return nullptr;
}

const char* AcceptedBy(const SymbologyName& name, std::int32_t conformance) {
  const bool isLess = conformance == BARHATCH_DEVICE && name.deviceAccepts != nullptr;
  return isLess ? name.deviceAccepts : name.accepts;
}

}  // namespace barhatch
