#include "document/AlphaIndicator.h"
#include "document/EditState.h"
#include "document/Hourglass.h"
#include "support/FakeEditor.h"
#include "support/ScriptedPorts.h"

#include <gtest/gtest.h>

namespace gp::test {
namespace {

// Records the state of the indicator at every wait.
class WatchingPump : public MessagePump {
 public:
  explicit WatchingPump(const EditState& state) : state_(state) {}
  std::vector<bool> shown;
  std::vector<int> waits;

  void pump() override {}
  void wait(int milliseconds) override {
    shown.push_back(state_.screen.imgAlphaOnStatusPanel && state_.screen.lblStatusPanel[4] == "Alpha");
    waits.push_back(milliseconds);
  }

 private:
  const EditState& state_;
};

TEST(AlphaIndicator, FlashesTwiceAndEndsShown) {
  EditState state;
  state.current().hasAlpha = true;
  RecordingDisplay display;
  WatchingPump pump(state);
  flashAlphaIndicator(state, display, pump);
  EXPECT_EQ(pump.shown, (std::vector<bool>{true, false, true, false}));
  EXPECT_EQ(pump.waits, (std::vector<int>{100, 100, 100, 100}));
  EXPECT_TRUE(state.screen.imgAlphaOnStatusPanel);
  EXPECT_EQ(state.screen.lblStatusPanel[4], "Alpha");
  EXPECT_TRUE(display.hasChanged(DisplayPart::StatusBar));
}

TEST(AlphaIndicator, StaysAwayFromAnIconWithoutAlphaThatCameUpMeanwhile) {
  EditState state;
  state.current().hasAlpha = true;
  RecordingDisplay display;
  ScriptedPump pump;
  pump.inside = [&state] { state.mCurContainer = 1; };
  flashAlphaIndicator(state, display, pump);
  EXPECT_FALSE(state.screen.imgAlphaOnStatusPanel);
  EXPECT_EQ(state.screen.lblStatusPanel[4], "");
}

TEST(Hourglass, LastsAsLongAsTheOutermostGuard) {
  EditState state;
  FakeEditor editor;
  RecordingDisplay display;
  ScriptedBoxes boxes;
  ScriptedPump pump;
  const Context context{state, editor, display, boxes, pump};
  {
    const Hourglass outer(context);
    { const Hourglass inner(context); }
    EXPECT_TRUE(state.screen.hourglass);
  }
  EXPECT_FALSE(state.screen.hourglass);
  EXPECT_TRUE(display.hasChanged(DisplayPart::Pointer));
}

}  // namespace
}  // namespace gp::test
