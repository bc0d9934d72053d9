#include "animation/ui/AniLists.h"

#include "animation/ui/AniButtons.h"
#include "animation/ui/AniEvents.h"
#include "animation/ui/AniGroup.h"
#include "document/ui/Lists.h"
#include "platform/qt/Accessibility.h"

#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QSignalBlocker>

namespace gp {
namespace {

constexpr int kFirstJiffies = 1;  // of the list
constexpr int kSetInterval = 7;
constexpr const char* kSinglyTooltip = "Leave unchecked if same jiffies apply to all frames";

}  // namespace

AniLists::AniLists(QWidget* parent, const AniEvents& events, AniButtons& buttons)
    : events_(events),
      fraJiffy_(new AniGroup(parent, QStringLiteral("fraJiffy"), QStringLiteral("Jiffy"))),
      fraHotspot_(new AniGroup(parent, QStringLiteral("fraHotspot"), QStringLiteral("Hotspot"))) {
  makeJiffy(buttons);
  makeHotspot();
}

QComboBox* AniLists::makeNumbers(QWidget* parent, int index, const char* name) {
  QComboBox* list = makeUnlabelledList(parent, QStringLiteral("cboANI(%1)").arg(index), QLatin1String(name));
  QObject::connect(list, &QComboBox::currentIndexChanged, list, [this] { choose(); });
  return cboANI_.at(static_cast<std::size_t>(index)) = list;
}

void AniLists::makeJiffy(AniButtons& buttons) {
  QHBoxLayout* row = fraJiffy_->addRow();
  row->addWidget(makeNumbers(fraJiffy_, 0, "Jiffies"), 1);
  ckbJIFSinglely_ = new QCheckBox(QStringLiteral("Set si&ngly"), fraJiffy_);
  ckbJIFSinglely_->setObjectName(QStringLiteral("ckbJIFSinglely"));
  ckbJIFSinglely_->setToolTip(QLatin1String(kSinglyTooltip));
  QObject::connect(ckbJIFSinglely_, &QCheckBox::toggled, ckbJIFSinglely_, [this] { choose(); });
  fraJiffy_->addRow()->addWidget(ckbJIFSinglely_);
  row->addWidget(buttons.makePicture(fraJiffy_, kSetInterval));
}

void AniLists::makeHotspot() {
  QHBoxLayout* row = fraHotspot_->addRow();
  for (const auto& [index, caption, name] : {std::tuple(1, "X:", "Hot spot X"), std::tuple(2, "Y:", "Hot spot Y")}) {
    auto* label = new QLabel(QLatin1String(caption), fraHotspot_);
    label->setObjectName(QStringLiteral("lblANIHotspot(%1)").arg(index));
    hideFromAccessibility(label);
    row->addWidget(label);
    row->addWidget(makeNumbers(fraHotspot_, index, name), 1);
  }
}

void AniLists::choose() {
  events_.guarded("cboANI_Click", [this] {
    events_.session.setChoices({.jiffies = cboANI_[0]->currentIndex() + kFirstJiffies,
                                .hotspotX = cboANI_[1]->currentIndex(),
                                .hotspotY = cboANI_[2]->currentIndex(),
                                .singly = ckbJIFSinglely_->isChecked()});
  });
}

void AniLists::refresh() {
  const AniChoices& choices = events_.session.choices();
  const std::array<int, 3> entries{choices.jiffies - kFirstJiffies, choices.hotspotX, choices.hotspotY};
  for (std::size_t i = 0; i < entries.size(); ++i) {
    const QSignalBlocker quiet(cboANI_[i]);
    cboANI_[i]->setCurrentIndex(entries[i]);
  }
  const QSignalBlocker quiet(ckbJIFSinglely_);
  ckbJIFSinglely_->setChecked(choices.singly);
}

}  // namespace gp
