#include "extraction/ui/IconsListView.h"

#include "document/PanelNumbers.h"
#include "document/ui/Lists.h"
#include "extraction/ui/IconsListStrip.h"
#include "extraction/ui/IconsListSurface.h"
#include "extraction/ui/PageButton.h"
#include "platform/qt/PathText.h"
#include "platform/qt/widgets/PictureButton.h"
#include "platform/qt/widgets/TextCell.h"

#include <QApplication>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>

namespace gp {
namespace {

constexpr int kGap = 4;
constexpr int kButtonSide = 28;

struct SaveLook {
  const char* caption;
  const char* tooltip;
};
constexpr std::array<SaveLook, 2> kSaveLooks{{{"Save All As &Icons", "Save all frames as icon files (ico)"},
                                              {"As Bitmap&s", "Save all frames as bitmap files (bmp)"}}};

QHBoxLayout* rowIn(QWidget* place) {
  auto* row = new QHBoxLayout(place);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(kGap);
  return row;
}

}  // namespace

IconsListView::IconsListView(QWidget* parent, const ListEvents& events)
    : PanelFrame(parent, kIconsListPanel), events_(events) {
  addWide(makeSource());
  addWide(lblForExtendedFrame_ = new TextCell(rows(), "lblForExtendedFrame", "Source"));
  lblForExtendedFrame_->setElideMode(Qt::ElideMiddle);
  addWide(makePanels());
  addTall(picIconsListBase_ = new IconsListStrip(rows(), events_));
  addWide(makePages());
  addWide(makeSaves());
  addCloseButton();
  setFirstControl(picIconsListBase_->surface());
  refresh();
}

void IconsListView::forward(const char* event, const std::function<void(IconsList&)>& action) {
  events_.guarded(event, [&] { action(events_.list); });
  refresh();
}

PictureButton* IconsListView::makeButton(QWidget* parent, const char* objectName, const char* picture,
                                         const char* tooltip) {
  auto* button = new PictureButton(parent, objectName, {picture, tooltip, kButtonSide});
  button->setFocusPolicy(Qt::StrongFocus);
  return button;
}

QWidget* IconsListView::makeSource() {
  auto* place = new QWidget(rows());
  QHBoxLayout* row = rowIn(place);
  lblKind_ = new QLabel(place);
  lblKind_->setObjectName("lblExtract(0)");
  lblKind_->setWordWrap(true);
  row->addWidget(lblKind_, 1);
  cmdInvokeFolderOrFileDialog_ =
      makeButton(place, "cmdInvokeFolderOrFileDialog", "open-folder", "Choose another folder or file");
  connect(cmdInvokeFolderOrFileDialog_, &PictureButton::clicked, this, [this] {
    forward("cmdInvokeFolderOrFileDialog_Click", [](IconsList& list) { list.cmdInvokeFolderOrFileDialog(); });
  });
  row->addWidget(cmdInvokeFolderOrFileDialog_);
  return place;
}

QWidget* IconsListView::makePanels() {
  auto* place = new QWidget(rows());
  QHBoxLayout* row = rowIn(place);
  auto* label = new QLabel("Pane&l:", place);
  label->setObjectName("lblPanelNum");
  cboPanelNum_ = makeList(place, FilledList{"cboPanelNum", {}, 0}, "Panel");
  label->setBuddy(cboPanelNum_);
  connect(cboPanelNum_, &QComboBox::activated, this,
          [this](int item) { forward("cboPanelNum_Click", [item](IconsList& list) { list.choosePanel(item); }); });
  cmdNextPanel_ = makeButton(place, "cmdNextPanel", "next-panel", "Next panel");
  connect(cmdNextPanel_, &PictureButton::clicked, this,
          [this] { forward("cmdNextPanel_Click", [](IconsList& list) { list.cmdNextPanel(); }); });
  lblCount_ = new TextCell(place, "lblExtract(1)", "Icons");
  lblCount_->setAlignment(Qt::AlignRight);
  row->addWidget(label);
  row->addWidget(cboPanelNum_);
  row->addWidget(cmdNextPanel_);
  row->addWidget(lblCount_, 1);
  return place;
}

QWidget* IconsListView::makePages() {
  auto* place = new QWidget(rows());
  QHBoxLayout* row = rowIn(place);
  for (int page = 0; page < kListPages; ++page) {
    auto* button = cmdPageRef_.at(static_cast<std::size_t>(page)) = new PageButton(place, page);
    connect(button, &PageButton::clicked, this,
            [this, page] { forward("cmdPageRef_Click", [page](IconsList& list) { list.cmdPageRef(page); }); });
    row->addWidget(button);
  }
  cmdNextPage_ = makeButton(place, "cmdNextPage", "next-page", "Next page");
  connect(cmdNextPage_, &PictureButton::clicked, this,
          [this] { forward("cmdNextPage_Click", [](IconsList& list) { list.cmdNextPage(); }); });
  row->addWidget(cmdNextPage_);
  row->addStretch(1);
  // Printing does not exist yet.
  auto* print = makeButton(place, "cmdPrintIconsList", "print", "Print icons in the list");
  print->setEnabled(false);
  row->addWidget(print);
  return place;
}

QWidget* IconsListView::makeSaves() {
  auto* place = new QWidget(rows());
  QHBoxLayout* row = rowIn(place);
  row->addWidget(makeSave(place, SavedFrames::Icons), 1);
  row->addWidget(makeSave(place, SavedFrames::Bitmaps));
  return place;
}

QPushButton* IconsListView::makeSave(QWidget* parent, SavedFrames kind) {
  const auto index = static_cast<std::size_t>(kind);
  auto* button = cmdSaveAllExtractToFiles_.at(index) = new QPushButton(kSaveLooks.at(index).caption, parent);
  button->setObjectName(QString("cmdSaveAllExtractToFiles(%1)").arg(index));
  button->setToolTip(kSaveLooks.at(index).tooltip);
  button->setAccessibleName(kSaveLooks.at(index).tooltip);
  // Enter presses it, not Close.
  button->setAutoDefault(true);
  connect(button, &QPushButton::clicked, this, [this, kind] {
    forward("cmdSaveAllExtractToFiles_Click", [kind](IconsList& list) { list.cmdSaveAllExtractToFiles(kind); });
  });
  return button;
}

void IconsListView::refresh() {
  holdFocus();
  lblKind_->setText(toText(events_.list.kindLabel()));
  lblForExtendedFrame_->setText(toText(events_.list.sourceLabel()).trimmed());
  lblCount_->setText(toText(events_.list.countLabel()));
  cmdInvokeFolderOrFileDialog_->setEnabled(events_.list.mListSource() != ListSource::None && !events_.list.isDrawing());
  refreshPanels();
  picIconsListBase_->refresh();
  refreshPages();
  refreshSaves();
}

// A disabled control loses the focus, so the icons have it while they are drawn, and the control has it again then.
void IconsListView::holdFocus() {
  QWidget* surface = picIconsListBase_->surface();
  if (events_.list.isDrawing()) {
    QWidget* focused = QApplication::focusWidget();
    if (!focused || focused == surface || !isAncestorOf(focused)) return;
    focusBeforeDrawing_ = focused;
    surface->setFocus(Qt::OtherFocusReason);
  } else if (focusBeforeDrawing_ && surface->hasFocus()) {
    // Enabled below.
    focusBeforeDrawing_->setEnabled(true);
    std::exchange(focusBeforeDrawing_, nullptr)->setFocus(Qt::TabFocusReason);
  }
}

void IconsListView::refreshPanels() {
  const IconsList& list = events_.list;
  const QSignalBlocker quiet(cboPanelNum_);
  if (cboPanelNum_->count() != list.panelCount()) {
    cboPanelNum_->clear();
    for (int i = 1; i <= list.panelCount(); ++i) cboPanelNum_->addItem(QString::number(i));
  }
  if (cboPanelNum_->currentIndex() != list.panelItem()) cboPanelNum_->setCurrentIndex(list.panelItem());
  cboPanelNum_->setEnabled(list.panelCount() > 0 && !list.isDrawing());
  cmdNextPanel_->setEnabled(list.isNextPanelEnabled() && !list.isDrawing());
}

void IconsListView::refreshPages() {
  const IconsList& list = events_.list;
  for (int page = 0; page < kListPages; ++page) {
    PageButton* button = cmdPageRef_.at(static_cast<std::size_t>(page));
    button->setVisible(page < list.pageCount());
    button->setChecked(page == list.currentPage());
    button->setEnabled(!list.isDrawing());
  }
  cmdNextPage_->setVisible(list.isNextPageVisible());
  cmdNextPage_->setEnabled(!list.isDrawing());
}

void IconsListView::refreshSaves() {
  for (QPushButton* button : cmdSaveAllExtractToFiles_) {
    button->setVisible(events_.list.offersSaveAll());
    button->setEnabled(events_.list.isSaveAllEnabled() && !events_.list.isDrawing());
  }
}

}  // namespace gp
