#include "files/ui/BrowserFaceView.h"

#include "document/IconContainerRec.h"
#include "files/browser/MultiIconExchange.h"
#include "files/ui/BrowserLists.h"
#include "files/ui/EntryView.h"
#include "platform/qt/Accessibility.h"
#include "platform/qt/PathText.h"
#include "platform/qt/widgets/PictureButton.h"
#include "platform/qt/widgets/TabbedList.h"
#include "platform/qt/widgets/TextCell.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include <array>
#include <span>

namespace gp {
namespace {

constexpr int kPictureButtonSide = 24;  // pixels

template <class Control>
Control* named(Control* control, const QString& name) {
  control->setObjectName(name);
  return control;
}

// The names and texts that differ between the two faces. Labels: caption, path, selector, footnote.
struct FaceTexts {
  const char* labels;
  std::array<int, 4> labelIndices;
  const char* selector;
  const char* selectorName;
  const char* selectorCaption;
};
constexpr FaceTexts kFaceTexts[] = {
    {"lblFileToEdit", {1, 0, 3, 2}, "cboContainerRef", "Load to container ref", "Load to &container ref:"},
    {"lblExistingFile", {0, 1, 2, 3}, "cboAddToPosition", "Add to position ref", "Add to pos&ition ref:"},
};
enum LabelRole { kCaptionLabel, kPathLabel, kSelectorLabel, kFootnoteLabel };

const FaceTexts& textsOf(BrowserFace face) { return kFaceTexts[static_cast<std::size_t>(face)]; }
QString labelName(BrowserFace face, LabelRole role) {
  const FaceTexts& texts = textsOf(face);
  return QStringLiteral("%1(%2)").arg(QLatin1String(texts.labels)).arg(texts.labelIndices.at(role));
}

constexpr const char* kSaveSingleTip = "Save selected to a single-icon file";
constexpr const char* kSplitSaveTip = "Split save all to single-icon files";
constexpr const char* kRemoveTip = "Remove highlighted icon";
constexpr const char* kRepositionTip = "Reposition sequence of icons";

}  // namespace

struct BrowserFaceView::Button {
  const char* name;
  const char* caption;
  const char* toolTip;
  void (*press)(MultiIconBrowser& browser);
  bool (MultiIconBrowser::*enabled)() const;  // null for always
  bool isDefault;
};

BrowserFaceView::BrowserFaceView(QWidget* parent, MultiIconBrowser& browser, const MultiIconExchange& exchange)
    : QWidget(parent), browser_(browser), face_(browser.face()) {
  setObjectName(indexed("picContainer"));
  makeGroup(this, "Icon file");
  makeControls();
  auto* rows = new QVBoxLayout(this);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->addLayout(makeHeading(exchange));
  auto* columns = new QHBoxLayout;
  columns->setSpacing(kColumnGap);
  columns->addLayout(makeListColumn(), 1);
  columns->addLayout(makeButtonColumn());
  rows->addLayout(columns, 1);
  connectSelector();
  setFocusProxy(lisIcons_);
}

QString BrowserFaceView::indexed(const char* control) const {
  return QStringLiteral("%1(%2)").arg(QLatin1String(control)).arg(static_cast<int>(face_));
}

QLabel* BrowserFaceView::makeLabel(const QString& name, const char* caption, QWidget* buddy) {
  auto* label = named(new QLabel(QLatin1String(caption), this), name);
  label->setBuddy(buddy);
  return label;
}

void BrowserFaceView::makeControls() {
  const FaceTexts& texts = textsOf(face_);
  path_ = new TextCell(this, labelName(face_, kPathLabel), QStringLiteral("File"));
  path_->setElideMode(Qt::ElideMiddle);
  path_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);

  lisIcons_ = new TabbedList(this, indexed("lisIcons"), QStringLiteral("Icons in file"), kBrowserTabStops);
  connect(lisIcons_, &TabbedList::itemChosen, this, [this](int item) { browser_.clickIcon(item); });
  if (face_ == BrowserFace::Edit)
    connect(lisIcons_, &QListWidget::doubleClicked, this, [this](const QModelIndex& item) {
      if (item.row() == browser_.selectedIcon()) browser_.cmdEdit();
    });

  preview_ =
      new EntryView(this, {indexed("lblIconInFile"), indexed("picIconInFile")}, browser_.picIconInFile(), kLargestIcon);
  selector_ = named(new QComboBox(this), QLatin1String(texts.selector));
  selector_->setSizeAdjustPolicy(QComboBox::AdjustToContents);
  selector_->setAccessibleName(QLatin1String(texts.selectorName));
  fillSelector();  // an empty combo box would keep its larger minimum width
  footnote_ = makeLabel(labelName(face_, kFootnoteLabel), "");

