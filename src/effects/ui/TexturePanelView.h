// fraPanel(17): the pattern with the button that opens another one, the style, the depth, the sample, and the pattern
// in use.
#pragma once

#include "effects/TexturePanel.h"
#include "effects/ui/EffectPanelView.h"

#include <map>

class QComboBox;

namespace gp {

class TexturePanelView final : public EffectPanelView {
  Q_OBJECT

 public:
  TexturePanelView(QWidget* parent, TexturePanel& panel);

 protected:
  void refresh() override;

 private:
  void addList(TextureList list, const char* caption);
  void addOpen();

  TexturePanel& panel_;
  std::map<TextureList, QComboBox*> lists_;
};

}  // namespace gp
