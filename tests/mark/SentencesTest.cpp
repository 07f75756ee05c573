// Sentences that no other test has in full, each with the job that it is said about.
#include "mark/Sentences.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>

#include "mark/MarkTesting.h"

namespace barhatch::test {
namespace {

// "10 at 0+0: sentence" of a refusal, "16: sentence" of a warning.
std::string Said(const BarhatchJob& job) {
  const Mark mark(job);
  const std::string about = mark.IsOk() ? std::to_string(mark->warnings) : PlaceOf(mark);
  return about + ": " + mark.Message();
}

BarhatchJob Elements(const char* text, std::int32_t symbology = BARHATCH_CODE_128) {
  BarhatchJob job = PublishedJobOf(symbology, text);
  job.input = BARHATCH_GS1;
  return job;
}

BarhatchJob Matrix(const char* text, std::uint32_t flags = 0) {
  BarhatchJob job = PublishedJobOf(BARHATCH_DATA_MATRIX, text);
  job.flags = flags;
  return job;
}

std::string SaidOfReason(Reason reason) {
  char room[Message::kCapacity];
  SayRefusal(PublishedJobOf(BARHATCH_CODE_39, "A"), {reason}, 0, Message(room));
  return room;
}

struct NamesRow {
  std::int32_t symbology;
  const char* name;
  const char* published;
  const char* device;
};

}  // namespace

TEST(Sentences, WhatEachSymbologyIsCalledAndAccepts) {
  const NamesRow rows[] = {
      {0, "Codabar", "digits and - $ : / . + between two of A B C D T N * E",
       "digits and - $ : / . + between two of A B C D T N * E"},
      {1, "Code 39", "digits, A-Z, - . $ / + % and space", "digits, A-Z, - . $ / + % and space"},
      {2, "Code 93", "digits, A-Z, - . $ / + % and space", "digits, A-Z, - . $ / + % and space"},
      {3, "EAN-13", "12 or 13 digits (and an add-on behind +)", "12 digits"},
      {4, "MSI", "digits", "digits"},
      {5, "Code 128", "characters from 0 to 255", "characters from 32 to 127"},
      {6, "Code 128 from set A", "characters from 0 to 255", "characters from 32 to 127"},
      {7, "Code 128 set B", "characters from 32 to 127", "characters from 32 to 127"},
      {8, "Code 128 from set C", "characters from 0 to 255", "characters from 32 to 127"},
      {9, "UPC-A", "11 or 12 digits (and an add-on behind +)", "11 digits"},
      {10, "UPC-E", "6, 7, 8, 11 or 12 digits (and an add-on behind +)",
       "7 digits: number system and six"},
      {11, "Code 11", "digits and -", "digits and -"},
      {12, "EAN-8", "7 or 8 digits", "7 digits"},
      {13, "UPC-A with 2-digit add-on", "11 or 12 digits and 2 (+ may stand between)",
       "13 digits: 11 and 2"},
      {14, "UPC-A with 5-digit add-on", "11 or 12 digits and 5 (+ may stand between)",
       "16 digits: 11 and 5"},
      {15, "EAN-13 with 2-digit add-on", "12 or 13 digits and 2 (+ may stand between)",
       "14 digits: 12 and 2"},
      {16, "EAN-13 with 5-digit add-on", "12 or 13 digits and 5 (+ may stand between)",
       "17 digits: 12 and 5"},
      {17, "EAN-8 with 2-digit add-on", "7 or 8 digits and 2 (+ may stand between)",
       "9 digits: 7 and 2"},
      {18, "EAN-8 with 5-digit add-on", "7 or 8 digits and 5 (+ may stand between)",
       "12 digits: 7 and 5"},
      {19, "UPC-E with 2-digit add-on",
       "7, 8, 11 or 12 digits and 2 (+ may stand between, also behind 6)", "9 digits: 7 and 2"},
      {20, "UPC-E with 5-digit add-on",
       "7, 8, 11 or 12 digits and 5 (+ may stand between, also behind 6)", "12 digits: 7 and 5"},
      {21, "Interleaved 2 of 5", "digits", "digits"},
      {22, "Code 93, full ASCII", "characters from 0 to 127", "characters from 0 to 127"},
      {100, "Data Matrix", "all characters, and bytes",
       "bytes; characters above 255 designate an ECI"},
      {101, "ITF-14", "13 or 14 digits", "13 or 14 digits"},
      {102, "Code 39, full ASCII", "characters from 0 to 127", "characters from 0 to 127"},
  };
  for (const NamesRow& row : rows) {
    const Mark published(PublishedJobOf(row.symbology, ""));
    EXPECT_STREQ(published->name, row.name);
    EXPECT_STREQ(published->accepts, row.published);
    const Mark device(JobOf(row.symbology, ""));
    EXPECT_STREQ(device->name, row.name);
    EXPECT_STREQ(device->accepts, row.device) << row.name;
  }
}

TEST(Sentences, OneCodewordIsOne) {
  BarhatchJob job = JobOf(BARHATCH_DATA_MATRIX, "1");
  job.rows = 8;
  EXPECT_EQ(Said(job), "10 at 0+0: 1 codeword, 8x0 is no size; MAY_GROW allows a larger one");
}

// A start and 1998 values, then the check character and not the stop.
TEST(Sentences, SymbolCharactersOfCode128HaveALimit) {
  EXPECT_EQ(Said(PublishedJobOf(BARHATCH_CODE_128, std::string(1998, 'A').c_str())), "0: ");
  EXPECT_EQ(Said(PublishedJobOf(BARHATCH_CODE_128, std::string(1999, 'A').c_str())),
            "10 at 0+0: 2001 symbol characters, at most 2000");
}

TEST(Sentences, ElementsOfCode128HaveALimit) {
  const std::string limit = " data characters and separators, GS1-128 has at most 48";
  const std::string most = "(10)1234567890123456789(21)12345678901234567890(91)";
  EXPECT_TRUE(Mark(Elements((most + "1").c_str())).IsOk());
  EXPECT_EQ(Said(Elements((most + "12").c_str())), "10 at 0+0: 49" + limit);
  EXPECT_TRUE(Mark(Elements((most + "12").c_str(), BARHATCH_DATA_MATRIX)).IsOk());
}

TEST(Sentences, ElementsAreForSymbologiesWithFnc1) {
  const std::string refusal =
      "2 at 0+0: element strings of GS1 are for Code 128 and Data Matrix by the book";
  for (const std::int32_t symbology : kMarkSymbologies) {
    BarhatchJob job = Elements("(00)095011015300000011", symbology);
    const bool isCode128 = symbology >= BARHATCH_CODE_128 && symbology <= BARHATCH_CODE_128_C;
    const bool hasFnc1 = isCode128 || symbology == BARHATCH_DATA_MATRIX;
    EXPECT_EQ(Said(job) != refusal, hasFnc1) << symbology;
    job.conformance = BARHATCH_DEVICE;
    EXPECT_EQ(Mark(job)->status, BARHATCH_BAD_OPTION) << symbology;
  }
}

TEST(Sentences, ElementsHaveNoOtherHead) {
  const std::string refusal =
      "2 at 0+0: an element string of GS1 has no ECI, envelope, mask or FNC1 in second position";
  BarhatchJob job = Elements("(10)A", BARHATCH_DATA_MATRIX);
  EXPECT_TRUE(Mark(job).IsOk());
  for (const std::uint32_t flag : {BARHATCH_MASK, BARHATCH_FNC1_SECOND}) {
    job.flags = flag;
    EXPECT_EQ(Said(job), refusal);
  }
  job.flags = 0;
  job.eci = 26;
  EXPECT_EQ(Said(job), refusal);
  job.eci = 0;
  job.envelope = BARHATCH_ENVELOPE_05;
  EXPECT_EQ(Said(job), refusal);
}

TEST(Sentences, CodewordsOfTheHostHaveNoOtherHead) {
  const std::string refusal =
      "2 at 0+0: of the options of Data Matrix CODEWORDS go with sizes and INDUSTRY_144 alone";
  const auto said = [](void (*change)(BarhatchJob&)) {
    BarhatchJob job = Matrix("\x42");
    job.input = BARHATCH_CODEWORDS;
    change(job);
    return Said(job);
  };
  EXPECT_EQ(said([](BarhatchJob& job) { job.envelope = BARHATCH_ENVELOPE_12; }), refusal);
  EXPECT_EQ(said([](BarhatchJob& job) { job.eci = 3; }), refusal);
  EXPECT_EQ(said([](BarhatchJob& job) { job.part = 1, job.parts = 2; }), refusal);
  EXPECT_EQ(said([](BarhatchJob& job) { job.flags = BARHATCH_FNC1_SECOND; }), refusal);
  EXPECT_EQ(said([](BarhatchJob& job) { job.flags = BARHATCH_LOOSE_END; }), refusal);
  EXPECT_EQ(said([](BarhatchJob& job) { job.flags = BARHATCH_MAY_GROW; }), "0: ");
  EXPECT_EQ(said([](BarhatchJob& job) { job.flags = BARHATCH_INDUSTRY_144; }), "0: ");
}

TEST(Sentences, Fnc1InSecondPositionHasAPlace) {
  EXPECT_EQ(Said(Matrix("1A", BARHATCH_FNC1_SECOND)),
            "7 at 1+1: FNC1 in second position stands behind a letter or two digits");
}

TEST(Sentences, WarningsOfElements) {
  EXPECT_EQ(Said(Elements("(10)ABC(01)09501101530003")),
            "1024: an element of variable length at the end saves a separator");
  const Mark partner(Elements("(10)ABC"));
  EXPECT_EQ(partner.Message(),
            "an application identifier lacks one that it needs, or has one that it does not go "
            "with");
}

TEST(Sentences, WarningOfTheLargestMatrix) {
  const Mark mark(Matrix(std::string(3116, '7').c_str()));
  EXPECT_EQ(mark.Message(),
            "144x144 in the order of ISO/IEC 16022: some readers know the industry's alone, "
            "INDUSTRY_144");
}

// No job is refused so as long as the library is right.
TEST(Sentences, OfADefect) {
  EXPECT_EQ(SaidOfReason(Reason::kProof),
            "the symbol does not decode to the text: a defect of the library");
  EXPECT_EQ(StatusOf(Reason::kProof), BARHATCH_PROOF_FAILED);
}

}  // namespace barhatch::test