  imgShowOtherSizes_ = makeOtherSizes("imgShowOtherSizes", "extend", "Show icons of other sizes");
  imgHideOtherSizes_ = makeOtherSizes("imgHideOtherSizes", "shrink", "Hide icons of other sizes");
  connect(imgShowOtherSizes_, &QToolButton::clicked, this, [this] { showOtherSizes(true); });
  connect(imgHideOtherSizes_, &QToolButton::clicked, this, [this] { showOtherSizes(false); });
}

PictureButton* BrowserFaceView::makeOtherSizes(const char* name, const char* picture, const char* toolTip) {
  auto* button = new PictureButton(this, indexed(name), {picture, QLatin1String(toolTip), kPictureButtonSide});
  button->setText(QStringLiteral("Other sizes"));
  button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  button->setFixedSize(button->sizeHint());
  return button;
}

// The file, and on the add face the icon to add.
QGridLayout* BrowserFaceView::makeHeading(const MultiIconExchange& exchange) {
  auto* grid = new QGridLayout;
  grid->setHorizontalSpacing(kGap);
  grid->setColumnStretch(1, 1);
  grid->addWidget(makeLabel(labelName(face_, kCaptionLabel), face_ == BrowserFace::Edit ? "File:" : "Existing file:"),
                  0, 0);
  grid->addWidget(path_, 0, 1);
  if (face_ == BrowserFace::Edit) return grid;
  grid->addWidget(makeLabel(QStringLiteral("lblCurrIcon(0)"), "Current icon:"), 1, 0);
  auto* icon = new QHBoxLayout;
  icon->setSpacing(kColumnGap);
  icon->addSpacing(TextCell::kMargin);
  icon->addWidget(new EntryView(this, {QStringLiteral("fraCurrIcon"), QStringLiteral("PicCurrIcon")},
                                exchange.PicCurrIcon, kLargestIcon));
  icon->addWidget(named(new QLabel(toText(exchange.lblCurrIcon), this), QStringLiteral("lblCurrIcon(1)")), 1);
  grid->addLayout(icon, 1, 1);
  return grid;
}

QBoxLayout* BrowserFaceView::makeListColumn() {
  auto* column = new QVBoxLayout;
  column->setSpacing(kGap);
  column->addWidget(makeLabel(indexed("lblIcons"), "Ico&ns in file:", lisIcons_));
  column->addWidget(lisIcons_, 1);
  column->addWidget(footnote_);
  column->addLayout(makeSelectorRow());
  return column;
}

QBoxLayout* BrowserFaceView::makeSelectorRow() {
  auto* row = new QHBoxLayout;
  row->setSpacing(kGap);
  selectorLabel_ = makeLabel(labelName(face_, kSelectorLabel), textsOf(face_).selectorCaption, selector_);
  row->addWidget(selectorLabel_);
  row->addWidget(selector_);
  row->addStretch(1);
  row->addWidget(imgShowOtherSizes_);
  row->addWidget(imgHideOtherSizes_);
  return row;
}

QBoxLayout* BrowserFaceView::makeButtonColumn() {
  auto* column = new QVBoxLayout;
  column->setSpacing(kGap);
  column->addWidget(makeLabel(QStringLiteral("lblPreview"), "Preview:"), 0, Qt::AlignHCenter);
  column->addWidget(preview_, 0, Qt::AlignHCenter);
  column->addSpacing(kColumnGap);
  makeButtons();
  for (const auto& [button, row] : buttons_) column->addWidget(button);
  column->insertStretch(column->count() - 1, 1);  // a gap before the button that closes
  return column;
}

