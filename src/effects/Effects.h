// The face of the room: makes the side panels of the effects, opens each by its command, and gives the rooms to the
// right access to them. It makes no decisions.
#pragma once

#include "effects/EffectFrame.h"
#include "effects/EffectPanel.h"

#include <memory>
#include <vector>

namespace gp {

class Drawing;
class PictureLoader;
class SettingsPanel;
class TextDrawing;
class clsGPDialog;

// What the panels of some effects use of the platform.
struct EffectPorts {
  clsGPDialog& dialog;
  PictureLoader& pictures;
  TextDrawing& text;
};

class Effects {
 public:
  Effects(const Context& context, Document& document, Drawing& drawing, const EffectPorts& ports);

  // Opens the panel of the effect at this index of mnuEffectsSub; does nothing when the program has no effect there.
  void open(int menuIndex);
  // Runs Proceed of the panel of that number; does nothing when that is no panel of an effect.
  void proceed(int number);

  // A panel that has its own class.
  template <class Panel>
  Panel& panel() const {
    return static_cast<Panel&>(*find(Panel::kNumber));
  }
  // The panel of that number; null when there is none.
  EffectPanel* find(int number) const;
  // The same; null when that is no panel of settings.
  SettingsPanel* settingsPanel(int number) const;

 private:
  void addSettingsPanel(int number);

  EffectFrame frame_;
  std::vector<std::unique_ptr<EffectPanel>> panels_;
};

}  // namespace gp
