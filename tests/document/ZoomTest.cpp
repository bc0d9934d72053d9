#include "document/DocumentFixture.h"
#include "document/Zoom.h"

namespace gp {
namespace {

TEST(Zoom, StepsAreOfOnePixelUpTo16AndOfTwoAbove) {
  std::vector<int> in = {kLeastZoom}, out = {kMostZoom};
  while (in.back() < kMostZoom) in.push_back(zoomed(in.back(), ZoomStep::In));
  while (out.back() > kLeastZoom) out.push_back(zoomed(out.back(), ZoomStep::Out));
  EXPECT_EQ(in, (std::vector<int>{4,  5,  6,  7,  8,  9,  10, 11, 12, 13, 14, 15, 16,
                                  18, 20, 22, 24, 26, 28, 30, 32, 34, 36, 38, 40}));
  std::ranges::reverse(out);
  EXPECT_EQ(in, out);
}

TEST(Zoom, EndsAtItsLimits) {
  EXPECT_EQ(zoomed(4, ZoomStep::Out), 4);
  EXPECT_EQ(zoomed(40, ZoomStep::In), 40);
}

class ZoomTest : public test::DocumentFixture {
 protected:
  void showIcon(int size) {
    state.current().used = state.current().present = true;
    state.current().size = static_cast<std::int16_t>(size);
    area.SizeEditSurfaces(size);
    state.picImage.fill(0x0000FF);
    state.picMask.fill(kBlack);
    area.ComposeCurrentIcon();
    area.BuildGrid();
    area.MagnifyIcon();
  }
  void zoom(ZoomStep step, int times) {
    for (int i = 0; i < times; ++i) options.zoom(step);
  }
  void expectMagnification(int magnification) {
    EXPECT_EQ(state.gMagnification, magnification);
    EXPECT_EQ(state.picDisp.width(), state.picImage.width() * magnification);
    EXPECT_EQ(state.PicGrid.width(), state.picDisp.width());
  }
};

TEST_F(ZoomTest, StartsAtTheFactorOfTheOptionAndRebuildsTheEditingArea) {
  for (const auto& [size, option] : {std::pair{16, 12}, std::pair{48, 8}}) {
    options.zoom(ZoomStep::ToOption);
    showIcon(size);
    zoom(ZoomStep::In, 1);
    expectMagnification(option + 1);
    EXPECT_EQ(state.picDisp.GetPixel(1, 1), 0x0000FF);
    zoom(ZoomStep::Out, 2);
    expectMagnification(option - 1);
    zoom(ZoomStep::In, 40);
    expectMagnification(40);
    zoom(ZoomStep::Out, 40);
    expectMagnification(4);
    zoom(ZoomStep::ToOption, 1);
    expectMagnification(option);
  }
}

TEST_F(ZoomTest, HoldsForEveryIconUntilItIsForgotten) {
  showIcon(16);
  zoom(ZoomStep::In, 3);
  showIcon(48);
  expectMagnification(15);
  state.current().present = false;
  area.showEmpty();
  EXPECT_EQ(state.gMagnification, 12) << "an empty area is not zoomed";
  showIcon(48);
  expectMagnification(15);
  zoom(ZoomStep::ToOption, 1);
  expectMagnification(8);
}

TEST_F(ZoomTest, StaysWhileTheRoomChanges) {
  showIcon(16);
  zoom(ZoomStep::In, 1);
  options.setRoom(600, 600);
  expectMagnification(13);
  zoom(ZoomStep::ToOption, 1);
  expectMagnification(15);
}

TEST_F(ZoomTest, ZoomingBackToTheFactorOfTheOptionIsStillAZoom) {
  showIcon(16);
  zoom(ZoomStep::In, 1);
  zoom(ZoomStep::Out, 1);
  options.setRoom(600, 600);
  expectMagnification(12);
  zoom(ZoomStep::ToOption, 1);
  expectMagnification(15);
  options.setRoom(400, 400);
  expectMagnification(12);
}

TEST_F(ZoomTest, TheOptionForgetsIt) {
  showIcon(16);
  zoom(ZoomStep::In, 9);
  options.ApplyEnlargedOption();
  expectMagnification(12);
}

TEST_F(ZoomTest, WithoutAnIconItCanOnlyBeForgotten) {
  options.zoom(ZoomStep::In);
  showIcon(16);
  expectMagnification(12);
  zoom(ZoomStep::In, 4);
  state.current().present = false;
  options.setRoom(600, 600);
  EXPECT_EQ(state.picDisp.width(), 15 * 32) << "the empty area follows the room";
  options.zoom(ZoomStep::Out);
  options.zoom(ZoomStep::ToOption);
  showIcon(16);
  expectMagnification(15);
}

TEST_F(ZoomTest, AtALimitNothingIsRebuilt) {
  showIcon(16);
  zoom(ZoomStep::In, 40);
  display.parts.clear();
  zoom(ZoomStep::In, 1);
  EXPECT_EQ(display.count(DisplayPart::EditingArea), 0);
}

}  // namespace
}  // namespace gp
