// The groups "Jiffy" and "Hotspot": the lists cboANI(0 .. 2), the tick box and the button that sets the time.
#pragma once

#include <array>

class QCheckBox;
class QComboBox;
class QWidget;

namespace gp {

struct AniEvents;
class AniButtons;
class AniGroup;

class AniLists {
 public:
  // The events must outlive the lists; the groups are children of `parent`.
  AniLists(QWidget* parent, const AniEvents& events, AniButtons& buttons);

  AniGroup* jiffyGroup() const { return fraJiffy_; }
  AniGroup* hotspotGroup() const { return fraHotspot_; }
  void refresh();

 private:
  void makeJiffy(AniButtons& buttons);
  void makeHotspot();
  QComboBox* makeNumbers(QWidget* parent, int index, const char* name);
  void choose();

  const AniEvents& events_;
  AniGroup* fraJiffy_;
  AniGroup* fraHotspot_;
  std::array<QComboBox*, 3> cboANI_{};
  QCheckBox* ckbJIFSinglely_ = nullptr;
};

}  // namespace gp
