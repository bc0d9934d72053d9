// Every event in every phase of a region: which phase follows, and whether icon, Mask, region and history agree.
#include "drawing/RegionFixture.h"

#include <tuple>

namespace gp {
namespace {

using test::Rows;
using enum RegionPhase;

// With MovingView the option to update only the Editing Area is on.
class PhaseFixture : public test::RegionFixture {
 public:
  void bring(RegionPhase phase) {
    state.options.updateOnlyEditingArea = phase == MovingView;
    makeIcon(16, {".aaaaa", "abbbba", "ab.cba", "abccba", "abbbba", "aaaaaa"});
    paintPixel(0, 0, 'a');
    clipboard.hold(picture({"ccs", "csc"}));
    if (phase == None) return;
    if (phase == Drawing) {
      press(cells(1), cells(1));
      move(cells(4), cells(4));
      return;
    }
    mark(0, 0, 5, 5);
    if (phase == Standing) return;
    if (phase == Sizing) {
      press(cells(6), cells(3));
      move(cells(4) + 3, cells(3));
      return;
    }
    press(inside(0), inside(0));
    move(inside(0) + cells(2), inside(0) + cells(1));
  }

  // Events, in the order of the columns below.
  void pressInside() { press(cells(3), cells(3)); }
  void pressOutside() { press(cells(13), cells(13)); }
  void pressOnSide() { press(cells(static_cast<int>(draw.draw.x2) + 1), cells(3)); }
  void moveMouse() { move(cells(5), cells(5)); }
  void releaseMouse() { release(cells(5), cells(5)); }
  void cancel() { regions.cancel(); }
  void finish() { regions.finishDrag(); }
  void clear() { regions.clearRegion(); }
  void drop() {
    regions.dropContent();
    area.showChangedIcon();
  }
  void paste() { commands.doPaste(true); }
  void flip() { transforms.RotateFlipHoriz(); }
  void anotherIcon() { arrive(1, iconOf({"cc", "cc"})); }
  void redraw() { area.MagnifyIcon(); }
  void magnify() { options.setRoom(600, 600); }
  void undoStep() { undo.doUndo(); }

