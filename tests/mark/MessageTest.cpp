#include "mark/Message.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <limits>
#include <string>

namespace barhatch {
namespace {

// What is left in the room of a message.
template <typename Say>
std::string Said(const Say& say) {
  char room[Message::kCapacity];
  std::memset(room, 'x', sizeof room);
  Message message(room);
  say(message);
  return room;
}

std::string SaidNumber(std::int32_t number) {
  return Said([&](Message& message) { message << number; });
}

std::string SaidCode(std::int32_t code) {
  return Said([&](Message& message) { message.Code(code); });
}

}  // namespace

TEST(Message, IsEmptyAtFirst) {
  EXPECT_EQ(Said([](Message&) {}), "");
}

TEST(Message, PutsPiecesOneBehindTheOther) {
  EXPECT_EQ(Said([](Message& message) {
              message << "at " << 17 << ": "
                      << ""
                      << "end";
            }),
            "at 17: end");
}

TEST(Message, WritesEveryNumber) {
  EXPECT_EQ(SaidNumber(0), "0");
  EXPECT_EQ(SaidNumber(7), "7");
  EXPECT_EQ(SaidNumber(10), "10");
  EXPECT_EQ(SaidNumber(-1), "-1");
  EXPECT_EQ(SaidNumber(std::numeric_limits<std::int32_t>::max()), "2147483647");
  EXPECT_EQ(SaidNumber(std::numeric_limits<std::int32_t>::min()), "-2147483648");
}

TEST(Message, ShowsTheCharacterOfACodeWhereAsciiPrintsIt) {
  EXPECT_EQ(SaidCode(0x65), "0x65 'e'");
  EXPECT_EQ(SaidCode('!'), "0x21 '!'");
  EXPECT_EQ(SaidCode('~'), "0x7E '~'");
  EXPECT_EQ(SaidCode(' '), "0x20");
  EXPECT_EQ(SaidCode(0x7F), "0x7F");
  EXPECT_EQ(SaidCode(0), "0x00");
  EXPECT_EQ(SaidCode(0xFF), "0xFF");
}

TEST(Message, ShowsFourDigitsOfACodeAboveABytes) {
  EXPECT_EQ(SaidCode(0x100), "0x0100");
  EXPECT_EQ(SaidCode(0x20AC), "0x20AC");
  EXPECT_EQ(SaidCode(0xFFFF), "0xFFFF");
}

TEST(Message, ShowsAsManyDigitsAsACodePointHas) {
  EXPECT_EQ(SaidCode(0x10000), "0x10000");
  EXPECT_EQ(SaidCode(0xFFFFF), "0xFFFFF");
  EXPECT_EQ(SaidCode(0x100000), "0x100000");
  EXPECT_EQ(SaidCode(0x10FFFF), "0x10FFFF");
}

TEST(Message, IsCutWhereItDoesNotFitAndStillEnds) {
  const std::string fits(Message::kCapacity - 1, 'a');
  EXPECT_EQ(Said([&](Message& message) { message << fits.c_str(); }), fits);
  EXPECT_EQ(Said([&](Message& message) { message << fits.c_str() << "b" << 12; }), fits);
  EXPECT_EQ(Said([&](Message& message) { message << fits.c_str() + 1 << 12; }),
            fits.substr(1) + "1");
}

}  // namespace barhatch
