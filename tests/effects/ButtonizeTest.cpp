#include "effects/Pictures.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace gp::test {
namespace {

enum Pattern { OneLine, Boxed, TwoTones };

Rows buttonOf(int pattern, const Rows& rows) { return rowsOf(applied("buttonize", iconOf(rows), {pattern})); }

const Rows kOneLineButton{
    ".wwwwwwwwwwwwww.",  //
    "woooooooooooooob",  //
    "woooooooooooooob",  //
    "woooooooooooooob",  //
    "woooooooooooooob",  //
    "woooooooooooooob",  //
    "woooooooooooooob",  //
    "woooooooooooooob",  //
    "woooooooooooooob",  //
    "woooooooooooooob",  //
    "woooooooooooooob",  //
    "woooooooooooooob",  //
    "woooooooooooooob",  //
    "woooooooooooooob",  //
    "woooooooooooooob",  //
    ".bbbbbbbbbbbbbb.",
};

const Rows kBoxedButton{
    ".bbbbbbbbbbbbbb.",  //
    "bwwwwwwwwwwwwwgb",  //
    "bwwwwwwwwwwwwggb",  //
    "bwwooooooooooggb",  //
    "bwwooooooooooggb",  //
    "bwwooooooooooggb",  //
    "bwwooooooooooggb",  //
    "bwwooooooooooggb",  //
    "bwwooooooooooggb",  //
    "bwwooooooooooggb",  //
    "bwwooooooooooggb",  //
    "bwwooooooooooggb",  //
    "bwwooooooooooggb",  //
    "bwgggggggggggggb",  //
    "bggggggggggggggb",  //
    ".bbbbbbbbbbbbbb.",
};

const Rows kTwoTonesButton{
    ".wwwwwwwwwwwwww.",  //
    "wllllllllllllldb",  //
    "wloooooooooooodb",  //
    "wloooooooooooodb",  //
    "wloooooooooooodb",  //
    "wloooooooooooodb",  //
    "wloooooooooooodb",  //
    "wloooooooooooodb",  //
    "wloooooooooooodb",  //
    "wloooooooooooodb",  //
    "wloooooooooooodb",  //
    "wloooooooooooodb",  //
    "wloooooooooooodb",  //
    "wloooooooooooodb",  //
    "wddddddddddddddb",  //
    ".bbbbbbbbbbbbbb.",
};

struct Style {
  Pattern pattern;
  const Rows& button;
};
const Style kStyles[] = {{OneLine, kOneLineButton}, {Boxed, kBoxedButton}, {TwoTones, kTwoTonesButton}};

TEST(Buttonize, EachPatternFramesAPaintedIcon) {
  for (const Style& style : kStyles) EXPECT_EQ(buttonOf(style.pattern, flatRows(16, 16, 'o')), style.button);
}

TEST(Buttonize, TheInsideKeepsItsPixelsAndTheFrameIsPaintedOnAnyGround) {
  for (const Style& style : kStyles)
    for (const char ground : {'.', '^', 'p', '/'}) {
      Rows expected = style.button;
      for (std::string& row : expected)
        for (char& letter : row)
          if (letter == 'o') letter = ground;
      EXPECT_EQ(buttonOf(style.pattern, flatRows(16, 16, ground)), expected) << ground;
    }
}

TEST(Buttonize, TheBoxedPatternLeavesTenPixelsAcross) {
  const Rows button = buttonOf(Boxed, flatRows(16, 16, 'o'));
  EXPECT_EQ(std::ranges::count(button[8], 'o'), 10);
  std::string column;
  for (const std::string& row : button) column += row[8];
  EXPECT_EQ(std::ranges::count(column, 'o'), 10);
}

TEST(Buttonize, APatternThatDoesNotExistIsTheFirst) {
  for (const int pattern : {-1, 3, 1000})
    EXPECT_EQ(buttonOf(pattern, flatRows(16, 16, 'o')), kOneLineButton) << pattern;
}

TEST(Buttonize, TheSmallestIconsAreAllCorners) {
  for (const Style& style : kStyles) {
    EXPECT_EQ(buttonOf(style.pattern, {"o"}), Rows{"."});
    EXPECT_EQ(buttonOf(style.pattern, {"oo", "oo"}), (Rows{"..", ".."}));
    EXPECT_EQ(buttonOf(style.pattern, {"oo"}), Rows{".."});
    EXPECT_EQ(buttonOf(style.pattern, {"o", "o"}), (Rows{".", "."}));
    for (const auto& [width, height] : {OddSize{0, 0}, OddSize{0, 5}, OddSize{5, 0}})
      EXPECT_EQ(buttonOf(style.pattern, flatRows(width, height, 'o')), flatRows(width, height, 'o'));
  }
}

TEST(Buttonize, InTinyIconsTheLinesOfBothEdgesCross) {
  const Rows tiny = flatRows(3, 3, 'o');
  EXPECT_EQ(buttonOf(OneLine, tiny), (Rows{".w.", "wob", ".b."}));
  EXPECT_EQ(buttonOf(Boxed, tiny), (Rows{".g.", "wgw", ".w."}));
  EXPECT_EQ(buttonOf(TwoTones, tiny), (Rows{".w.", "wdb", ".b."}));
}

TEST(Buttonize, InASingleRowLinesThatRunBackwardsStillStopShortOfTheirEnd) {
  EXPECT_EQ(buttonOf(OneLine, {"oooooo"}), Rows{".bbbb."});
  EXPECT_EQ(buttonOf(TwoTones, {"oooooo"}), Rows{".lbbb."});
}

TEST(Buttonize, IconsNeedNotBeSquare) {
  EXPECT_EQ(buttonOf(OneLine, flatRows(5, 3, 'o')), (Rows{".www.", "wooob", ".bbb."}));
  EXPECT_EQ(buttonOf(TwoTones, flatRows(7, 5, 'o')), (Rows{".wwwww.", "wlllldb", "wlooodb", "wdddddb", ".bbbbb."}));
  EXPECT_EQ(buttonOf(Boxed, flatRows(7, 8, 'o')),
            (Rows{".bbbbb.", "bwwwwgb", "bwwwggb", "bwwoggb", "bwwoggb", "bwggggb", "bgggggb", ".bbbbb."}));
}

TEST(Buttonize, LongIconsAreFramed) {
  for (const Style& style : kStyles) {
    const Rows row = buttonOf(style.pattern, flatRows(4096, 1, 'o'));
    ASSERT_EQ(row.size(), 1U);
    EXPECT_EQ(std::ranges::count(row[0], '.'), 2);
    EXPECT_EQ(std::ranges::count(row[0], 'o'), 0);
    const Rows column = buttonOf(style.pattern, flatRows(1, 4096, 'o'));
    ASSERT_EQ(column.size(), 4096U);
    EXPECT_EQ(std::ranges::count(column, "."), 2);
    EXPECT_EQ(std::ranges::count(column, "o"), 0);
  }
}

TEST(Buttonize, ThePenThatTheIconWasDrawnWithIsNotTheFrames) {
  for (const Style& style : kStyles) {
    IconImage icon = iconOf(flatRows(16, 16, 'o'));
    for (Surface* surface : {&icon.image, &icon.mask}) {
      surface->penWidth = 5;
      surface->penStyle = PenStyle::Dot;
      surface->drawMode = DrawMode::Invert;
      surface->fillMode = FillMode::Solid;
    }
    EXPECT_EQ(rowsOf(applied("buttonize", icon, {style.pattern})), style.button);
  }
}

TEST(Buttonize, TheIconItselfStays) {
  const IconImage icon = iconOf(flatRows(16, 16, 'o'));
  const IconImage framed = applied("buttonize", icon, {Boxed});
  EXPECT_EQ(rowsOf(icon), flatRows(16, 16, 'o'));
  EXPECT_NE(rowsOf(framed), rowsOf(icon));
}

TEST(Buttonize, AnythingWithinTheFrameStaysWhereverItIs) {
  for (const Rows& rows : randomIcons(200))
    for (const Style& style : kStyles) {
      const Rows framed = buttonOf(style.pattern, rows);
      ASSERT_EQ(framed.size(), rows.size());
      constexpr std::size_t kThickest = 3;
      for (std::size_t y = kThickest; y + kThickest < rows.size(); ++y)
        for (std::size_t x = kThickest; x + kThickest < rows[y].size(); ++x) EXPECT_EQ(framed[y][x], rows[y][x]);
    }
}

}  // namespace
}  // namespace gp::test