 private:
  static IconImage iconOf(const Rows& rows) {
    IconImage icon = transparentIcon(16);
    for (int y = 0; y < static_cast<int>(rows.size()); ++y)
      for (int x = 0; x < static_cast<int>(rows[y].size()); ++x) {
        icon.image.SetPixelV(x, y, colorOf(rows[y][x]));
        icon.mask.SetPixelV(x, y, kBlack);
      }
    return icon;
  }
};

struct Event {
  const char* name;
  void (PhaseFixture::*run)();
  RegionPhase after[6];  // from None, Drawing, Standing, Moving, MovingView, Sizing
};
std::ostream& operator<<(std::ostream& out, const Event& event) { return out << event.name; }

const Event kEvents[] = {
    {"pressInside", &PhaseFixture::pressInside, {Drawing, Drawing, Moving, Moving, Moving, Moving}},
    {"pressOutside", &PhaseFixture::pressOutside, {Drawing, Drawing, None, None, None, None}},
    {"pressOnSide", &PhaseFixture::pressOnSide, {Drawing, Drawing, Sizing, Sizing, Sizing, Sizing}},
    {"moveMouse", &PhaseFixture::moveMouse, {None, Drawing, Standing, Moving, MovingView, Sizing}},
    {"releaseMouse", &PhaseFixture::releaseMouse, {None, Standing, Standing, Standing, Standing, Standing}},
    {"cancel", &PhaseFixture::cancel, {None, None, Standing, Standing, Standing, Standing}},
    {"finish", &PhaseFixture::finish, {None, Drawing, Standing, Standing, Standing, Standing}},
    {"clear", &PhaseFixture::clear, {None, None, None, None, None, None}},
    {"drop", &PhaseFixture::drop, {None, None, None, None, None, None}},
    {"paste", &PhaseFixture::paste, {Standing, Standing, Standing, Standing, Standing, Standing}},
    {"flip", &PhaseFixture::flip, {None, Drawing, Standing, Standing, Standing, Standing}},
    {"anotherIcon", &PhaseFixture::anotherIcon, {None, None, None, None, None, None}},
    {"redraw", &PhaseFixture::redraw, {None, Drawing, Standing, Moving, MovingView, Sizing}},
    {"magnify", &PhaseFixture::magnify, {None, None, None, None, None, None}},
    {"undoStep", &PhaseFixture::undoStep, {None, None, None, None, None, None}},
};

class RegionPhases : public PhaseFixture, public testing::WithParamInterface<std::tuple<RegionPhase, Event>> {
 protected:
  static RegionPhase before() { return std::get<0>(GetParam()); }
  static const Event& event() {
    static Event kept;
    return kept = std::get<1>(GetParam());
  }
  void happen() { (this->*event().run)(); }
};
INSTANTIATE_TEST_SUITE_P(EveryEvent, RegionPhases,
                         testing::Combine(testing::Values(None, Drawing, Standing, Moving, MovingView, Sizing),
                                          testing::ValuesIn(kEvents)),
                         [](const auto& parameter) {
                           return testing::PrintToString(std::get<0>(parameter.param)) +
                                  std::get<1>(parameter.param).name;
                         });

TEST_P(RegionPhases, LeadsToThePhaseOfTheTable) {
  bring(before());
  ASSERT_EQ(regions.phase(), before());
  happen();
  EXPECT_EQ(regions.phase(), event().after[static_cast<int>(before())]);
}

TEST_P(RegionPhases, TheFactsThatOtherRoomsReadFollowThePhase) {
  bring(before());
  happen();
  const bool stands = regions.phase() != None && regions.phase() != Drawing;
  EXPECT_EQ(regions.exists(), stands);
  EXPECT_EQ(state.mRegionExists, stands);
  EXPECT_EQ(state.mPendingPaint, regions.isFloating());
  EXPECT_TRUE(stands || !regions.isFloating()) << "only a region can float";
  EXPECT_TRUE(regions.isFloating() || !regions.isPasteOpaque()) << "only floating content is opaque";
  EXPECT_TRUE(regions.phase() == Sizing || regions.pulledEdge() == RegionEdge::None);
}

TEST_P(RegionPhases, IconMaskRegionAndHistoryAgreeOnceTheMouseIsUp) {
  bring(before());
  happen();
  release(cells(5), cells(5));
  EXPECT_FALSE(regions.isDragged());
  expectAgreement();
}

TEST_P(RegionPhases, NoEventAfterAnotherLeavesTheRegionTorn) {
  for (const Event& next : kEvents) {
    SCOPED_TRACE(next.name);
    state.mCurContainer = 0;
    options.setRoom(400, 400);
    bring(before());
    happen();
    (this->*next.run)();
    release(cells(5), cells(5));
    expectAgreement();
    tools.clearAllTools();
    regions.clearRegion();
  }
}

class RegionPhaseOutcomes : public PhaseFixture {};

TEST_F(RegionPhaseOutcomes, ATakenToolDropsABoxThatIsBeingDrawn) {
  bring(Drawing);
  tools.clearAllTools();
  EXPECT_EQ(regions.phase(), None);
  EXPECT_EQ(label(), "");
  EXPECT_TRUE(regions.isEmpty());
  for (int x = 0; x < state.picDisp.width(); ++x) {
    const Color shown = state.picDisp.GetPixel(x, cells(4));
    state.picDisp.clearDrawing();
    ASSERT_EQ(shown, state.picDisp.GetPixel(x, cells(4))) << x;
  }
}

TEST_F(RegionPhaseOutcomes, ADragEndsAtItsPixelWhenTheMagnificationChanges) {
  for (const RegionPhase phase : {Moving, MovingView}) {
    bring(phase);
    options.setRoom(600, 600);
    EXPECT_EQ(state.gMagnification, 15);
    EXPECT_EQ(icon(), (Rows{"", "..aaaaaa", "..abbbba", "..ab.cba", "..abccba", "..abbbba", "..aaaaaa"})) << phase;
    options.setRoom(400, 400);
  }
}

TEST_F(RegionPhaseOutcomes, ADragEndsAtItsPixelWhenTheEditingAreaIsRebuiltAtAnotherMagnification) {
  bring(MovingView);
  state.gMagnification = 15;
  area.BuildGrid();
  area.MagnifyIcon();
  EXPECT_EQ(regions.phase(), Standing);
  EXPECT_EQ(boxInPixels(), (Rows{"2,1", "7,6"}));
  EXPECT_EQ(draw.region.x1, 2 * 15);
  EXPECT_EQ(icon(), (Rows{"", "..aaaaaa", "..abbbba", "..ab.cba", "..abccba", "..abbbba", "..aaaaaa"}));
  expectAgreement();
}

TEST_F(RegionPhaseOutcomes, AClearedRegionDropsADragThatTheIconDoesNotHaveYet) {
  bring(MovingView);
  const Rows before = {"aaaaaa", "abbbba", "ab.cba", "abccba", "abbbba", "aaaaaa"};
  EXPECT_EQ(icon(), before);
  regions.clearRegion();
  EXPECT_EQ(icon(), before);
}

TEST_F(RegionPhaseOutcomes, NoReadOutOfAColourWhileTheMouseIsDown) {
  state.screen.pixelRgbVisible = true;
  for (const RegionPhase phase : {Drawing, Moving, MovingView, Sizing}) {
    bring(phase);
    EXPECT_EQ(readout(Readout::PixelRgb), "") << phase;
    release(cells(5), cells(5));
    move(cells(1), cells(1));
    EXPECT_NE(readout(Readout::PixelRgb), "") << phase;
    regions.clearRegion();
  }
}

TEST_F(RegionPhaseOutcomes, ARefreshOfTheStatusBarEndsAFloatingRegionWhereItIs) {
  bring(None);
  commands.doPaste(true);
  const Rows pasted = icon();
  area.RefreshStatusBar();
  EXPECT_EQ(regions.phase(), None);
  EXPECT_FALSE(state.mPendingPaint);
  EXPECT_EQ(icon(), pasted);
}

}  // namespace
}  // namespace gp
