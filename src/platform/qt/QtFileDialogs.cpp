#include "platform/qt/QtFileDialogs.h"

#include "platform/files/Files.h"
#include "platform/qt/DialogOwner.h"
#include "platform/qt/PathText.h"
#include "platform/text/Paths.h"

#include <QColorDialog>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QLineEdit>
#include <QListView>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPrinter>
#include <QScreen>
#include <QTreeView>

#include <algorithm>

namespace gp {
namespace {

constexpr int kCustomColors = 16;
constexpr QSize kDialogSize(800, 520);
constexpr const char* kAllFiles = "*.*";

bool meansAllFiles(const std::string& pattern) { return pattern.empty() || pattern == kAllFiles; }

// Converts a pattern list such as "*.ico;*.cur" to Qt's form; "*.*" includes names without a dot.
QString qtPatterns(const std::string& pattern) {
  if (meansAllFiles(pattern)) return QStringLiteral("*");
  return toText(pattern).replace(u';', u' ');
}

// Qt takes the patterns from the last brackets, where descriptions repeat them: "Icon files (*.ico)".
QString qtFilter(const FileFilter& filter) {
  QString description = toText(filter.description);
  const qsizetype bracket = description.lastIndexOf(u'(');
  if (bracket >= 0 && description.endsWith(u')')) description.truncate(bracket);
  return description.trimmed() + QStringLiteral(" (") + qtPatterns(filter.pattern) + u')';
}

QStringList qtFilters(const std::vector<FileFilter>& filters) {
  QStringList result;
  for (const FileFilter& filter : filters) result << qtFilter(filter);
  return result;
}

// The names take the width that the other columns leave.
void fitColumns(QFileDialog& dialog) {
  auto* list = dialog.findChild<QTreeView*>(QStringLiteral("treeView"));
  if (!list) return;
  QHeaderView* columns = list->header();
  columns->setStretchLastSection(false);
  columns->setSectionResizeMode(QHeaderView::ResizeToContents);
  columns->setSectionResizeMode(0, QHeaderView::Stretch);
}

void arrange(QFileDialog& dialog, QFileIconProvider& pictures) {
  dialog.resize(kDialogSize.boundedTo(dialog.screen()->availableGeometry().size()));
  dialog.setViewMode(QFileDialog::Detail);
  dialog.setIconProvider(&pictures);
  for (auto* list : dialog.findChildren<QAbstractItemView*>())
    if (list->objectName() != QStringLiteral("sidebar")) list->setIconSize({FilePictures::kSide, FilePictures::kSide});
  fitColumns(dialog);
}

void prepare(QFileDialog& dialog, const FileDialogRequest& request) {
  dialog.setOption(QFileDialog::DontUseNativeDialog);
  if (!request.title.empty()) dialog.setWindowTitle(toText(request.title));
  dialog.setDirectory(request.folder.empty() ? QDir::currentPath() : pathToText(request.folder));
  if (!request.filters.empty()) dialog.setNameFilters(qtFilters(request.filters));
  if (!request.defaultExtension.empty()) dialog.setDefaultSuffix(toText(request.defaultExtension));
  if (!request.fileName.empty()) dialog.selectFile(pathToText(request.fileName));
}

// Completes the typed name with an extension that the chosen file type lists. Qt by itself accepts any text after a dot
// as an extension, and looks for folders with that name in the current directory only.
class SaveDialog final : public QFileDialog {
 public:
  // The request must outlive the dialog.
  SaveDialog(QWidget* parent, const FileDialogRequest& request) : QFileDialog(parent), request_(request) {}

 protected:
  void accept() override {
    const QStringList chosen = selectedFiles();
    if (chosen.isEmpty()) return;
    for (const QFileInfo& file : {QFileInfo(chosen.constFirst()), QFileInfo(directory(), nameField()->text())})
      if (file.isDir() && !isProposed(file)) return enter(file);
    completeName(chosen.constFirst());
    QFileDialog::accept();
  }

 private:
  // The proposed name means a file, even if there is a folder with that name.
  bool isProposed(const QFileInfo& file) const {
    const QString proposed = pathToText(request_.fileName);
    return nameField()->text() == proposed && file.fileName() == proposed;
  }

  void enter(const QFileInfo& folder) {
    setDirectory(folder.absoluteFilePath());
    nameField()->selectAll();
  }

  QLineEdit* nameField() const { return findChild<QLineEdit*>(QStringLiteral("fileNameEdit")); }
  QItemSelectionModel* selection() const { return findChild<QListView*>(QStringLiteral("listView"))->selectionModel(); }

  // `path` is Qt's interpretation of the text in the field.
  void completeName(const QString& path) {
    // Qt uses the quoted part and drops the text after it.
    QString text = nameField()->text().contains(u'"') ? path : nameField()->text();
    if (!lacksExtension(QFileInfo(text).fileName())) return;
    if (text.endsWith(u'.')) text.chop(1);
    selection()->clear();  // a selected file takes precedence over the text
    nameField()->setText(text + u'.' + toText(request_.defaultExtension));
  }

