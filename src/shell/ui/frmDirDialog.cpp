#include "shell/ui/frmDirDialog.h"

#include "platform/qt/DialogOwner.h"
#include "platform/qt/PathText.h"
#include "platform/qt/widgets/TextCell.h"
#include "shell/FormPlacement.h"
#include "shell/ui/FolderTree.h"

#include <QComboBox>
#include <QFrame>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

namespace gp {
namespace {

constexpr int kDesignedWidth = 460;   // pixels
constexpr int kDesignedHeight = 540;  // pixels, with the file list
constexpr int kShrunkHeight = kShrunkDirDialogHeight / kTwipsPerPixel;
constexpr const char* kAllFiles = "*.*";

template <class Control>
Control* named(Control* control, const char* name) {
  control->setObjectName(QLatin1String(name));
  return control;
}

QPushButton* makeButton(const char* name, const char* caption, const char* toolTip, QWidget* parent) {
  auto* button = named(new QPushButton(QLatin1String(caption), parent), name);
  button->setToolTip(QLatin1String(toolTip));
  button->setAutoDefault(false);
  return button;
}

QLabel* makeLabel(const char* caption, QWidget* buddy, QWidget* parent) {
  auto* label = new QLabel(QLatin1String(caption), parent);
  label->setBuddy(buddy);
  return label;
}

TextCell* makeCell(const char* name, const char* accessibleName, QWidget* parent) {
  auto* cell = new TextCell(parent, QLatin1String(name), QLatin1String(accessibleName));
  cell->setElideMode(Qt::ElideMiddle);
  cell->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
  return cell;
}

void centre(QWidget& form) {
  QRect frame = form.frameGeometry();
  frame.moveCenter(form.screen()->availableGeometry().center());
  form.move(frame.topLeft());
}

}  // namespace

frmDirDialog::frmDirDialog(const std::string& pattern, const std::string& startFolder, MessageBoxes& boxes,
                           QWidget* parent)
    : QDialog(parent), chooser_(pattern, startFolder), boxes_(boxes) {
  setObjectName(QStringLiteral("frmDirDialog"));
  setWindowTitle(QStringLiteral("Directory dialog"));
  makeControls();
  makeFileControls(pattern);
  layOut();
  connectControls();
  for (const std::string& drive : chooser_.drives()) DriveListBox1->addItem(pathToText(drive));
  showFolder();
  resize(kDesignedWidth, kDesignedHeight);
  DirListBox1->setFocus();
}

std::string frmDirDialog::choose(const std::string& pattern, const std::string& startFolder, MessageBoxes& boxes) {
  const DialogOwner owner;
  frmDirDialog form(pattern, startFolder, boxes, owner.window());
  form.exec();
  return form.result();
}

void frmDirDialog::makeControls() {
  lblSelectedDir = makeCell("lblSelectedDir", "Selected folder", this);
  DriveListBox1 = named(new QComboBox(this), "DriveListBox1");
  DirListBox1 = named(new FolderTree(this), "DirListBox1");
  lblIconsInDir = makeCell("lblIconsInDir", "Files in folder", this);
  cmdOK = makeButton("cmdOK", "&OK", "", this);
  cmdOK->setDefault(true);
  cmdCancel = makeButton("cmdCancel", "&Cancel", "", this);
  cmdShrink = makeButton("cmdShrink", "&Shrink", "Display only core controls", this);
  cmdExtend = makeButton("cmdExtend", "&Extend", "Extend to display others", this);
  cmdExtend->hide();
}

void frmDirDialog::makeFileControls(const std::string& pattern) {
  Frame1 = named(new QFrame(this), "Frame1");
  cboFilePattern = named(new QComboBox(Frame1), "cboFilePattern");
  cboFilePattern->addItem(toText(pattern));
  if (pattern != kAllFiles) cboFilePattern->addItem(QLatin1String(kAllFiles));
  FileListBox1 = named(new QListWidget(Frame1), "FileListBox1");
  FileListBox1->setUniformItemSizes(true);
  FileListBox1->setTextElideMode(Qt::ElideMiddle);
  FileListBox1->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

void frmDirDialog::layOut() {
  auto* rows = new QVBoxLayout(this);
  rows->addWidget(lblSelectedDir);
  auto* core = new QHBoxLayout;
  core->addLayout(makeFolderColumn(), 1);
  core->addLayout(makeButtonColumn());
  rows->addLayout(core, 1);
  rows->addWidget(lblIconsInDir);

  auto* files = new QVBoxLayout(Frame1);
  files->setContentsMargins(0, 0, 0, 0);
  auto* patternRow = new QHBoxLayout;
  patternRow->addWidget(named(makeLabel("Display file pattern:", cboFilePattern, Frame1), "lblFilePattern"));
  patternRow->addWidget(cboFilePattern, 1);
  files->addLayout(patternRow);
  files->addWidget(makeLabel("F&iles:", FileListBox1, Frame1));
  files->addWidget(FileListBox1, 1);
  rows->addWidget(Frame1, 1);
}

QBoxLayout* frmDirDialog::makeFolderColumn() {
  auto* column = new QVBoxLayout;
  auto* driveRow = new QHBoxLayout;
  driveRow->addWidget(makeLabel("&Drive:", DriveListBox1, this));
  driveRow->addWidget(DriveListBox1, 1);
  column->addLayout(driveRow);
  column->addWidget(makeLabel("&Folders:", DirListBox1, this));
  column->addWidget(DirListBox1, 1);
  return column;
}

QBoxLayout* frmDirDialog::makeButtonColumn() {
  auto* column = new QVBoxLayout;
  column->addWidget(cmdOK);
  column->addWidget(cmdCancel);
  column->addStretch();
  column->addWidget(cmdShrink);
  column->addWidget(cmdExtend);
  return column;
}

void frmDirDialog::connectControls() {
  connect(DriveListBox1, &QComboBox::activated, this, [this] {
    chooser_.changeDrive(textToPath(DriveListBox1->currentText()));
    showFolder();
  });
  connect(DirListBox1, &FolderTree::openRequested, this, [this](const QString& path) { openFolder(textToPath(path)); });
  connect(DirListBox1, &FolderTree::upRequested, this, [this] { openFolder(chooser_.parentFolder()); });
  connect(DirListBox1, &FolderTree::acceptRequested, cmdOK, &QPushButton::click);
  connect(cboFilePattern, &QComboBox::activated, this, [this] {
    chooser_.setPattern(textToPath(cboFilePattern->currentText()));
    showFiles();
  });
  connect(cmdOK, &QPushButton::clicked, this, &frmDirDialog::okPressed);
  connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
  connect(cmdShrink, &QPushButton::clicked, this, [this] { setExtended(false); });
  connect(cmdExtend, &QPushButton::clicked, this, [this] { setExtended(true); });
}

void frmDirDialog::openFolder(const std::string& folder) {
  if (chooser_.changeFolder(folder)) showFolder();
}

void frmDirDialog::showFolder() {
  lblSelectedDir->setText(pathToText(chooser_.folder()));
  DriveListBox1->setCurrentText(pathToText(chooser_.drive()));
  DirListBox1->setRows(chooser_.folderRows());
  showFiles();
}

void frmDirDialog::showFiles() {
  FileListBox1->clear();
  for (const std::string& name : chooser_.files()) {
    auto* item = new QListWidgetItem(pathToText(name), FileListBox1);
    item->setToolTip(pathToText(name).toHtmlEscaped());
  }
  lblIconsInDir->setText(toText(chooser_.filesInDirText()));
}

void frmDirDialog::okPressed() {
  if (!chooser_.accept(boxes_)) return;
  gFolderResult = chooser_.folder();
  accept();
}

void frmDirDialog::setExtended(bool extended) {
  Frame1->setVisible(extended);
  cmdExtend->setVisible(!extended);
  cmdShrink->setVisible(extended);
  (extended ? cmdShrink : cmdExtend)->setFocus();
  layout()->activate();
  resize(width(), extended ? kDesignedHeight : kShrunkHeight);
  centre(*this);
}

}  // namespace gp
