// Text in the fonts of the system, as the port draws it.
#include "document/IconSizes.h"
#include "effects/WriteText.h"
#include "platform/qt/QtTextDrawing.h"

#include <QString>

#include <algorithm>
#include <gtest/gtest.h>
#include <set>

namespace gp {
namespace {

constexpr const char* kFamily = "DejaVu Sans";
constexpr int kLongest = 144;

class QtTextDrawingTest : public testing::Test {
 protected:
  QtTextDrawing drawing;

  static TextFont font(int pixels) { return {.family = kFamily, .pixels = pixels}; }
  Surface draw(const std::string& text, int pixels = 24, TextLook look = TextLook::Filled, int longest = kLongest) {
    return drawing.drawLine(text, font(pixels), look, longest);
  }
  static int count(const Surface& line) {
    int black = 0;
    for (const std::uint32_t pixel : line.pixels()) black += (pixel & kColorBits) == 0 ? 1 : 0;
    return black;
  }
  // The rows of the text's own box.
  static std::vector<std::string> ink(const Surface& line) {
    const IconImage text = writtenText(line, {}, 1, 1);
    std::vector<std::string> rows;
    for (int y = 0; y < text.height(); ++y) {
      rows.emplace_back();
      for (int x = 0; x < text.width(); ++x) rows.back() += text.mask.GetPixel(x, y) == kBlack ? '#' : '.';
    }
    return rows;
  }
  static int inkHeight(const Surface& line) { return static_cast<int>(ink(line).size()); }
  static int inkWidth(const Surface& line) { return ink(line).empty() ? 0 : static_cast<int>(ink(line)[0].size()); }
  static void expectTextOrGround(const Surface& line, int longest) {
    EXPECT_LE(line.width(), longest);
    EXPECT_LE(line.height(), longest);
    for (const std::uint32_t pixel : line.pixels())
      ASSERT_TRUE((pixel & kColorBits) == 0 || (pixel & kColorBits) == kColorBits);
  }
};

TEST_F(QtTextDrawingTest, TheFamiliesAreInTheOrderOfTheirNamesOnceEachAndThere) {
  const std::vector<std::string> families = drawing.fontFamilies();
  ASSERT_FALSE(families.empty());
  EXPECT_TRUE(std::ranges::find(families, kFamily) != families.end());
  EXPECT_EQ(std::set(families.begin(), families.end()).size(), families.size());
  for (std::size_t i = 0; i < families.size(); ++i) {
    EXPECT_TRUE(drawing.hasFont(families[i])) << families[i];
    EXPECT_EQ(families[i].find('['), std::string::npos) << families[i];
    if (i == 0) continue;
    EXPECT_LE(QString::fromStdString(families[i - 1]).compare(QString::fromStdString(families[i]), Qt::CaseInsensitive),
              0);
  }
  for (const char* none : {"", "No Such Family", "DejaVu"}) EXPECT_FALSE(drawing.hasFont(none)) << none;
}

// Exactly with the font that all machines of the tests have, and about that much with every other one.
TEST_F(QtTextDrawingTest, ACapitalLetterFillsThreeQuartersAHalfAndAThirdOfEachIcon) {
  for (const std::string& family : drawing.fontFamilies())
    for (const int icon : kIconSides)
      for (int size = 0; size < kTextSizes; ++size) {
        const int capital = capitalHeightOf(static_cast<TextSize>(size), icon);
        TextFont chosen{.family = family};
        chosen.pixels = fontPixels(drawing, chosen, capital);
        const int height = inkHeight(drawing.drawLine("H", chosen, TextLook::Filled, kLongest));
        EXPECT_NEAR(height, capital, family == kFamily ? 0 : icon / 16) << family << " " << icon << " " << size;
      }
}

TEST_F(QtTextDrawingTest, SmallLettersAreSharp) {
  for (int pixels = 8; pixels <= 48; ++pixels) {
    const std::vector<std::string> rows = ink(draw("H", pixels));
    ASSERT_FALSE(rows.empty());
    // Two stems of one width, the same in each row but those of the bar, which is whole.
    const std::string stem = rows.front().substr(0, rows.front().find('.'));
    const std::string between(rows.front().size() - 2 * stem.size(), '.');
    int bars = 0;
    for (const std::string& row : rows) {
      const bool isBar = row.find('.') == std::string::npos;
      bars += isBar ? 1 : 0;
      EXPECT_TRUE(isBar || row == stem + between + stem) << pixels << " " << row;
    }
    EXPECT_GE(bars, 1) << pixels;
    EXPECT_LE(bars, static_cast<int>(stem.size()) + 1) << pixels;
  }
}

TEST_F(QtTextDrawingTest, AnOutlineIsOnePixelWide) {
  // The letter is a filled rectangle.
  for (const int pixels : {24, 36, 49, 66}) {
    const std::vector<std::string> filled = ink(draw("I", pixels));
    for (const std::string& row : filled) ASSERT_EQ(row.find('.'), std::string::npos);
    const std::vector<std::string> outline = ink(draw("I", pixels, TextLook::Outline));
    ASSERT_GE(outline.size(), 3u);
    const std::size_t width = outline.front().size();
    EXPECT_EQ(outline.front(), std::string(width, '#'));
    EXPECT_EQ(outline.back(), std::string(width, '#'));
    for (std::size_t y = 1; y + 1 < outline.size(); ++y)
      EXPECT_EQ(outline[y], "#" + std::string(width - 2, '.') + "#") << pixels;
    EXPECT_NEAR(static_cast<double>(outline.size()), static_cast<double>(filled.size()), 1);
  }
}

TEST_F(QtTextDrawingTest, FontStylesChangeTheLetters) {
  const Surface plain = draw("lion");
  TextFont look = font(24);
  look.bold = true;
  EXPECT_GT(count(drawing.drawLine("lion", look, TextLook::Filled, kLongest)), count(plain));
  look = font(24);
  look.italic = true;
  EXPECT_NE(ink(drawing.drawLine("lion", look, TextLook::Filled, kLongest)), ink(plain));
  const auto fullRows = [](const Surface& line) {
    int full = 0;
    for (const std::string& row : ink(line)) full += row.find('.') == std::string::npos ? 1 : 0;
    return full;
  };
  EXPECT_EQ(fullRows(plain), 0);
  for (bool TextFont::*line : {&TextFont::underline, &TextFont::strikeout})
    for (const TextLook filledOrNot : {TextLook::Filled, TextLook::Outline}) {
      look = font(24);
      look.*line = true;
      EXPECT_GE(fullRows(drawing.drawLine("lion", look, filledOrNot, kLongest)), 1);
    }
  look = font(24);
  look.underline = true;
  EXPECT_GT(inkHeight(drawing.drawLine("lion", look, TextLook::Filled, kLongest)), inkHeight(plain));
}

TEST_F(QtTextDrawingTest, LettersThatReachBeyondTheirLineAreWhole) {
  TextFont slanted{.family = "DejaVu Serif", .pixels = 40, .italic = true};
  const Surface alone = drawing.drawLine("f", slanted, TextLook::Filled, kLongest);
  const Surface between = drawing.drawLine(" f ", slanted, TextLook::Filled, kLongest);
  EXPECT_EQ(ink(alone), ink(between));
  EXPECT_GT(inkHeight(draw("A\u030A\u0301")), inkHeight(draw("A")));
}

TEST_F(QtTextDrawingTest, ALineWithoutLettersIsWhite) {
  for (const char* blank : {"", " ", "    ", "\t", "\n", "\u2028", "\u200B"})
    for (const TextLook look : {TextLook::Filled, TextLook::Outline}) EXPECT_EQ(count(draw(blank, 24, look)), 0);
}

TEST_F(QtTextDrawingTest, BreaksAndTabsAreSpaces) {
  for (const char* text : {"a\nb", "a\tb", "a\rb", "a\u2028b", "a\u2029b"})
    EXPECT_EQ(ink(draw(text)), ink(draw("a b")));
}

TEST_F(QtTextDrawingTest, OfALongTextTheFirstLettersThatFitAreDrawn) {
  for (const TextLook look : {TextLook::Filled, TextLook::Outline}) {
    const Surface line = draw(std::string(10000, 'M'), 36, look);
    expectTextOrGround(line, kLongest);
    std::vector<std::string> fitting;
    for (int letters = 1; letters <= 4; ++letters) {
      const Surface some = draw(std::string(static_cast<std::size_t>(letters), 'M'), 36, look);
      if (some.width() <= kLongest) fitting = ink(some);
    }
    EXPECT_EQ(ink(line), fitting);
  }
}

TEST_F(QtTextDrawingTest, ALetterWiderThanTheLineIsCut) {
  for (const TextLook look : {TextLook::Filled, TextLook::Outline})
    for (const int longest : {0, 1, 10}) {
      const Surface line = draw("W", 100, look, longest);
      expectTextOrGround(line, longest);
    }
  EXPECT_GT(count(draw("W", 100, TextLook::Filled, 30)), 0);
}

TEST_F(QtTextDrawingTest, WritingFromTheRightBeginsAtTheRight) {
  const std::string alef = "\u05D0", bet = "\u05D1";
  for (const TextLook look : {TextLook::Filled, TextLook::Outline}) {
    const std::vector<std::string> first = ink(draw(alef, 24, look)), both = ink(draw(alef + bet, 24, look));
    ASSERT_FALSE(first.empty());
    ASSERT_GT(both.front().size(), first.front().size());
    // Both letters are equally high.
    ASSERT_EQ(first.size(), both.size());
    for (std::size_t y = 0; y < both.size(); ++y)
      EXPECT_EQ(both[y].substr(both[y].size() - first[y].size()), first[y]) << y;
  }
  std::string longText = alef;
  for (int i = 0; i < 5000; ++i) longText += bet;
  const std::vector<std::string> first = ink(draw(alef)), start = ink(draw(longText));
  for (std::size_t y = 0; y < start.size(); ++y)
    EXPECT_EQ(start[y].substr(start[y].size() - first[y].size()), first[y]) << y;
}

TEST_F(QtTextDrawingTest, CombiningMarksBelongToTheirLetter) {
  EXPECT_EQ(ink(draw("e\u0301")), ink(draw("\u00E9")));
  EXPECT_EQ(inkWidth(draw("xe\u0301x")), inkWidth(draw("x\u00E9x")));
}

TEST_F(QtTextDrawingTest, LettersOutsideTheBasicPlaneAreDrawn) {
  for (const char* letter : {"\U0001F600", "\U0001D538"}) {
    EXPECT_GT(count(draw(letter)), 0);
    expectTextOrGround(draw(letter), kLongest);
  }
}

TEST_F(QtTextDrawingTest, AnyBytesAreDrawnWithinTheLimits) {
  std::string everything;
  for (int i = 1; i < 256; ++i) everything += static_cast<char>(i);
  std::string marks = "A";
  for (int i = 0; i < 10000; ++i) marks += "\u0301";
  std::string faces;
  for (int i = 0; i < 5000; ++i) faces += "\U0001F600";
  const std::string half(999, 'i');
  for (const std::string& text : {everything, marks, faces, std::string("\xED\xA0\xBD"), std::string("\xFF\xFE"),
                                  std::string("\0a", 2), half + "\U0001F600", std::string("\u202Ea\u202Cb\u2066c")})
    for (const TextLook look : {TextLook::Filled, TextLook::Outline})
      for (const int pixels : {1, 7, 24, 100}) expectTextOrGround(draw(text, pixels, look), kLongest);
}

TEST_F(QtTextDrawingTest, AFontThatIsNotThereAndSizesWithoutMeaningAreNoError) {
  for (const char* family : {"", "No Such Family"})
    for (const int pixels : {-3, 0, 1, 24})
      expectTextOrGround(drawing.drawLine("Ab", {.family = family, .pixels = pixels}, TextLook::Filled, 48), 48);
}

}  // namespace
}  // namespace gp