void BrowserFaceView::makeButtons() {
  using Browser = MultiIconBrowser;
  static constexpr Button kEditButtons[] = {
      {"cmdLoad", "&Load", "Load highlighted icon (and come back)", [](Browser& b) { b.cmdLoad(); }, &Browser::canLoad,
       false},
      {"cmdEdit", "Load && &Exit", "Load highlighted icon and exit", [](Browser& b) { b.cmdEdit(); }, &Browser::canLoad,
       true},
      {"cmdSaveSingle(0)", "&Save Single", kSaveSingleTip, [](Browser& b) { b.cmdSaveSingle(); },
       &Browser::hasSeveralIcons, false},
      {"cmdSplitSave(0)", "S&plit Save", kSplitSaveTip, [](Browser& b) { b.cmdSplitSave(); }, &Browser::hasSeveralIcons,
       false},
      {"cmdRemove(0)", "&Remove", kRemoveTip, [](Browser& b) { b.cmdRemove(); }, &Browser::hasSeveralIcons, false},
      {"cmdReposition(0)", "Rep&osition", kRepositionTip, [](Browser& b) { b.cmdReposition(); },
       &Browser::hasSeveralIcons, false},
      {"cmdClose(0)", "E&xit", "Exit without loading", [](Browser& b) { b.cmdClose(); }, nullptr, false},
  };
  static constexpr Button kAddButtons[] = {
      {"cmdSaveAdd(0)", "&Save", "Add to listed file spec", [](Browser& b) { b.cmdSaveAdd(kSaveButton); },
       &Browser::canAdd, true},
      {"cmdSaveAdd(1)", "Save &As", "Save to a different file spec", [](Browser& b) { b.cmdSaveAdd(kSaveAsButton); },
       &Browser::canAdd, false},
      {"cmdSaveSingle(1)", "Save Sin&gle", kSaveSingleTip, [](Browser& b) { b.cmdSaveSingle(); },
       &Browser::hasSeveralIcons, false},
      {"cmdSplitSave(1)", "S&plit Save", kSplitSaveTip, [](Browser& b) { b.cmdSplitSave(); }, &Browser::hasSeveralIcons,
       false},
      {"cmdRemove(1)", "&Remove", kRemoveTip, [](Browser& b) { b.cmdRemove(); }, &Browser::hasSeveralIcons, false},
      {"cmdReposition(1)", "Rep&osition", kRepositionTip, [](Browser& b) { b.cmdReposition(); },
       &Browser::hasSeveralIcons, false},
      {"cmdClose(1)", "&Close", "Close without adding", [](Browser& b) { b.cmdClose(); }, nullptr, false},
  };
  const std::span<const Button> rows = face_ == BrowserFace::Edit ? std::span<const Button>(kEditButtons) : kAddButtons;
  for (const Button& row : rows) {
    auto* button = named(new QPushButton(QLatin1String(row.caption), this), QLatin1String(row.name));
    button->setToolTip(QLatin1String(row.toolTip));
    button->setDefault(row.isDefault);
    connect(button, &QPushButton::clicked, this, [this, press = row.press] { press(browser_); });
    buttons_.emplace_back(button, &row);
  }
}

void BrowserFaceView::connectSelector() {
  if (face_ == BrowserFace::Edit)
    connect(selector_, &QComboBox::activated, this, [this](int item) { browser_.setContainer(item); });
  else
    connect(selector_, &QComboBox::activated, this, [this](int item) { browser_.setAddPosition(item); });
}

// One of the two pictures replaces the other, and takes its focus.
void BrowserFaceView::showOtherSizes(bool shown) {
  PictureButton* pressed = shown ? imgShowOtherSizes_ : imgHideOtherSizes_;
  const bool hadFocus = pressed->hasFocus();
  browser_.setOtherSizesShown(shown);
  if (hadFocus) (shown ? imgHideOtherSizes_ : imgShowOtherSizes_)->setFocus();
}

void BrowserFaceView::refresh() {
  path_->setText(toText(browser_.fileText()));
  // In rich text, parts of a name that look like tags would disappear.
  path_->setToolTip(pathToText(browser_.file()).toHtmlEscaped());
  refreshList();
  lisIcons_->setSelected(browser_.selectedIcon());
  preview_->refresh();
  footnote_->setText(QLatin1String(browser_.remark()));
  footnote_->setVisible(!footnote_->text().isEmpty());
  imgShowOtherSizes_->setVisible(!browser_.otherSizesShown());
  imgHideOtherSizes_->setVisible(browser_.otherSizesShown());
  refreshSelector();
  for (const auto& [button, row] : buttons_) button->setEnabled(!row->enabled || (browser_.*row->enabled)());
}

// A list that has lost an icon takes the focus from the button that removed it, which may be disabled now.
void BrowserFaceView::refreshList() {
  const bool hasOtherCount = static_cast<std::size_t>(lisIcons_->count()) != browser_.lisIcons().size();
  showItems(*lisIcons_, browser_.lisIcons());
  if (hasOtherCount && isVisible()) lisIcons_->setFocus();
}

void BrowserFaceView::fillSelector() {
  const int count = face_ == BrowserFace::Edit ? kContainerCount : browser_.addPositionCount();
  if (selector_->count() != count) selector_->clear();
  for (int i = selector_->count(); i < count; ++i) selector_->addItem(QString::number(i + 1));
}

void BrowserFaceView::refreshSelector() {
  const bool isEdit = face_ == BrowserFace::Edit;
  const QSignalBlocker quiet(selector_);
  fillSelector();
  selector_->setCurrentIndex(isEdit ? browser_.containerItem() : browser_.addPosition());
  const bool hasSelector = !isEdit || browser_.containerItem() >= 0;
  selectorLabel_->setVisible(hasSelector);
  selector_->setVisible(hasSelector);
}

}  // namespace gp
