#include "document/Containers.h"
#include "document/Document.h"
#include "document/EditState.h"
#include "files/cursor/HotspotMark.h"
#include "support/FakeEditor.h"
#include "support/ScriptedPorts.h"

#include <functional>
#include <vector>

namespace gp::test {
namespace {

constexpr Color kRed = 0x0000FF;
constexpr int kX = 3, kY = 5;

// Keeps a copy of PicIcon whenever it is magnified onto the Editing Area.
class WatchingDisplay : public RecordingDisplay {
 public:
  explicit WatchingDisplay(const EditState& state) : state_(state) {}
  std::vector<Surface> shown;

  void changed(DisplayPart part) override {
    if (part == DisplayPart::EditingArea) shown.push_back(state_.PicIcon);
  }

 private:
  const EditState& state_;
};

// Lets a test act at every wait.
class WatchingPump : public MessagePump {
 public:
  std::vector<int> waits;  // milliseconds
  std::function<void()> onWait;

  void pump() override {}
  void wait(int milliseconds) override {
    waits.push_back(milliseconds);
    if (onWait) onWait();
  }
};

// An icon with one transparent pixel, which is the hot spot.
class HotspotMarkTest : public testing::Test {
 protected:
  EditState state;
  FakeEditor editor;
  WatchingDisplay watched{state};
  ScriptedBoxes boxes;
  WatchingPump watching;
  const Context context{state, editor, watched, boxes, watching};
  Document document{context};
  HotspotMark mark{context, document.editingArea};

