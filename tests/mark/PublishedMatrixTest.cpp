// Data Matrix by the book through the mark interface: characters and ECI, what a symbol begins
// with, sizes, masks, raw codewords, and the sentences of what is refused.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <functional>
#include <random>
#include <string>

#include "mark/MarkTesting.h"
#include "support/TextClasses.h"

namespace barhatch::test {
namespace {

using Change = std::function<void(BarhatchJob&)>;

BarhatchJob PublishedMatrix(const std::string& text, const Change& change = nullptr) {
  BarhatchJob job = LongJobOf(BARHATCH_DATA_MATRIX, text, BARHATCH_PUBLISHED);
  if (change) change(job);
  return job;
}

std::string CodewordsOf(const Mark& mark) {
  std::string text;
  for (int i = 0; i < mark->codewords; ++i)
    text += (i > 0 ? " " : "") + std::to_string(mark->values[i]);
  return text;
}

// "142 164 186", or "10 at 1+1: sentence".
std::string Written(const std::string& text, const Change& change = nullptr) {
  const Mark mark(PublishedMatrix(text, change));
  if (!mark.IsOk()) return PlaceOf(mark) + ": " + mark.Message();
  EXPECT_EQ(mark->deviations, 0u);
  EXPECT_EQ(mark->warnings & BARHATCH_W_UNREADABLE, 0u);
  return CodewordsOf(mark);
}

std::string Read(const std::string& text, const Change& change = nullptr) {
  return Mark(PublishedMatrix(text, change)).Reading();
}

std::string SizeOf(const Mark& mark) {
  return std::to_string(mark->rows) + "x" + std::to_string(mark->columns);
}

Change Eci(std::int32_t number) {
  return [number](BarhatchJob& job) { job.eci = number; };
}
Change Flags(std::uint32_t flags) {
  return [flags](BarhatchJob& job) { job.flags = flags; };
}
Change Input(std::int32_t input) {
  return [input](BarhatchJob& job) { job.input = input; };
}
Change Envelope(std::int32_t envelope) {
  return [envelope](BarhatchJob& job) { job.envelope = envelope; };
}
Change Size(std::int32_t rows, std::int32_t columns, std::uint32_t flags = 0) {
  return [=](BarhatchJob& job) {
    job.rows = rows;
    job.columns = columns;
    job.flags = flags;
  };
}

}  // namespace

TEST(PublishedMatrix, OfTheStandard) {
  const Mark mark(PublishedMatrix("123456"));
  EXPECT_EQ(CodewordsOf(mark), "142 164 186");
  EXPECT_EQ(SizeOf(mark), "10x10");
  EXPECT_EQ(mark->capacity, 3);
  EXPECT_EQ(mark->values_count, 8u);
  EXPECT_EQ(mark->values[3], 114) << "error codewords 114 25 5 88 102";
  EXPECT_EQ(mark->values[7], 102);
  EXPECT_EQ(mark.Reading(), "123456");
}

TEST(PublishedMatrix, CharactersUpTo255AreBytesOfLatin1) {
  EXPECT_EQ(Written("caf\xC3\xA9"), "100 98 103 235 106");
  EXPECT_EQ(Read("caf\xC3\xA9"), "caf\xE9");
  EXPECT_EQ(Written(std::string("\0\x7F", 2)), "1 128");
  EXPECT_EQ(Mark(PublishedMatrix("caf\xC3\xA9"))->warnings, 0u);
}

TEST(PublishedMatrix, OthersMakeUtf8BehindEci26) {
  const Mark mark(PublishedMatrix("\xC5\x81\xC3\xA9"));  // U+0141 and U+00E9
  EXPECT_EQ(CodewordsOf(mark).substr(0, 6), "241 27");
  EXPECT_EQ(mark.Reading(), "\xC5\x81\xC3\xA9");
  EXPECT_EQ(mark->warnings, std::uint32_t{BARHATCH_W_ECI});
  EXPECT_EQ(mark.Message(),
            "a character above 255 designates ECI 26, UTF-8: not every reader heeds it");
  for (const char* text : {"\xDF\xBF\xC4\x80", "\xE0\xA0\x80", "\xEF\xBF\xBF", "\xF0\x90\x80\x80",
                           "\xF4\x8F\xBF\xBF"}) {
    EXPECT_EQ(Read(text), text);
  }
}

TEST(PublishedMatrix, UnitsAreCharactersToo) {
  const char16_t units[] = {u'A', 0xD83D, 0xDE00, 0xE9};
  const Change change = [&](BarhatchJob& job) {
    job.input = BARHATCH_UNITS;
    job.text = units;
    job.length = 4;
  };
  EXPECT_EQ(Read("", change), "A\xF0\x9F\x98\x80\xC3\xA9");
}

TEST(PublishedMatrix, AnEciOfTheHostStandsInFront) {
  EXPECT_EQ(Written("a", Eci(26)), "241 27 98");
  EXPECT_EQ(Written("a", Eci(3)), "241 4 98");
  EXPECT_EQ(Written("a", Eci(127)), "241 128 1 98");
  EXPECT_EQ(Written("a", Eci(999999)), "241 207 63 129 98");
  EXPECT_EQ(Read("\xC3\xA9", Eci(26)), "\xC3\xA9");
  EXPECT_EQ(Read("\xC3\xA9", Eci(3)), "\xE9");
  EXPECT_EQ(Read("\xC3\xA9", Eci(1)), "\xE9");
  EXPECT_EQ(Mark(PublishedMatrix("\xC5\x81", Eci(26)))->warnings, 0u) << "it was asked for";
}

TEST(PublishedMatrix, BytesAreTheHostsUnderAnyEci) {
  const Change change = [](BarhatchJob& job) {
    job.input = BARHATCH_BYTES;
    job.eci = 20;
  };
  EXPECT_EQ(Written("\x82\xA0", change).substr(0, 6), "241 21");
  EXPECT_EQ(Read("\x82\xA0", change), "\x82\xA0");
  EXPECT_EQ(Read("\xC3\xA9", Input(BARHATCH_BYTES)), "\xC3\xA9") << "no UTF-8";
}

TEST(PublishedMatrix, Envelopes) {
  EXPECT_EQ(Written("X", Envelope(BARHATCH_ENVELOPE_05)), "236 89");
  EXPECT_EQ(Written("X", Envelope(BARHATCH_ENVELOPE_06)), "237 89");
  EXPECT_EQ(Written("X", Envelope(BARHATCH_ENVELOPE_12)), "92 42 63 31 142 30 89 31 5");
  EXPECT_EQ(Written("X", Envelope(BARHATCH_ENVELOPE_DD)), "92 42 63 31 69 69 30 89 31 5");
  EXPECT_EQ(Read("X", Envelope(BARHATCH_ENVELOPE_05)),
            "[)>\x1E"
            "05\x1DX\x1E\x04");
  EXPECT_EQ(Read("X", Envelope(BARHATCH_ENVELOPE_06)),
            "[)>\x1E"
            "06\x1DX\x1E\x04");
  EXPECT_EQ(Read("X", Envelope(BARHATCH_ENVELOPE_12)),
            "[)>\x1E"
            "12\x1DX\x1E\x04");
  EXPECT_EQ(Read("X", Envelope(BARHATCH_ENVELOPE_DD)),
            "[)>\x1E"
            "DD\x1DX\x1E\x04");
}

TEST(PublishedMatrix, Fnc1InSecondPosition) {
  EXPECT_EQ(Written("A12", Flags(BARHATCH_FNC1_SECOND)), "66 232 142");
  EXPECT_EQ(Written("12A", Flags(BARHATCH_FNC1_SECOND)), "142 232 66");
  EXPECT_EQ(Read("A12", Flags(BARHATCH_FNC1_SECOND)), "A12");
  const Change withEci = [](BarhatchJob& job) {
    job.flags = BARHATCH_FNC1_SECOND;
    job.eci = 9;
  };
  EXPECT_EQ(Written("A12", withEci), "66 232 241 10 142") << "behind FNC1, which is second";
  EXPECT_EQ(Written("12a", withEci), "142 232 241 10 98");
  for (const char* text : {"1A", "-A", "1"}) {
    EXPECT_EQ(Written(text, Flags(BARHATCH_FNC1_SECOND)).substr(0, 2), "7 ") << text;
  }
}

TEST(PublishedMatrix, StructuredAppendAndReaderProgramming) {
  const auto part = [](std::int32_t which, std::int32_t parts, std::int32_t id) {
    return [=](BarhatchJob& job) {
      job.part = which;
      job.parts = parts;
      job.part_id = id;
    };
  };
  EXPECT_EQ(Written("A", part(1, 2, 0)), "233 15 1 1 66");
  EXPECT_EQ(Written("A", part(3, 7, 255)), "233 42 2 2 66") << "the example of the standard: 42";
  EXPECT_EQ(Written("A", part(16, 16, 64515)), "233 241 254 254 66");
  EXPECT_EQ(Read("A", part(1, 2, 0)), "A");
  const Change withFnc1 = [&](BarhatchJob& job) {
    part(1, 2, 0)(job);
    job.flags = BARHATCH_FNC1_SECOND;
  };
  EXPECT_EQ(Written("A1", withFnc1), "233 15 1 1 66 232 50");
  EXPECT_EQ(Read("A1", withFnc1), "A1");
  EXPECT_EQ(Written("A", Flags(BARHATCH_READER_PROGRAMMING)), "234 66");
  EXPECT_EQ(Read("A", Flags(BARHATCH_READER_PROGRAMMING)), "A");
  const std::string refusal = "2 at 0+0: parts are 2 to 16, part is 1 to parts, part_id 0 to 64515";
  EXPECT_EQ(Written("A", part(0, 2, 0)), refusal);
  EXPECT_EQ(Written("A", part(3, 2, 0)), refusal);
  EXPECT_EQ(Written("A", part(1, 1, 0)), refusal);
  EXPECT_EQ(Written("A", part(1, 17, 0)), refusal);
  EXPECT_EQ(Written("A", part(1, 2, -1)), refusal);
  EXPECT_EQ(Written("A", part(1, 2, 64516)), refusal);
  EXPECT_EQ(Written("A", part(0, 0, 1)), refusal);
}

TEST(PublishedMatrix, LooseEnd) {
  EXPECT_EQ(SizeOf(Mark(PublishedMatrix("AIMAIMAIMg"))), "16x16");
  EXPECT_EQ(SizeOf(Mark(PublishedMatrix("AIMAIMAIMg", Flags(BARHATCH_LOOSE_END)))), "14x14");
  EXPECT_EQ(Read("AIMAIMAIMg", Flags(BARHATCH_LOOSE_END)), "AIMAIMAIMg");
}

TEST(PublishedMatrix, TheLargestInEitherOrder) {
  const std::string digits(3116, '7');
  const Mark standard(PublishedMatrix(digits));
  EXPECT_EQ(SizeOf(standard), "144x144");
  EXPECT_EQ(standard->warnings, std::uint32_t{BARHATCH_W_144});
  EXPECT_EQ(standard->deviations, 0u);
  const Mark industry(PublishedMatrix(digits, Flags(BARHATCH_INDUSTRY_144)));
  EXPECT_EQ(industry->warnings, 0u);
  const Mark device(LongJobOf(BARHATCH_DATA_MATRIX, digits));
  const std::string written(industry->modules, industry->modules + 144 * 144);
  EXPECT_EQ(written, std::string(device->modules, device->modules + 144 * 144));
  EXPECT_NE(written, std::string(standard->modules, standard->modules + 144 * 144));
  EXPECT_EQ(Mark(PublishedMatrix("1", Flags(BARHATCH_INDUSTRY_144)))->deviations, 0u);
}

TEST(PublishedMatrix, Shapes) {
  const auto shaped = [](std::int32_t shape) {
    return SizeOf(Mark(PublishedMatrix("0123456789012345678901234567890123456789",
                                       [&](BarhatchJob& job) { job.shape = shape; })));
  };
  EXPECT_EQ(shaped(BARHATCH_SQUARE), "20x20");
  EXPECT_EQ(shaped(BARHATCH_RECTANGLE), "12x36");
  EXPECT_EQ(shaped(BARHATCH_ANY_SHAPE), "20x20");
  EXPECT_EQ(shaped(BARHATCH_DMRE), "20x20");
  EXPECT_EQ(shaped(BARHATCH_DMRE_RECTANGLE), "12x36");
}

TEST(PublishedMatrix, ASizeIsKeptOrRefusedWithWhatWouldDo) {
  EXPECT_EQ(SizeOf(Mark(PublishedMatrix("1", Size(26, 64)))), "26x64");
  const std::string seven = "aBc!dE?";
  EXPECT_EQ(Written(seven, Size(10, 10)),
            "10 at 0+0: 7 codewords, 10x10 holds 3; 14x14 is the next of its kind that does");
  EXPECT_EQ(SizeOf(Mark(PublishedMatrix(seven, Size(10, 10, BARHATCH_MAY_GROW)))), "14x14");
  EXPECT_EQ(Written(std::string(64, '\x01'), Size(16, 48)),
            "10 at 0+0: 64 codewords, 16x48 holds 49; 26x40 does");
  EXPECT_EQ(Written(std::string(64, '\x01'), Size(16, 48, BARHATCH_MAY_GROW)),
            "10 at 0+0: 64 codewords, 16x48 holds 49; 26x40 does");
  EXPECT_EQ(Written("1", Size(11, 11)), "11 at 0+0: 11x11 is no size; 12x12 is the next");
  EXPECT_EQ(Written("1", Size(255, 255)), "11 at 0+0: 255x255 is no size");
  EXPECT_EQ(Written(std::string(3116, '\x01')),
            "10 at 0+0: 3116 codewords, the largest size of the shape, 144x144, holds 1558");
}

TEST(PublishedMatrix, RefusedTexts) {
  EXPECT_EQ(Written("", [](BarhatchJob& job) { job.text = nullptr; }),
            "3 at 0+0: Data Matrix needs at least one character");
  EXPECT_EQ(Written("a\xC3\xA9", Eci(20)),
            "4 at 2+2: character 2 (0xE9) has no byte under ECI 20; BYTES takes those of the host");
  EXPECT_EQ(
      Written("a\xC5\x81", Eci(3)),
      "4 at 2+2: character 2 (0x0141) has no byte under ECI 3; BYTES takes those of the host");
  const char16_t half[] = {u'A', 0xD83D, u'B'};
  EXPECT_EQ(Written("",
                    [&](BarhatchJob& job) {
                      job.input = BARHATCH_UNITS;
                      job.text = half;
                      job.length = 3;
                    })
                .substr(0, 8),
            "4 at 2+1");
  EXPECT_EQ(Written(std::string(3117, '1')),
            "5 at 0+0: Data Matrix takes at most 3116 characters, 3117 given");
}

TEST(PublishedMatrix, OptionsThatExcludeEachOther) {
  EXPECT_EQ(Written("A",
                    [](BarhatchJob& job) {
                      job.envelope = 5;
                      job.flags = BARHATCH_READER_PROGRAMMING;
                    }),
            "2 at 0+0: a macro envelope, READER_PROGRAMMING and parts exclude each other");
  EXPECT_EQ(Written("A", Flags(BARHATCH_READER_PROGRAMMING | BARHATCH_FNC1_SECOND)),
            "2 at 0+0: READER_PROGRAMMING and FNC1_SECOND exclude each other");
  EXPECT_EQ(Written("A",
                    [](BarhatchJob& job) {
                      job.envelope = 12;
                      job.flags = BARHATCH_FNC1_SECOND;
                    }),
            "2 at 0+0: an envelope and FNC1_SECOND exclude each other");
  EXPECT_EQ(Written("A", Envelope(7)), "2 at 0+0: envelope 7 is none: 0, 5, 6, 12 and 100");
  EXPECT_EQ(Written("A", Eci(-1)), "2 at 0+0: eci -1 is none: 0 to 999999");
  EXPECT_EQ(Written("A", Eci(1000000)), "2 at 0+0: eci 1000000 is none: 0 to 999999");
  for (const std::int32_t shape : {-1, 3, 6}) {
    EXPECT_EQ(Written("A", [&](BarhatchJob& job) { job.shape = shape; }),
              "2 at 0+0: shape " + std::to_string(shape) + " is none: 0, 1, 2, 4 and 5");
  }
}

TEST(PublishedMatrix, CodewordsOfTheHost) {
  EXPECT_EQ(Written("\xE6\x5B\x0B", Input(BARHATCH_CODEWORDS)), "230 91 11");
  EXPECT_EQ(Read("\xE6\x5B\x0B", Input(BARHATCH_CODEWORDS)), "AIM");
  const Mark padded(PublishedMatrix("\x43", Input(BARHATCH_CODEWORDS)));
  EXPECT_EQ(padded->values[1], 129);
  EXPECT_EQ(padded->values[2], 70) << "66 129 70: the third pad position, randomised";
  const Mark broken(PublishedMatrix("\xFF", Input(BARHATCH_CODEWORDS)));
  EXPECT_EQ(broken->warnings, std::uint32_t{BARHATCH_W_UNREADABLE});
  EXPECT_EQ(broken.Reading(), "?");
  EXPECT_EQ(Written(std::string(1559, '\x42'), Input(BARHATCH_CODEWORDS)).substr(0, 3), "10 ");
  EXPECT_EQ(Written("A",
                    [](BarhatchJob& job) {
                      job.input = BARHATCH_CODEWORDS;
                      job.eci = 26;
                    })
                .substr(0, 2),
            "2 ");
}

TEST(PublishedMatrix, AMaskHasASizeAndNothingToMark) {
  const Mark mark(PublishedMatrix("SN-AA######", Flags(BARHATCH_MASK)));
  EXPECT_EQ(SizeOf(mark), "14x14");
  EXPECT_EQ(mark->codewords, 8);
  EXPECT_EQ(mark->capacity, 8);
  EXPECT_EQ(mark->strokes_count, 0u);
  EXPECT_EQ(mark->strokes, nullptr);
  EXPECT_EQ(mark->modules, nullptr);
  EXPECT_EQ(mark->values, nullptr);
  EXPECT_EQ(mark->reading, nullptr);
  EXPECT_EQ(mark->symbol[2], 14.0) << "extents at an x_dimension of 1";
  const Mark inside(PublishedMatrix(
      "####", [](BarhatchJob& job) { job.flags = BARHATCH_MASK | BARHATCH_QUIET_INSIDE; }));
  EXPECT_EQ(SizeOf(inside), "10x10");
  EXPECT_EQ(inside->total[2], 12.0);
}

TEST(PublishedMatrix, ABackslashOfAMaskMeansTheCharacterBehindIt) {
  const Mark literal(PublishedMatrix("\\#\\A\\?\\\\", Flags(BARHATCH_MASK)));
  EXPECT_EQ(literal->codewords, 4);
  EXPECT_EQ(Written("ab\\c", Flags(BARHATCH_MASK)),
            "7 at 3+1: character 3: a backslash of a mask stands in front of # A ? or \\");
  EXPECT_EQ(Written("ab\\", Flags(BARHATCH_MASK)).substr(0, 6), "7 at 3");
}

// Every text of a mask fits its size: random masks, random texts of them.
TEST(PublishedMatrix, EveryTextOfAMaskFitsItsSize) {
  std::mt19937 random(7);
  int full = 0;
  for (int round = 0; round < 1500; ++round) {
    std::string mask;
    std::string shape;  // # A ? or, for a literal, the character itself behind a backslash
    const std::size_t length = 1 + Below(random, 40);
    const std::string literals = CharactersOfClass(static_cast<int>(Below(random, 9)));
    for (std::size_t i = 0; i < length; ++i) shape += "##AA?x"[Below(random, 6)];
    std::string kept;
    for (const char kind : shape) {
      const char literal = literals[Below(random, literals.size())];
      kept += literal;
      const bool isSpecial = literal == '#' || literal == 'A' || literal == '?' || literal == '\\';
      mask += kind != 'x' ? std::string(1, kind)
              : isSpecial ? std::string("\\") + literal
                          : std::string(1, literal);
    }
    const auto asBytes = [&](BarhatchJob& job) {
      job.input = BARHATCH_BYTES;
      job.flags = (round % 3 == 0 ? BARHATCH_LOOSE_END : 0);
    };
    const Mark size(PublishedMatrix(mask, [&](BarhatchJob& job) {
      asBytes(job);
      job.flags |= BARHATCH_MASK;
    }));
    ASSERT_TRUE(size.IsOk()) << size.Message();
    int most = 0;
    for (int sample = 0; sample < 12; ++sample) {
      std::string text;
      const bool isDearest = sample == 0;
      for (std::size_t i = 0; i < length; ++i) {
        const char byte = isDearest ? '\xE9' : static_cast<char>(random());
        text += shape[i] == '#'   ? static_cast<char>('0' + random() % 10)
                : shape[i] == 'A' ? static_cast<char>('A' + random() % 26)
                : shape[i] == '?' ? byte
                                  : kept[i];
      }
      const Mark mark(PublishedMatrix(text, [&](BarhatchJob& job) {
        asBytes(job);
        job.rows = size->rows;
        job.columns = size->columns;
        job.want = BARHATCH_WANT_READING;
      }));
      ASSERT_TRUE(mark.IsOk()) << testing::PrintToString(mask) << " " << mark.Message();
      ASSERT_EQ(mark.Reading(), text);
      const Mark alone(PublishedMatrix(text, asBytes));
      most = std::max(most, alone->rows);
    }
    full += most == size->rows ? 1 : 0;
  }
  EXPECT_GT(full, 1000) << "the size is no larger than the texts need";
}

TEST(PublishedMatrix, TextsOfEveryClassAreReadAsGiven) {
  std::mt19937 random(12);
  for (int round = 0; round < 4000; ++round) {
    const std::string text = RandomText(random, round % kTextClassCount, 1 + Below(random, 90));
    const Mark mark(PublishedMatrix(text, [&](BarhatchJob& job) {
      job.input = BARHATCH_BYTES;
      job.flags = round % 4 == 0 ? BARHATCH_LOOSE_END : 0;
      job.shape = std::array{0, 1, 2, 4, 5}[static_cast<std::size_t>(round % 5)];
      job.envelope = std::array{0, 0, 5, 6, 12, 100}[static_cast<std::size_t>(round % 6)];
      job.want = BARHATCH_WANT_READING;
    }));
    if (mark->status == BARHATCH_TOO_LONG) continue;
    ASSERT_TRUE(mark.IsOk()) << mark.Message();
    ASSERT_EQ(mark->warnings, 0u) << testing::PrintToString(text);
    ASSERT_EQ(mark->deviations, 0u);
    ASSERT_NE(mark.Reading().find(text), std::string::npos);
  }
}

// Texts of any length and class: a mark or a refusal, and never more time than the text is long.
TEST(PublishedMatrix, LongTextsAreMarkedOrRefused) {
  for (int textClass = 0; textClass < kTextClassCount; ++textClass) {
    std::mt19937 random(static_cast<unsigned>(textClass));
    for (std::size_t length = 100; length <= 3500; length += 340) {
      const std::string text = RandomText(random, textClass, length);
      const Mark mark(PublishedMatrix(text, [](BarhatchJob& job) {
        job.input = BARHATCH_BYTES;
        job.want = BARHATCH_WANT_READING;
      }));
      if (mark.IsOk()) {
        EXPECT_EQ(mark.Reading(), text);
      } else {
        EXPECT_TRUE(mark->status == BARHATCH_TOO_LONG || mark->status == BARHATCH_BAD_LENGTH);
      }
    }
  }
}

TEST(PublishedMatrix, NoMemoryIsAStatusAndNothingLeaks) {
  const std::string text = "ABC-123456";
  for (const std::uint32_t flags : {0u, std::uint32_t{BARHATCH_MASK}}) {
    std::size_t failAt = 1;
    for (;; ++failAt) {
      HostMemory memory(failAt);
      BarhatchJob job = PublishedMatrix(text, Flags(flags));
      {
        const Mark mark(memory.Serve(job));
        if (mark.IsOk()) break;
        EXPECT_EQ(mark->status, BARHATCH_NO_MEMORY);
      }
      EXPECT_EQ(memory.LiveBlocks(), 0u);
      EXPECT_EQ(memory.Strangers(), 0u);
    }
    EXPECT_GT(failAt, 4u);
  }
}

}  // namespace barhatch::test
