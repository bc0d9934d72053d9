// The file dialogs: what they offer, return, add to a typed name and look like.
#include "platform/qt/PathText.h"
#include "platform/qt/QtFileDialogs.h"
#include "support/TempFolder.h"
#include "ui/ModalDialogs.h"

#include <QAbstractButton>
#include <QColorDialog>
#include <QFileDialog>
#include <QFileSystemModel>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QTest>
#include <QTreeView>

#include <filesystem>
#include <gtest/gtest.h>
#include <unistd.h>

namespace gp {
namespace {

std::string noFolder(const std::string&, const std::string&) { return {}; }

FileDialogRequest iconRequest(const test::TempFolder& folder) {
  FileDialogRequest request;
  request.title = "Open icon file";
  request.folder = folder.path();
  request.filters = {{"Icon files (*.ico)", "*.ico"}};
  request.flags = kFileMustExist | kFileHideReadOnly;
  return request;
}

void typeName(QFileDialog& dialog, const QString& name) {
  auto* field = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
  ASSERT_NE(field, nullptr);
  field->setFocus();
  field->clear();
  QTest::keyClicks(field, name);
  QTest::keyClick(field, Qt::Key_Return);
}

TEST(QtFileDialogs, OpenGivesTheFileThatIsTyped) {
  const test::TempFolder folder;
  folder.write("a b.ico");
  whenShown<QFileDialog>([](QFileDialog& dialog) {
    EXPECT_EQ(dialog.windowTitle(), "Open icon file");
    EXPECT_EQ(dialog.nameFilters(), QStringList{"Icon files (*.ico)"});
    typeName(dialog, "a b.ico");
  });
  std::string path;
  int error = -1;
  EXPECT_TRUE(QtFileDialogs(noFolder).openFile(iconRequest(folder), path, error));
  EXPECT_EQ(path, folder.file("a b.ico"));
  EXPECT_EQ(error, 0);
}

TEST(QtFileDialogs, CancellingGivesAnEmptyPathAndNoError) {
  const test::TempFolder folder;
  whenShown<QFileDialog>([](QFileDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
  std::string path = "left over";
  int error = -1;
  EXPECT_FALSE(QtFileDialogs(noFolder).openFile(iconRequest(folder), path, error));
  EXPECT_EQ(path, "");
  EXPECT_EQ(error, 0);
}

TEST(QtFileDialogs, PatternsMatchInAnyCase) {
  const test::TempFolder folder;
  for (const char* name : {"A.ICO", "b.ico", "c.Ico", "d.bmp"}) folder.write(name);
  QFileDialog dialog;
  QtFileDialogs::prepareOpen(dialog, iconRequest(folder));
  dialog.show();
  auto* model = dialog.findChild<QFileSystemModel*>();
  ASSERT_NE(model, nullptr);
  QStringList names;
  const auto listed = [&] {
    names.clear();
    const QModelIndex root = model->index(pathToText(folder.path()));
    for (int row = 0; row < model->rowCount(root); ++row) names << model->fileName(model->index(row, 0, root));
    names.sort();
    return names.size() == 3;
  };
  EXPECT_TRUE(QTest::qWaitFor(listed, kPatience));
  EXPECT_EQ(names, (QStringList{"A.ICO", "b.ico", "c.Ico"}));
}

TEST(QtFileDialogs, TheNamesTakeTheWidthThatTheOtherColumnsLeave) {
  const test::TempFolder folder;
  for (const char* name : {"a.ico", "a rather long name of an icon file.ico"}) folder.write(name);
  whenShown<QFileDialog>([](QFileDialog& dialog) {
    EXPECT_EQ(dialog.size(), QSize(800, 520).boundedTo(dialog.screen()->availableGeometry().size()));
    auto* list = dialog.findChild<QTreeView*>(QStringLiteral("treeView"));
    ASSERT_NE(list, nullptr);
    EXPECT_TRUE(QTest::qWaitFor([&] { return list->model()->rowCount(list->rootIndex()) == 2; }, kPatience));
    const auto isCut = [list](int column) {
      for (int row = 0; row < 2; ++row)
        if (list->sizeHintForIndex(list->model()->index(row, column, list->rootIndex())).width() >
            list->columnWidth(column))
          return true;
      return false;
    };
    const int columns = list->header()->count();
    for (int column = 0; column < columns; ++column)
      EXPECT_TRUE(QTest::qWaitFor([&] { return !isCut(column); }, kPatience)) << column;
    EXPECT_EQ(list->header()->length(), list->viewport()->width());
    QTest::keyClick(&dialog, Qt::Key_Escape);
  });
  std::string path;
  int error = -1;
  QtFileDialogs(noFolder).openFile(iconRequest(folder), path, error);
}

TEST(QtFileDialogs, AFileWithAnIconIsShownByItPixelByPixel) {
  const test::TempFolder folder;
  folder.write("a.ico"), folder.write("b.ico");
  QImage picture(16, 16, QImage::Format_ARGB32);
  picture.fill(Qt::red);
  picture.setPixelColor(3, 5, Qt::blue);
  FilePictures pictures([&](const std::string& path) { return path == folder.file("a.ico") ? picture : QImage(); });
  const QImage shown = pictures.icon(QFileInfo(pathToText(folder.file("a.ico")))).pixmap(32, 32).toImage();
  ASSERT_EQ(shown.size(), QSize(32, 32));
  EXPECT_EQ(shown.pixelColor(5, 10), QColor(Qt::red));
  for (const QPoint at : {QPoint(6, 10), QPoint(7, 11)}) EXPECT_EQ(shown.pixelColor(at), QColor(Qt::blue));
  EXPECT_EQ(shown.pixelColor(8, 10), QColor(Qt::red));
  const QFileInfo plain(pathToText(folder.file("b.ico")));
  EXPECT_EQ(pictures.icon(plain).pixmap(32, 32).toImage(), QFileIconProvider().icon(plain).pixmap(32, 32).toImage());
}

TEST(QtFileDialogs, AnIconLargerThanTheRowIsScaledDownAndOneInBetweenIsCentred) {
  for (const auto& [side, margin] : {std::pair(64, 0), std::pair(24, 4)}) {
    QImage picture(side, side, QImage::Format_ARGB32);
    picture.fill(Qt::red);
    const FilePictures pictures([&](const std::string&) { return picture; });
    const test::TempFolder folder;
    folder.write("a.ico");
    const QImage shown = pictures.icon(QFileInfo(pathToText(folder.file("a.ico")))).pixmap(32, 32).toImage();
    EXPECT_EQ(shown.pixelColor(margin, margin), QColor(Qt::red)) << side;
    EXPECT_EQ(shown.pixelColor(31 - margin, 31 - margin), QColor(Qt::red)) << side;
    const QRect inside(margin, margin, 32 - 2 * margin, 32 - 2 * margin);
    for (int x = 0; x < 32; ++x) EXPECT_EQ(shown.pixelColor(x, 16).alpha() != 0, inside.contains(x, 16)) << side;
  }
}

TEST(QtFileDialogs, StarDotStarAlsoMeansNamesWithoutADot) {
  FileDialogRequest request;
  request.filters = {{"All files (*.*)", "*.*"}, {"Icons and cursors", "*.ico;*.cur"}};
  QFileDialog dialog;
  QtFileDialogs::prepareOpen(dialog, request);
  EXPECT_EQ(dialog.nameFilters(), (QStringList{"All files (*)", "Icons and cursors (*.ico *.cur)"}));
}

// Saves over a file and answers the question that may follow; counts the questions.
bool saveOver(const test::TempFolder& folder, const std::string& name, unsigned flags,
              QMessageBox::StandardButton answer, std::string& path, int& questions) {
  questions = 0;
  FileDialogRequest request = iconRequest(folder);
  request.fileName = name;
  request.flags = flags;
  QTimer poll;
  bool accepted = false;
  QObject::connect(&poll, &QTimer::timeout, [&] {
    QWidget* top = QApplication::activeModalWidget();
    if (auto* box = qobject_cast<QMessageBox*>(top)) {
      ++questions;
      box->button(answer)->click();
    } else if (auto* dialog = qobject_cast<QFileDialog*>(top)) {
      if (accepted) return dialog->reject();
      accepted = true;
      auto* field = dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
      // Not from within the timer, which would not fire again during the question.
      QTimer::singleShot(0, field, [field] { QTest::keyClick(field, Qt::Key_Return); });
    }
  });
  poll.start(20);
  int error = -1;
  return QtFileDialogs(noFolder).saveFile(request, path, error);
}

TEST(QtFileDialogs, SaveAsksBeforeAnExistingFileIsReplaced) {
  const test::TempFolder folder;
  std::string path;
  int questions = 0;
  // The second name is not UTF-8.
  for (const char* name : {"there.ico", "caf\xE9.ico"}) {
    folder.write(name);
    EXPECT_FALSE(saveOver(folder, name, kFileOverwritePrompt, QMessageBox::No, path, questions)) << name;
    EXPECT_EQ(questions, 1);
    EXPECT_TRUE(saveOver(folder, name, kFileOverwritePrompt, QMessageBox::Yes, path, questions)) << name;
    EXPECT_EQ(questions, 1);
    EXPECT_EQ(path, folder.file(name));
    EXPECT_TRUE(saveOver(folder, name, 0, QMessageBox::No, path, questions)) << name;
    EXPECT_EQ(questions, 0);
  }
}

TEST(QtFileDialogs, TheColourDialogStartsAtTheColourAndGivesTheChosenOne) {
  Color color = rgb(1, 2, 3);
  whenShown<QColorDialog>([](QColorDialog& dialog) {
    EXPECT_EQ(dialog.currentColor(), QColor(1, 2, 3));
    for (int i = 0; i < QColorDialog::customCount(); ++i) EXPECT_EQ(QColorDialog::customColor(i), QColor(Qt::white));
    dialog.setCurrentColor(QColor(200, 100, 50));
    dialog.accept();
  });
  EXPECT_TRUE(QtFileDialogs(noFolder).chooseColor(color));
  EXPECT_EQ(color, rgb(200, 100, 50));

  whenShown<QColorDialog>([](QColorDialog& dialog) {
    dialog.setCurrentColor(Qt::red);
    QTest::keyClick(&dialog, Qt::Key_Escape);
  });
  EXPECT_FALSE(QtFileDialogs(noFolder).chooseColor(color));
  EXPECT_EQ(color, rgb(200, 100, 50));
}

TEST(QtFileDialogs, FoldersComeFromTheProgramsOwnForm) {
  QtFileDialogs dialogs([](const std::string& pattern, const std::string& start) { return pattern + " in " + start; });
  EXPECT_EQ(dialogs.chooseFolder("*.ICO", "/home"), "*.ICO in /home");
}

}  // namespace
}  // namespace gp