  HotspotMarkTest() { make(32); }
  void make(int size, const std::string& path = "Untitled") {
    IconImage icon = transparentIcon(size);
    icon.image.fill(0x123456);
    icon.mask.fill(kBlack);
    icon.image.SetPixelV(kX, kY, kBlack);
    icon.mask.SetPixelV(kX, kY, kWhite);
    IconContainerRec record = NewRecord();
    record.path = path;
    document.arrival.arrive(icon, record);
    watched.shown.clear();
  }
  Color shownAt(std::size_t step) const { return watched.shown.at(step).GetPixel(kX, kY); }
  void expectNoMark() const {
    EXPECT_EQ(state.picImage.GetPixel(kX, kY), kBlack);
    EXPECT_EQ(state.picMask.GetPixel(kX, kY), kWhite);
    EXPECT_EQ(state.PicIcon.GetPixel(kX, kY), kGround);
  }
};

TEST_F(HotspotMarkTest, ThePixelTurnsRedAndWhiteThreeTimesAndIsThenWhatItWas) {
  mark.FlashHotspot(kX, kY);
  ASSERT_EQ(watched.shown.size(), 7u);
  for (const std::size_t step : {0u, 2u, 4u}) {
    EXPECT_EQ(shownAt(step), kRed) << step;
    EXPECT_EQ(shownAt(step + 1), kWhite) << step;
  }
  EXPECT_EQ(shownAt(6), kGround);
  EXPECT_EQ(watching.waits, (std::vector<int>(6, 150)));
  expectNoMark();
}

TEST_F(HotspotMarkTest, NoOtherPixelChanges) {
  const Surface before = state.PicIcon;
  mark.FlashHotspot(kX, kY);
  for (const Surface& shown : watched.shown)
    for (int y = 0; y < 32; ++y)
      for (int x = 0; x < 32; ++x)
        if (x != kX || y != kY) {
          ASSERT_EQ(shown.GetPixel(x, y), before.GetPixel(x, y));
        }
}

TEST_F(HotspotMarkTest, WhileMessagesArePumpedTheIconHoldsNoMark) {
  watching.onWait = [&] {
    expectNoMark();
    Surface image = state.picImage, mask = state.picMask;
    image.clearDrawing();
    mask.clearDrawing();
    EXPECT_EQ(image.GetPixel(kX, kY), kBlack) << "nor what clearing brings back";
    EXPECT_EQ(mask.GetPixel(kX, kY), kWhite);
  };
  mark.FlashHotspot(kX, kY);
  EXPECT_EQ(watching.waits.size(), 6u);
}

TEST_F(HotspotMarkTest, CalledWhileItIsRunningItDoesNothing) {
  watching.onWait = [&] {
    EXPECT_TRUE(mark.isFlashing());
    const std::size_t shown = watched.shown.size();
    mark.FlashHotspot(20, 20);
    EXPECT_EQ(watched.shown.size(), shown);
  };
  mark.FlashHotspot(kX, kY);
  EXPECT_FALSE(mark.isFlashing());
  EXPECT_EQ(watching.waits.size(), 6u);
  for (const Surface& shown : watched.shown) EXPECT_EQ(shown.GetPixel(20, 20), 0x123456);
}

TEST_F(HotspotMarkTest, ItCanBeShownAgainAfterwards) {
  mark.FlashHotspot(kX, kY);
  mark.FlashHotspot(31, 31);
  EXPECT_EQ(watching.waits.size(), 12u);
  EXPECT_EQ(state.picImage.GetPixel(31, 31), 0x123456);
}

TEST_F(HotspotMarkTest, ASpotOutsideTheIconIsNotShown) {
  const std::pair<int, int> outside[] = {{-1, 0}, {0, -1}, {32, 0}, {0, 32}, {32767, -32768}};
  for (const auto& [x, y] : outside) mark.FlashHotspot(x, y);
  EXPECT_TRUE(watched.shown.empty());
  EXPECT_TRUE(watching.waits.empty());
}

TEST_F(HotspotMarkTest, ACancelledBlinkEndsAtOnceWithTheTrueIcon) {
  watching.onWait = [&] { mark.cancel(); };
  mark.FlashHotspot(kX, kY);
  EXPECT_EQ(watching.waits.size(), 1u);
  ASSERT_EQ(watched.shown.size(), 2u);
  EXPECT_EQ(shownAt(1), kGround);
  EXPECT_FALSE(mark.isFlashing());
  expectNoMark();
}

TEST_F(HotspotMarkTest, ACancelBeforeItStartedIsForgotten) {
  mark.cancel();
  mark.FlashHotspot(kX, kY);
  EXPECT_EQ(watching.waits.size(), 6u);
}

TEST_F(HotspotMarkTest, AnotherIconEndsItAndIsShownWithoutAMark) {
  watching.onWait = [&] { make(16); };
  mark.FlashHotspot(kX, kY);
  EXPECT_EQ(watching.waits.size(), 1u);
  ASSERT_EQ(watched.shown.size(), 1u) << "the new icon alone";
  EXPECT_EQ(shownAt(0), kGround);
  expectNoMark();
}

TEST_F(HotspotMarkTest, AnIconOfTheSameSizeFromAnotherFileEndsItToo) {
  watching.onWait = [&] { make(32, "/other.ico"); };
  mark.FlashHotspot(kX, kY);
  EXPECT_EQ(watching.waits.size(), 1u);
  expectNoMark();
}

TEST_F(HotspotMarkTest, AnEmptyContainerEndsItAndNothingIsDrawn) {
  watching.onWait = [&] { document.iconsPanel.showEmptyContainer(), watched.shown.clear(); };
  mark.FlashHotspot(kX, kY);
  EXPECT_EQ(watching.waits.size(), 1u);
  EXPECT_TRUE(watched.shown.empty());
}

TEST_F(HotspotMarkTest, WhatIsPaintedOnTheSpotMeanwhileStays) {
  watching.onWait = [&] {
    state.picImage.SetPixelV(kX, kY, 0x00FF00);
    state.picMask.SetPixelV(kX, kY, kBlack);
  };
  mark.FlashHotspot(kX, kY);
  EXPECT_EQ(state.picImage.GetPixel(kX, kY), 0x00FF00);
  EXPECT_EQ(state.picMask.GetPixel(kX, kY), kBlack);
  EXPECT_EQ(state.PicIcon.GetPixel(kX, kY), 0x00FF00);
}

}  // namespace
}  // namespace gp::test
