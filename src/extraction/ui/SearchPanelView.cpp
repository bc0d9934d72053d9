#include "extraction/ui/SearchPanelView.h"

#include "extraction/ui/FoundFiles.h"
#include "platform/qt/PathText.h"
#include "platform/qt/Pictures.h"
#include "platform/qt/widgets/PictureButton.h"
#include "platform/qt/widgets/TextCell.h"
#include "platform/qt/widgets/WrappedCheckBox.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpressionValidator>
#include <QSignalBlocker>

namespace gp {
namespace {

constexpr int kGap = 4;
constexpr int kButtonSide = 28;
constexpr int kDigits = 9;

struct FolderLook {
  const char* caption;
  const char* name;
  const char* tooltip;
};
constexpr std::array<FolderLook, SearchPanel::kFolders> kFolderLooks{
    {{"&Search in:", "Search in", "Browse folder to search in"}, {"Sa&ve to:", "Save to", "Browse folder to save to"}}};
constexpr std::array<const char*, SearchPanel::kTicks> kTickCaptions{"Incl S&ubdir", "Sma&ll icons",
                                                                     "Add ser&ial prefix to file name"};

QHBoxLayout* rowIn(QWidget* place) {
  auto* row = new QHBoxLayout(place);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(kGap);
  return row;
}

// Keeps the caret while a text is being typed.
void showText(QLineEdit* line, const QString& text) {
  if (line->text() != text) line->setText(text);
}

}  // namespace

SearchPanelView::SearchPanelView(QWidget* parent, SearchPanel& panel, Guarded guarded)
    : PanelFrame(parent, SearchPanel::kNumber), panel_(panel), guarded_(std::move(guarded)) {
  for (int i = 0; i < SearchPanel::kFolders; ++i) addFolder(i);
  addWide(makeTicks());
  addWide(makeTick(rows(), SearchPanel::kTicks - 1));
  addWide(makeMaximum());
  addWide(lblProgress_ = new TextCell(rows(), "lblSearchExeDir(2)", "Progress"));
  addWide(lblForExtendedFrame_ = new TextCell(rows(), "lblForExtendedFrame", "Current file"));
  lblForExtendedFrame_->setElideMode(Qt::ElideMiddle);
  addTall(lsbFoundFiles_ = new FoundFiles(rows(), panel_.foundFiles()));
  addButtons();
  setFirstControl(txbSearchExeDir_.front());
  refresh();
}

void SearchPanelView::addFolder(int i) {
  const auto index = static_cast<std::size_t>(i);
  const FolderLook& look = kFolderLooks.at(index);
  auto* place = new QWidget(rows());
  QHBoxLayout* row = rowIn(place);
  auto* text = txbSearchExeDir_.at(index) = new QLineEdit(place);
  text->setObjectName(QString("txbSearchExeDir(%1)").arg(i));
  text->setAccessibleName(look.name);
  connect(text, &QLineEdit::textEdited, this, [this, i](const QString& typed) {
    guarded_("txbSearchExeDir_Change", [&] { panel_.setFolder(i, textToPath(typed)); });
  });
  auto* button = cmdInvokeSearchPath_.at(index) =
      new PictureButton(place, QString("cmdInvokeSearchPath(%1)").arg(i), {"open-folder", look.tooltip, kButtonSide});
  button->setFocusPolicy(Qt::StrongFocus);
  connect(button, &PictureButton::clicked, this, [this, i] {
    guarded_("cmdInvokeSearchPath_Click", [&] { panel_.cmdInvokeSearchPath(i); });
    refresh();
  });
  row->addWidget(text, 1);
  row->addWidget(button);
  addRow(QString("lblSearchExeDir(%1)").arg(i), look.caption)->setBuddy(text);
  addWide(place);
}

// The short ones share a row.
QWidget* SearchPanelView::makeTicks() {
  auto* place = new QWidget(rows());
  QHBoxLayout* row = rowIn(place);
  for (int i = 0; i < SearchPanel::kTicks - 1; ++i) row->addWidget(makeTick(place, i), 1);
  return place;
}

QCheckBox* SearchPanelView::makeTick(QWidget* parent, int i) {
  const auto index = static_cast<std::size_t>(i);
  auto* box = ckbExtractEXE_.at(index) = new WrappedCheckBox(kTickCaptions.at(index), parent);
  box->setObjectName(QString("ckbExtractEXE(%1)").arg(i));
  connect(box, &QCheckBox::toggled, this, [this, i](bool isOn) {
    guarded_("ckbExtractEXE_Click", [&] { panel_.setTick(i, isOn); });
    refresh();
  });
  return box;
}

// The Stop button keeps its place while it is hidden, so that nothing moves when a search starts.
QWidget* SearchPanelView::makeMaximum() {
  auto* place = new QWidget(rows());
  QHBoxLayout* row = rowIn(place);
  auto* label = new QLabel("Max", place);
  label->setObjectName("lblMaxIcons");
  txbMaxIcons_ = new QLineEdit(place);
  txbMaxIcons_->setObjectName("txbMaxIcons");
  txbMaxIcons_->setAccessibleName("Max");
  txbMaxIcons_->setToolTip("The largest number of icons to save");
  txbMaxIcons_->setValidator(
      new QRegularExpressionValidator(QRegularExpression(QString("[0-9]{0,%1}").arg(kDigits)), txbMaxIcons_));
  txbMaxIcons_->setMaximumWidth((kDigits + 2) * fontMetrics().horizontalAdvance('0'));
  label->setBuddy(txbMaxIcons_);
  connect(txbMaxIcons_, &QLineEdit::textEdited, this, [this](const QString& typed) {
    guarded_("txbMaxIcons_Change", [&] { panel_.setMaximum(typed.toStdString()); });
  });
  // Shows the last valid number in the place of an empty text or zero.
  connect(txbMaxIcons_, &QLineEdit::editingFinished, this,
          [this] { showText(txbMaxIcons_, QString::number(panel_.maximum())); });
  cmdStopBrowse_ = new QPushButton(Pictures::icon("stop"), "Stop", place);
  cmdStopBrowse_->setObjectName("cmdStopBrowse");
  cmdStopBrowse_->setToolTip("Stop the search");
  cmdStopBrowse_->setAutoDefault(false);
  QSizePolicy policy = cmdStopBrowse_->sizePolicy();
  policy.setRetainSizeWhenHidden(true);
  cmdStopBrowse_->setSizePolicy(policy);
  connect(cmdStopBrowse_, &QPushButton::clicked, this, &SearchPanelView::stop);
  row->addWidget(label);
  row->addWidget(txbMaxIcons_);
  row->addStretch(1);
  row->addWidget(cmdStopBrowse_);
  return place;
}

void SearchPanelView::stop() {
  guarded_("cmdStopBrowse_Click", [this] { panel_.cmdStopBrowse(); });
  refresh();
}

void SearchPanelView::refresh() {
  refreshFolders();
  for (int i = 0; i < SearchPanel::kTicks; ++i) {
    QCheckBox* box = ckbExtractEXE_.at(static_cast<std::size_t>(i));
    const QSignalBlocker quiet(box);
    box->setChecked(panel_.tick(i));
  }
  if (!txbMaxIcons_->hasFocus()) showText(txbMaxIcons_, QString::number(panel_.maximum()));
  txbMaxIcons_->setReadOnly(panel_.isRunning());
  lblProgress_->setText(toText(panel_.progressText()));
  lblForExtendedFrame_->setText(toText(panel_.currentFile()).trimmed());
  lsbFoundFiles_->refresh();
  refreshButtons();
}

void SearchPanelView::refreshFolders() {
  for (int i = 0; i < SearchPanel::kFolders; ++i) {
    const auto index = static_cast<std::size_t>(i);
    showText(txbSearchExeDir_.at(index), pathToText(panel_.folder(i)));
    txbSearchExeDir_.at(index)->setReadOnly(panel_.isRunning());
    cmdInvokeSearchPath_.at(index)->setEnabled(!panel_.isRunning());
  }
}

// The focus moves between Proceed and Stop, of which only one can be pressed.
void SearchPanelView::refreshButtons() {
  auto* cmdProceed = qobject_cast<QPushButton*>(proceedButton());
  const bool isRunning = panel_.isRunning();
  QPushButton* pressable = isRunning ? cmdStopBrowse_ : cmdProceed;
  QPushButton* other = isRunning ? cmdProceed : cmdStopBrowse_;
  pressable->setEnabled(true);
  pressable->setVisible(true);
  pressable->setDefault(true);
  if (other->hasFocus()) pressable->setFocus(Qt::TabFocusReason);
  other->setDefault(false);
  cmdProceed->setEnabled(!isRunning);
  cmdStopBrowse_->setVisible(isRunning);
}

// While a search runs, Esc stops it and does not close the panel yet; Enter stops it too, except on Close.
void SearchPanelView::keyPressEvent(QKeyEvent* event) {
  const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (panel_.isRunning() && (event->key() == Qt::Key_Escape || (isEnter && !closeButton()->hasFocus())))
    stop();
  else
    PanelFrame::keyPressEvent(event);
}

}  // namespace gp
