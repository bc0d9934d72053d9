#include "platform/files/ByteReader.h"
#include "platform/files/ByteWriter.h"

#include <array>
#include <gtest/gtest.h>
#include <limits>

namespace gp {
namespace {

constexpr std::array<std::uint8_t, 6> kBytes = {0x01, 0x02, 0x03, 0x84, 0xFF, 0xFE};

TEST(ByteReader, ValuesAreLittleEndian) {
  ByteReader reader(kBytes);
  EXPECT_EQ(reader.u8(), 0x01);
  EXPECT_EQ(reader.u16(), 0x0302);
  EXPECT_EQ(reader.i16(), static_cast<std::int16_t>(0xFF84));
  EXPECT_EQ(reader.position(), 5u);
  EXPECT_EQ(reader.remaining(), 1u);
  EXPECT_FALSE(reader.beyondEnd());
}

TEST(ByteReader, AbsoluteReadingKeepsThePosition) {
  ByteReader reader(kBytes, 3);
  EXPECT_EQ(reader.u32At(0), 0x84030201u);
  EXPECT_EQ(reader.i32At(0), static_cast<std::int32_t>(0x84030201u));
  EXPECT_EQ(reader.u8At(5), 0xFE);
  EXPECT_EQ(reader.u16At(4), 0xFEFF);
  EXPECT_EQ(reader.position(), 3u);
}

TEST(ByteReader, BytesBehindTheEndAreZero) {
  ByteReader reader(kBytes);
  EXPECT_EQ(reader.u32At(4), 0xFEFFu);
  EXPECT_TRUE(reader.beyondEnd());
  EXPECT_EQ(reader.u32At(6), 0u);
  EXPECT_EQ(reader.u8At(std::numeric_limits<std::uint64_t>::max()), 0);
  EXPECT_EQ(reader.u32At(std::numeric_limits<std::uint64_t>::max() - 1), 0u);
}

TEST(ByteReader, ReadingOnBehindTheEndStaysZero) {
  ByteReader reader({});
  for (int i = 0; i < 10; ++i) EXPECT_EQ(reader.u32(), 0u);
  EXPECT_EQ(reader.position(), 40u);
  EXPECT_EQ(reader.remaining(), 0u);
}

TEST(ByteReader, SeekAndSkipMoveAndNeverWrap) {
  ByteReader reader(kBytes);
  reader.seek(4);
  EXPECT_EQ(reader.u8(), 0xFF);
  reader.skip(std::numeric_limits<std::uint64_t>::max());
  EXPECT_EQ(reader.position(), std::numeric_limits<std::uint64_t>::max());
  EXPECT_EQ(reader.u32(), 0u);
  EXPECT_EQ(reader.position(), std::numeric_limits<std::uint64_t>::max());
}

TEST(ByteReader, AnAreaIsInsideOnlyWhenAllOfItIs) {
  ByteReader reader(kBytes);
  EXPECT_TRUE(reader.contains(0, 6));
  EXPECT_TRUE(reader.contains(6, 0));
  EXPECT_FALSE(reader.contains(7, 0));
  EXPECT_FALSE(reader.contains(1, 6));
  EXPECT_FALSE(reader.contains(1, std::numeric_limits<std::uint64_t>::max()));
}

TEST(ByteReader, APartIsCutAtTheEnd) {
  ByteReader reader(kBytes);
  EXPECT_EQ(reader.bytesAt(1, 2).size(), 2u);
  EXPECT_FALSE(reader.beyondEnd());
  EXPECT_EQ(reader.bytesAt(4, 100).size(), 2u);
  EXPECT_EQ(reader.bytesAt(1000, 5).size(), 0u);
  EXPECT_TRUE(reader.beyondEnd());
}

constexpr std::uint16_t secondWord() { return ByteReader(kBytes).u16At(2); }
static_assert(secondWord() == 0x8403);

TEST(ByteWriter, ValuesAreWrittenLittleEndian) {
  ByteWriter writer(64);
  writer.u8(1);
  writer.u16(0x0302);
  writer.u32(0x07060504);
  writer.i16(-2);
  writer.i32(-3);
  writer.text("ab");
  writer.bytes(kBytes);
  writer.zeros(2);
  writer.setU32(3, 0x11121314);
  const std::vector<std::uint8_t> expected = {1,    2,   3,   0x14, 0x13, 0x12, 0x11, 0xFE, 0xFF, 0xFD, 0xFF, 0xFF,
                                              0xFF, 'a', 'b', 1,    2,    3,    0x84, 0xFF, 0xFE, 0,    0};
  EXPECT_EQ(writer.size(), expected.size());
  EXPECT_EQ(writer.take(), expected);
  EXPECT_EQ(writer.size(), 0u);
}

TEST(ByteWriter, AValueIsSetOnlyWhereOneWasWritten) {
  ByteWriter writer;
  writer.u16(0);
  EXPECT_THROW(writer.setU32(0, 1), std::out_of_range);
}

}  // namespace
}  // namespace gp
