#include "files/ui/frmGPHeaderDiff.h"

#include "document/ui/QtDisplay.h"
#include "files/format/IcoLayout.h"
#include "files/ui/EntryView.h"
#include "platform/qt/PathText.h"
#include "platform/qt/widgets/CaptionFrame.h"
#include "platform/qt/widgets/TabbedList.h"
#include "platform/qt/widgets/TextCell.h"
#include "platform/text/Paths.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace gp {
namespace {

constexpr int kTabStops[] = {30, 80, 145};
constexpr const char* kWidestItem = "65535\t65535-BPP\tTrue-Color\t255 x 255";
constexpr int kColumnGap = 12;  // pixels
constexpr int kRowGap = 10;
constexpr int kLabelGap = 4;

// The cells of fraEnquiry, row by row.
struct EnquiryRow {
  const char* caption;
  const char* explanation;
  const char* colorName;
  const char* colorSpoken;
  const char* bitsName;
  const char* bitsSpoken;
};
constexpr std::array<EnquiryRow, 3> kEnquiryRows{{
    {"Per IDE", "What the icon directory entry tells", "lblIDEColor", "Colors per icon directory entry", "lblIDEBPP",
     "BPP per icon directory entry"},
    {"Per BIH", "What the bitmap information header tells", "lblBIHColor", "Colors per bitmap header", "lblBIHBPP",
     "BPP per bitmap header"},
    {"Per Actual", "What the pixels hold", "lblActualColor", "Colors per actual image", "lblActualBPP",
     "BPP per actual image"},
}};

// The texts of the cells, in the order of the rows above.
std::array<std::string, 6> cellTexts(const EnquiryTable& table) {
  return {table.lblIDEColor, table.lblIDEBPP,      table.lblBIHColor,
          table.lblBIHBPP,   table.lblActualColor, table.lblActualBPP};
}

template <class Control>
Control* named(Control* control, const QString& name) {
  control->setObjectName(name);
  return control;
}

QPushButton* makeButton(const char* name, const char* caption, QWidget* parent) {
  auto* button = named(new QPushButton(QLatin1String(caption), parent), QLatin1String(name));
  button->setAutoDefault(false);
  return button;
}

TextCell* makeCell(const char* name, const char* spoken, QWidget* parent) {
  auto* cell = new TextCell(parent, QLatin1String(name), QLatin1String(spoken));
  cell->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  return cell;
}

QLabel* makeHeading(const char* caption, QWidget* parent) {
  auto* heading = new QLabel(QLatin1String(caption), parent);
  heading->setIndent(TextCell::kMargin);
  return heading;
}

}  // namespace

frmGPHeaderDiff::frmGPHeaderDiff(const FilesContext& context, QtDisplay& display, QWidget* parent)
    : QDialog(parent), diff_(context) {
  setObjectName(QStringLiteral("frmGPHeaderDiff"));
  setWindowTitle(QStringLiteral("Header Entry Diff"));
  makeControls();
  layOut();
  connectControls();
  display.listen(DisplayPart::ModalForm, this, [this] { refresh(); });
  refresh();
  lisIcons->setFocus();
}

void frmGPHeaderDiff::makeControls() {
  lblFileSpec = makeCell("lblFileSpec", "File", this);
  lblFileSpec->setElideMode(Qt::ElideMiddle);
  lblFileSpec->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
  lblFileSpec->setText(toText(ShortenPath(diff_.file())));
  // In rich text, parts of a name that look like tags would disappear.
  lblFileSpec->setToolTip(pathToText(diff_.file()).toHtmlEscaped());

  lisIcons = new TabbedList(this, QStringLiteral("lisIcons"), QStringLiteral("Icons in file"),
                            {std::begin(kTabStops), std::end(kTabStops)});
  lisIcons->setMinimumWidth(lisIcons->minimumSizeHint().width() + lisIcons->columnsOf(QLatin1String(kWidestItem)).end);
  lblIconInFile = new EntryView(this, {QStringLiteral("lblIconInFile"), QStringLiteral("picIconInFile")},
                                diff_.picIconInFile(), ico::kMaxEntrySide);
  optBase = {named(new QRadioButton(QStringLiteral("Base on &Icon Header"), this), QStringLiteral("optBase(0)")),
             named(new QRadioButton(QStringLiteral("Base on &Bitmap Header"), this), QStringLiteral("optBase(1)"))};
  fraEnquiry = makeTable();
  cmdSalvage = makeButton("cmdSalvage", "&Salvage", this);
  cmdSalvage->setToolTip(
      QStringLiteral("Salvage basing on bitmap header entry only (irrespective of actual color depth)"));
  cmdExit = makeButton("cmdExit", "E&xit", this);
  cmdExit->setDefault(true);
}

