// Content of a region that comes as image and Mask.
#include "drawing/FloatingContent.h"
#include "drawing/RegionFixture.h"

#include <algorithm>

namespace gp {
namespace {

using test::Rows;

class FloatingContentTest : public test::RegionFixture {
 protected:
  // 'a' and 's' are painted, the latter in the colour of the ground.
  static IconImage contentOfRows(const Rows& rows) {
    IconImage content{picture(rows), picture(rows), {}};
    content.mask.fill(kBlack);
    for (int y = 0; y < content.height(); ++y)
      for (int x = 0; x < content.width(); ++x)
        if (rows[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)] == '.') content.mask.SetPixelV(x, y, kWhite);
    return content;
  }
  void place(const Rows& rows) { placeContent(tools, regions, contentOfRows(rows), false); }
};

TEST_F(FloatingContentTest, ThePixelsOfOneColorAreTransparentOrNone) {
  const IconImage content = contentOf(picture({"as", "sb"}), kGround);
  EXPECT_EQ(rowsOf(content.image, content.mask), (Rows{"a.", ".b"}));
  const IconImage opaque = opaqueContentOf(picture({"as", "sb"}));
  EXPECT_EQ(rowsOf(opaque.image, opaque.mask), (Rows{"as", "sb"}));
}

TEST_F(FloatingContentTest, MergingCoversWhereTheContentIsPaintedAndCutsTheRest) {
  makeIcon(16, {"bbb", "bbb"});
  mergeContent(contentOfRows({"as.", ".ka"}), 1, 0, state.picImage, state.picMask);
  EXPECT_EQ(icon(), (Rows{"bas", "bbka"}));
  mergeContent(contentOfRows({"aaa", "aaa"}), -2, -1, state.picImage, state.picMask);
  EXPECT_EQ(icon(), (Rows{"aas", "bbka"}));
  mergeContent({}, 0, 0, state.picImage, state.picMask);
  EXPECT_EQ(icon(), (Rows{"aas", "bbka"}));
}

TEST_F(FloatingContentTest, PlacedContentFloatsAtTheTopLeftAndKeepsTheColorOfTheGround) {
  makeIcon(16, {"bbbb", "bbbb"});
  place({"s.a", ".s."});
  EXPECT_EQ(icon(), (Rows{"sbab", "bsbb"}));
  EXPECT_TRUE(regions.isFloating());
  EXPECT_FALSE(regions.isPasteOpaque());
  EXPECT_EQ(content(), (Rows{"s.a", ".s."}));
  EXPECT_EQ(beneath(), (Rows{"bbbb", "bbbb"}));
  EXPECT_EQ(tools.selectedTool(), kRegion);
  EXPECT_TRUE(state.current().modified);
  EXPECT_EQ(label(), "Region: Start [1, 1]   W=3 H=2");
  expectAgreement();
}

TEST_F(FloatingContentTest, ItIsOneStepOfUndoAndKeepsTheStepsBeforeIt) {
  makeIcon(16, {"b"});
  paintPixel(1, 0, 'c');
  place({"aa", "aa"});
  EXPECT_EQ(icon(), (Rows{"aa", "aa"}));
  EXPECT_TRUE(history.canUndo());
  undo.doUndo();
  EXPECT_EQ(icon(), Rows{"bc"});
  undo.doUndo();
  EXPECT_EQ(icon(), Rows{"b"});
  undo.doRedo();
  undo.doRedo();
  EXPECT_EQ(icon(), (Rows{"aa", "aa"}));
  expectAgreement();
}

TEST_F(FloatingContentTest, ARegionThatWasThereEndsWhereItIs) {
  makeIcon(16, {"b"});
  place({"a"});
  moveRegion(0, 0);
  place({"c"});
  EXPECT_EQ(icon(), Rows{"c"});
  EXPECT_EQ(beneath(), Rows{"a"});
}

TEST_F(FloatingContentTest, ContentOverFloatingContentLeavesTheContainerAsItWas) {
  makeIcon(16, {"b"});
  place({"a"});
  const Surface stored = state.picPanelImage[0];
  place({"c"});
  EXPECT_EQ(icon(), Rows{"c"});
  EXPECT_TRUE(std::ranges::equal(state.picPanelImage[0].pixels(), stored.pixels())) << "only a click stores the icon";
}

TEST_F(FloatingContentTest, ContentLargerThanTheIconIsARegionLargerThanTheIcon) {
  makeIcon(16, {"b"});
  place(Rows(20, std::string(40, 'a')));
  EXPECT_EQ(icon(), Rows(16, std::string(16, 'a')));
  EXPECT_EQ(boxInPixels(), (Rows{"0,0", "39,19"}));
  drag(14, 8, 2, 3);
  EXPECT_EQ(boxInPixels(), (Rows{"-12,-5", "27,14"}));
  EXPECT_EQ(icon(), Rows(15, std::string(16, 'a')));
  EXPECT_EQ(content().front().size(), 40u);
  expectAgreement();
}

TEST_F(FloatingContentTest, AfterOpaqueContentALiftedRegionHasItsOwnPixels) {
  makeIcon(16, Rows(1, "a"));
  placeContent(tools, regions, opaqueContentOf(picture({"ss", "ss"})), true);
  EXPECT_TRUE(regions.isPasteOpaque());
  EXPECT_EQ(icon(), (Rows{"ss", "ss"}));
  press(cells(10), cells(10));
  release(cells(10), cells(10));
  mark(0, 0, 3, 2);
  EXPECT_EQ(content(), (Rows{"ss..", "ss..", "...."}));
}

}  // namespace
}  // namespace gp
