#include "document/AlphaIndicator.h"

#include "document/Display.h"
#include "document/EditState.h"
#include "platform/ports/MessagePump.h"

namespace gp {
namespace {

constexpr int kFlashes = 2;
constexpr int kFlashMilliseconds = 100;
constexpr const char* kAlphaText = "Alpha";

// Processing events may have changed the Current Icon, so its alpha channel is checked each time.
void showIndicator(EditState& state, Display& display, bool wanted) {
  const bool shown = wanted && state.current().hasAlpha;
  state.screen.imgAlphaOnStatusPanel = shown;
  state.screen.lblStatusPanel[static_cast<std::size_t>(StatusPanel::Alpha)] = shown ? kAlphaText : "";
  display.changed(DisplayPart::StatusBar);
}

}  // namespace

void flashAlphaIndicator(EditState& state, Display& display, MessagePump& pump) {
  for (int flash = 0; flash < kFlashes; ++flash) {
    showIndicator(state, display, true);
    pump.wait(kFlashMilliseconds);
    showIndicator(state, display, false);
    pump.wait(kFlashMilliseconds);
  }
  showIndicator(state, display, true);
}

}  // namespace gp