QWidget* frmGPHeaderDiff::makeTable() {
  auto* frame = new CaptionFrame(this, QStringLiteral("fraEnquiry"), QStringLiteral("Selected entry"));
  auto* grid = new QGridLayout(frame);
  grid->setContentsMargins(frame->frameMargins());
  grid->addWidget(makeHeading("Color", frame), 0, 1);
  grid->addWidget(makeHeading("BPP", frame), 0, 2);
  for (std::size_t i = 0; i < kEnquiryRows.size(); ++i) {
    const EnquiryRow& row = kEnquiryRows[i];
    const int line = static_cast<int>(i) + 1;
    auto* caption = new QLabel(QLatin1String(row.caption), frame);
    caption->setToolTip(QLatin1String(row.explanation));
    grid->addWidget(caption, line, 0);
    enquiryCells_[2 * i] = makeCell(row.colorName, row.colorSpoken, frame);
    enquiryCells_[2 * i + 1] = makeCell(row.bitsName, row.bitsSpoken, frame);
    grid->addWidget(enquiryCells_[2 * i], line, 1);
    grid->addWidget(enquiryCells_[2 * i + 1], line, 2);
  }
  for (const int column : {1, 2}) grid->setColumnStretch(column, 1);
  return frame;
}

void frmGPHeaderDiff::layOut() {
  auto* rows = new QVBoxLayout(this);
  rows->setSpacing(kRowGap);
  auto* fileRow = new QHBoxLayout;
  fileRow->setSpacing(kLabelGap);
  fileRow->addWidget(new QLabel(QStringLiteral("File:"), this));
  fileRow->addWidget(lblFileSpec, 1);
  rows->addLayout(fileRow);
  auto* columns = new QHBoxLayout;
  columns->setSpacing(kColumnGap);
  columns->addLayout(makeListColumn(), 1);
  columns->addLayout(makeEntryColumn());
  rows->addLayout(columns, 1);
  rows->addLayout(makeButtonRow());
}

QBoxLayout* frmGPHeaderDiff::makeListColumn() {
  auto* column = new QVBoxLayout;
  column->setSpacing(kLabelGap);
  auto* label = new QLabel(QStringLiteral("&Entries in file:"), this);
  label->setBuddy(lisIcons);
  column->addWidget(label);
  column->addWidget(lisIcons, 1);
  column->addSpacing(kRowGap - kLabelGap);
  for (QRadioButton* option : optBase) column->addWidget(option);
  return column;
}

QBoxLayout* frmGPHeaderDiff::makeEntryColumn() {
  auto* column = new QVBoxLayout;
  column->setSpacing(kLabelGap);
  column->addWidget(new QLabel(QStringLiteral("Preview:"), this));
  column->addWidget(lblIconInFile);
  column->addSpacing(kRowGap - kLabelGap);
  column->addWidget(fraEnquiry);
  column->addStretch();
  return column;
}

QBoxLayout* frmGPHeaderDiff::makeButtonRow() {
  auto* row = new QHBoxLayout;
  row->addStretch();
  row->addWidget(cmdSalvage);
  row->addWidget(cmdExit);
  return row;
}

void frmGPHeaderDiff::connectControls() {
  connect(lisIcons, &TabbedList::itemChosen, this, [this](int item) { diff_.clickIcon(item); });
  for (const HeaderBase base : {HeaderBase::Icon, HeaderBase::Bitmap})
    connect(optBase.at(static_cast<std::size_t>(base)), &QRadioButton::toggled, this, [this, base](bool checked) {
      if (checked) diff_.setBase(base);
    });
  connect(cmdSalvage, &QPushButton::clicked, this, [this] { diff_.cmdSalvage(); });
  connect(cmdExit, &QPushButton::clicked, this, &QDialog::reject);
}

// Messages about the file appear over the form, not before it.
void frmGPHeaderDiff::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  if (std::exchange(activated_, true)) return;
  QMetaObject::invokeMethod(
      this, [this] { diff_.activate(); }, Qt::QueuedConnection);
}

void frmGPHeaderDiff::refresh() {
  lisIcons->setItems(diff_.lisIcons());
  lisIcons->setSelected(diff_.selectedIcon());
  lblIconInFile->refresh();
  optBase.at(static_cast<std::size_t>(diff_.base()))->setChecked(true);
  const auto texts = cellTexts(diff_.table());
  for (std::size_t i = 0; i < texts.size(); ++i) enquiryCells_[i]->setText(toText(texts[i]));
  cmdSalvage->setEnabled(diff_.canSalvage());
}

}  // namespace gp
