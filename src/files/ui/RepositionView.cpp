#include "files/ui/RepositionView.h"

#include "files/ui/BrowserLists.h"
#include "files/ui/EntryView.h"
#include "platform/qt/Accessibility.h"
#include "platform/qt/PathText.h"
#include "platform/qt/widgets/TextCell.h"

#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>

namespace gp {
namespace {

constexpr const char* kHeader = "Reposition sequence of icons in file:";
constexpr const char* kKeysHint = "Alt+Up and Alt+Down move the selected icon.";
constexpr const char* kHint = "(Click to select an icon, then use shift up or down key to reposition it)";

}  // namespace

RepositionView::RepositionView(QWidget* parent, MultiIconBrowser& browser)
    : QWidget(parent),
      browser_(browser),
      lisReposition_(new TabbedList(this, QStringLiteral("lisReposition"),
                                    QStringLiteral("Icons in their new sequence"), kBrowserTabStops)),
      preview_(new EntryView(this, {QStringLiteral("lblReposition"), QStringLiteral("picReposition")},
                             browser.picReposition(), kLargestIcon)) {
  setObjectName(QStringLiteral("picContainer(2)"));
  makeGroup(this, "Sequence of icons");
  connect(lisReposition_, &TabbedList::itemChosen, this, [this](int item) { browser_.clickRepositionIcon(item); });

  auto* rows = new QVBoxLayout(this);
  rows->setContentsMargins(0, 0, 0, 0);
  auto* header = new QLabel(QLatin1String(kHeader), this);
  header->setBuddy(lisReposition_);
  auto* hint = new QLabel(QLatin1String(kHint), this);
  hint->setWordWrap(true);
  auto* file = new TextCell(this, QStringLiteral("lblRepositionFile"), QStringLiteral("File"));
  file->setElideMode(Qt::ElideMiddle);
  file->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
  file->setText(toText(browser_.fileText()));
  file->setToolTip(pathToText(browser_.file()).toHtmlEscaped());
  rows->addWidget(header);
  rows->addWidget(file);
  rows->addWidget(hint);
  rows->addWidget(new QLabel(QLatin1String(kKeysHint), this));
  auto* columns = new QHBoxLayout;
  columns->setSpacing(kColumnGap);
  columns->addWidget(lisReposition_, 1);
  columns->addLayout(makeButtonColumn());
  rows->addLayout(columns, 1);
  setFocusProxy(lisReposition_);
  addKey(Qt::ALT | Qt::Key_Up, cmdShift_[0]);
  addKey(Qt::ALT | Qt::Key_Down, cmdShift_[1]);
}

void RepositionView::addKey(QKeyCombination key, QPushButton* button) {
  auto* shortcut = new QShortcut(key, this);
  shortcut->setContext(Qt::WidgetWithChildrenShortcut);
  connect(shortcut, &QShortcut::activated, button, [button] { button->click(); });
}

QPushButton* RepositionView::makeButton(const char* name, const char* caption, const char* toolTip,
                                        void (MultiIconBrowser::*press)()) {
  auto* button = new QPushButton(QLatin1String(caption), this);
  button->setObjectName(QLatin1String(name));
  button->setToolTip(QLatin1String(toolTip));
  connect(button, &QPushButton::clicked, this, [this, press] { (browser_.*press)(); });
  return button;
}

QBoxLayout* RepositionView::makeButtonColumn() {
  cmdShift_ = {makeButton("cmdShift(0)", "&Up", "Shift position up", &MultiIconBrowser::cmdShiftUp),
               makeButton("cmdShift(1)", "&Down", "Shift position down", &MultiIconBrowser::cmdShiftDown)};
  auto* column = new QVBoxLayout;
  column->setSpacing(kGap);
  column->addWidget(preview_, 0, Qt::AlignHCenter);
  column->addSpacing(kColumnGap);
  for (QPushButton* button : cmdShift_) column->addWidget(button);
  column->addStretch(1);
  column->addWidget(makeButton("cmdRepositionProceed", "&Proceed", "Proceed to save repositioned sequence",
                               &MultiIconBrowser::cmdRepositionProceed));
  column->addWidget(
      makeButton("cmdRepositionAbort", "&Abort", "Cancel and exit", &MultiIconBrowser::cmdRepositionAbort));
  return column;
}

void RepositionView::refresh() {
  const RepositionPane& pane = browser_.reposition();
  showItems(*lisReposition_, pane.lisReposition());
  lisReposition_->setSelected(pane.selected());
  preview_->refresh();
  enableShift(*cmdShift_[0], pane.canShiftUp());
  enableShift(*cmdShift_[1], pane.canShiftDown());
}

// At an end of the list the focus goes to the list, so that a further key press does not move the item back.
void RepositionView::enableShift(QPushButton& button, bool enabled) {
  if (!enabled && button.hasFocus()) lisReposition_->setFocus();
  button.setEnabled(enabled);
}

}  // namespace gp