  bool lacksExtension(const QString& name) const {
    if (request_.defaultExtension.empty()) return false;
    const std::string pattern = chosenPattern();
    // With all files listed, the user may select one without an extension.
    if (meansAllFiles(pattern)) return !name.contains(u'.') && !selection()->hasSelection();
    QStringList endings = toText(pattern).split(u';');
    endings << QStringLiteral("*.") + toText(request_.defaultExtension);
    return std::ranges::none_of(endings, [name = textToPath(name)](const QString& ending) {
      return matchesPattern(name, textToPath(ending.trimmed()));
    });
  }

  std::string chosenPattern() const {
    const auto chosen = static_cast<std::size_t>(nameFilters().indexOf(selectedNameFilter()));
    return chosen < request_.filters.size() ? request_.filters[chosen].pattern : std::string();
  }

  const FileDialogRequest& request_;
};

// Qt asks before it replaces a file, except when the name is not UTF-8.
bool mayReplace(QFileDialog& dialog, const FileDialogRequest& request, const std::string& path) {
  const bool qtAsked = QFile::encodeName(pathToText(path)).toStdString() == path;
  if (!(request.flags & kFileOverwritePrompt) || qtAsked || !FileExists(path)) return true;
  return QMessageBox::question(&dialog, dialog.windowTitle(),
                               QFileDialog::tr("%1 already exists.\nDo you want to replace it?").arg(pathToText(path)),
                               QMessageBox::Yes | QMessageBox::No, QMessageBox::No) == QMessageBox::Yes;
}

bool run(QFileDialog& dialog, std::string& path, int& error) {
  error = 0;
  path.clear();
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return false;
  path = textToPath(dialog.selectedFiles().constFirst());
  return !path.empty();
}

}  // namespace

QtFileDialogs::QtFileDialogs(FolderChooser folderChooser, FilePicture pictureOf)
    : folderChooser_(std::move(folderChooser)), pictures_(std::move(pictureOf)) {}

QtFileDialogs::~QtFileDialogs() = default;

void QtFileDialogs::prepareOpen(QFileDialog& dialog, const FileDialogRequest& request) {
  dialog.setAcceptMode(QFileDialog::AcceptOpen);
  dialog.setFileMode(request.flags & kFileMustExist ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
  prepare(dialog, request);
}

void QtFileDialogs::prepareSave(QFileDialog& dialog, const FileDialogRequest& request) {
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setFileMode(QFileDialog::AnyFile);
  dialog.setOption(QFileDialog::DontConfirmOverwrite, !(request.flags & kFileOverwritePrompt));
  prepare(dialog, request);
}

bool QtFileDialogs::openFile(const FileDialogRequest& request, std::string& path, int& error) {
  const DialogOwner owner;
  QFileDialog dialog(owner.window());
  prepareOpen(dialog, request);
  arrange(dialog, pictures_);
  return run(dialog, path, error);
}

bool QtFileDialogs::saveFile(const FileDialogRequest& request, std::string& path, int& error) {
  const DialogOwner owner;
  SaveDialog dialog(owner.window(), request);
  prepareSave(dialog, request);
  arrange(dialog, pictures_);
  bool chosen = run(dialog, path, error);
  while (chosen && !mayReplace(dialog, request, path)) chosen = run(dialog, path, error);
  return chosen;
}

bool QtFileDialogs::chooseColor(Color& color) {
  const DialogOwner owner;
  QColorDialog dialog(QColor(redOf(color), greenOf(color), blueOf(color)), owner.window());
  dialog.setOption(QColorDialog::DontUseNativeDialog);
  for (int i = 0; i < kCustomColors; ++i) QColorDialog::setCustomColor(i, Qt::white);
  if (dialog.exec() != QDialog::Accepted) return false;
  const QColor chosen = dialog.selectedColor();
  color = rgb(chosen.red(), chosen.green(), chosen.blue());
  return true;
}

bool QtFileDialogs::choosePrinter(PrinterRequest& request) {
  auto printer = std::make_unique<QPrinter>();
  printer->setCopyCount(request.copies);
  const DialogOwner owner;
  QPrintDialog dialog(printer.get(), owner.window());
  dialog.setOption(QPrintDialog::PrintSelection, false);
  dialog.setOption(QPrintDialog::PrintPageRange, request.flags & kPrintPageNumbers);
  if (dialog.exec() != QDialog::Accepted) return false;
  request.copies = printer->copyCount();
  printer_ = std::move(printer);
  return true;
}

std::string QtFileDialogs::chooseFolder(const std::string& pattern, const std::string& startFolder) {
  return folderChooser_(pattern, startFolder);
}

}  // namespace gp
