#include "shell/ui/AniPaneEvents.h"

#include "animation/ui/AniPane.h"
#include "document/ui/QtDisplay.h"
#include "shell/Shell.h"

namespace gp {

AniPane* makeAniPane(QWidget* column, Shell& shell, QtDisplay& display) {
  const auto guarded = [&shell](const char* event, const std::function<void()>& handler) {
    shell.guarded(event, handler);
  };
  const auto announce = [&display](const std::string& text) { display.announce(text); };
  auto* pane = new AniPane(column, shell.screen(), {shell.animation().session, guarded, announce});
  for (const DisplayPart part : {DisplayPart::AniPane, DisplayPart::Panel})
    display.listen(part, pane, [pane] { pane->refresh(); });
  display.listen(DisplayPart::AniTest, pane, [pane] { pane->refreshTest(); });
  return pane;
}

}  // namespace gp
