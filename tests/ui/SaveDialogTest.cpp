// The name that the save dialog returns for a typed name, and the questions it asks before.
#include "platform/qt/PathText.h"
#include "platform/qt/QtFileDialogs.h"
#include "support/TempFolder.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <filesystem>
#include <functional>
#include <gtest/gtest.h>
#include <optional>
#include <string>
#include <vector>

namespace gp {
namespace {

constexpr int kPatience = 5000;  // ms
constexpr int kPollTime = 10;    // ms
constexpr const char* kTitle = "Save";

const FileFilter kIcons{"Icon files (*.ico)", "*.ico"};
const FileFilter kAllFiles{"(*.*)", "*.*"};
const FileFilter kIconsAndCursors{"Icons and cursors", "*.ico; *.cur"};

class SaveDialog : public testing::Test {
 protected:
  using Step = std::function<void(QFileDialog&)>;

  // Opens the dialog and does the steps, each when the dialog has the keyboard focus. Returns the path, or nothing if
  // the dialog is still open after the last step. Questions get `answer`.
  std::optional<std::string> save(const std::vector<Step>& steps,
                                  QMessageBox::StandardButton answer = QMessageBox::Yes) {
    questions.clear();
    leftIn.clear();
    leftText.clear();
    leftSelected.clear();
    std::size_t done = 0;
    bool isBusy = false;
    QTimer poll;
    QObject::connect(&poll, &QTimer::timeout, [&] {
      QWidget* top = QApplication::activeModalWidget();
      if (auto* box = qobject_cast<QMessageBox*>(top)) {
        questions.push_back(box->text().toStdString());
        box->button(answer)->click();
      } else if (auto* dialog = qobject_cast<QFileDialog*>(top)) {
        if (isBusy) return;
        if (done == steps.size()) return leave(*dialog);
        isBusy = true;
        // Not from within the timer, which would not fire again during a question.
        QTimer::singleShot(0, dialog, [&, dialog] {
          steps[done++](*dialog);
          isBusy = false;
        });
      }
    });
    poll.start(kPollTime);
    std::string path;
    int error = -1;
    const bool isSaved = QtFileDialogs({}).saveFile(request(), path, error);
    EXPECT_EQ(error, 0);
    return isSaved ? std::optional(path) : std::nullopt;
  }

  // The path for a typed name.
  std::optional<std::string> saveAs(const std::string& name, QMessageBox::StandardButton answer = QMessageBox::Yes) {
    return save({typed(name)}, answer);
  }

  static QLineEdit* field(QFileDialog& dialog) { return dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit")); }
  static Step typed(const std::string& name) {
    return [name](QFileDialog& dialog) {
      fill(dialog, name);
      QTest::keyClick(field(dialog), Qt::Key_Return);
    };
  }
  static Step entered() {
    return [](QFileDialog& dialog) {
      field(dialog)->setFocus();
      QTest::keyClick(field(dialog), Qt::Key_Return);
    };
  }
  static Step selected(const std::string& name) {
    return [name](QFileDialog& dialog) {
      auto* list = visibleList(dialog);
      ASSERT_TRUE(QTest::qWaitFor([&] { return indexOf(*list, name).isValid(); }, kPatience));
      QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualRect(indexOf(*list, name)).center());
    };
  }
  static Step filterChosen(int index) {
    return [index](QFileDialog& dialog) {
      auto* types = dialog.findChild<QComboBox*>(QStringLiteral("fileTypeCombo"));
      types->setCurrentIndex(index);
      emit types->activated(index);
    };
  }
  // The button takes the focus from the field.
  static Step pressed() {
    return [](QFileDialog& dialog) {
      auto* button = dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Save);
      button->setFocus();
      button->click();
    };
  }

  test::TempFolder folder;
  std::vector<FileFilter> filters{kIcons, kAllFiles};
  std::string proposed;
  unsigned flags = kFileOverwritePrompt;
  std::vector<std::string> questions;
  std::string extension = "ico";
  // The folder, the name, and the selected part of it, in a dialog that did not close.
  std::string leftIn, leftText, leftSelected;

 private:
  FileDialogRequest request() const { return {kTitle, proposed, folder.path(), filters, extension, flags}; }

  static void fill(QFileDialog& dialog, const std::string& name) {
    field(dialog)->setFocus();
    field(dialog)->clear();
    for (const QChar c : pathToText(name)) {
      if (c.unicode() < 0x80)
        QTest::keyClick(field(dialog), c.toLatin1());
      else
        field(dialog)->insert(c);
    }
  }
  static QAbstractItemView* visibleList(QFileDialog& dialog) {
    auto* list = dialog.findChild<QAbstractItemView*>(QStringLiteral("listView"));
    return list->isVisible() ? list : dialog.findChild<QAbstractItemView*>(QStringLiteral("treeView"));
  }
  static QModelIndex indexOf(const QAbstractItemView& list, const std::string& name) {
    const QModelIndex root = list.rootIndex();
    for (int row = 0; row < list.model()->rowCount(root); ++row)
      if (list.model()->index(row, 0, root).data().toString().toStdString() == name)
        return list.model()->index(row, 0, root);
    return {};
  }
  void leave(QFileDialog& dialog) {
    leftIn = textToPath(dialog.directory().absolutePath());
    leftText = textToPath(field(dialog)->text());
    leftSelected = textToPath(field(dialog)->selectedText());
    dialog.reject();
  }
};

TEST_F(SaveDialog, ANameThatTheChosenFileTypeDoesNotListGetsTheExtension) {
  const std::pair<const char*, const char*> names[] = {{"new", "new.ico"},
                                                       {"py4.0", "py4.0.ico"},
                                                       {"app.v2", "app.v2.ico"},
                                                       {"a.bmp", "a.bmp.ico"},
                                                       {"my.icon", "my.icon.ico"},
                                                       {"name.", "name.ico"},
                                                       {"v1.2.", "v1.2.ico"},
                                                       {"ico", "ico.ico"},
                                                       {".hidden", ".hidden.ico"},
                                                       {"\xC3\xA4.1", "\xC3\xA4.1.ico"},
                                                       {"caf\xE9 4.0", "caf\xE9 4.0.ico"},
                                                       {"\"py4.0\"", "py4.0.ico"}};
  for (const auto& [name, saved] : names) EXPECT_EQ(saveAs(name), folder.file(saved)) << name;
}

TEST_F(SaveDialog, AProposedNameThatIsAlsoAFoldersIsAFile) {
  folder.makeFolder("app");
  proposed = "app";
  EXPECT_EQ(save({entered()}), folder.file("app.ico"));
  EXPECT_EQ(save({pressed()}), folder.file("app.ico"));
  folder.write("app.ico");
  EXPECT_EQ(save({entered()}), folder.file("app.ico"));
  EXPECT_EQ(questions.size(), 1U);
}

TEST_F(SaveDialog, ANameThatTheChosenFileTypeListsStays) {
  for (const char* name : {"a.ico", "a.ICO", "py4.0.Ico", "a.ico.ico", "caf\xE9.ICO"})
    EXPECT_EQ(saveAs(name), folder.file(name));
}

TEST_F(SaveDialog, AmongAllFilesOnlyANameWithoutADotGetsTheExtension) {
  filters = {kAllFiles};
  for (const auto& [name, saved] : {std::pair("a", "a.ico"), {"a.b", "a.b"}, {"py4.0", "py4.0"}, {"a.", "a."}})
    EXPECT_EQ(saveAs(name), folder.file(saved));
  folder.write("README");
  EXPECT_EQ(saveAs("README"), folder.file("README.ico"));
  filters = {};
  EXPECT_EQ(saveAs("py4.0"), folder.file("py4.0"));
}

TEST_F(SaveDialog, WithoutADefaultExtensionNamesStay) {
  extension.clear();
  for (const char* name : {"new", "py4.0", "name."}) EXPECT_EQ(saveAs(name), folder.file(name));
}

TEST_F(SaveDialog, TheFileTypeThatIsChosenInTheDialogCounts) {
  EXPECT_EQ(save({filterChosen(1), typed("py4.0")}), folder.file("py4.0"));
  EXPECT_EQ(save({filterChosen(1), filterChosen(0), typed("py4.0")}), folder.file("py4.0.ico"));
}

TEST_F(SaveDialog, AFileTypeOfSeveralPatternsTakesANameOfAnyOfThem) {
  filters = {kIconsAndCursors};
  for (const auto& [name, saved] :
       {std::pair("a.cur", "a.cur"), {"a.CUR", "a.CUR"}, {"a.ico", "a.ico"}, {"a.bmp", "a.bmp.ico"}})
    EXPECT_EQ(saveAs(name), folder.file(saved));
}

TEST_F(SaveDialog, ANameWithTheDefaultExtensionIsCompleteForEveryFileType) {
  filters = {{"Cursors", "*.cur"}};
  for (const auto& [name, saved] : {std::pair("a.ico", "a.ico"), {"a.cur", "a.cur"}, {"a.0", "a.0.ico"}})
    EXPECT_EQ(saveAs(name), folder.file(saved));
}

TEST_F(SaveDialog, APathThatIsTypedIsCompletedWhereItLeads) {
  const test::TempFolder elsewhere;
  std::filesystem::create_directory(folder.file("v1.0"));
  EXPECT_EQ(saveAs(elsewhere.file("py4.0")), elsewhere.file("py4.0.ico"));
  EXPECT_EQ(saveAs(elsewhere.file("new")), elsewhere.file("new.ico"));
  EXPECT_EQ(saveAs("v1.0/new"), folder.file("v1.0/new.ico"));
  EXPECT_EQ(saveAs("v1.0/py4.0"), folder.file("v1.0/py4.0.ico"));
  filters = {{"Bitmaps of icons", "icon*.bmp"}};
  EXPECT_EQ(saveAs("v1.0/icon1.bmp"), folder.file("v1.0/icon1.bmp"));
}

TEST_F(SaveDialog, TheProposedNameIsCompletedWhenItIsAccepted) {
  proposed = "py4.0";
  EXPECT_EQ(save({pressed()}), folder.file("py4.0.ico"));
}

TEST_F(SaveDialog, AProposedNameWithTheExtensionInAnyCaseIsTakenAsItIs) {
  for (const char* name : {"MULTI.ICO", "a.b.Ico"}) {
    proposed = name;
    EXPECT_EQ(save({entered()}), folder.file(name));
  }
  filters = {kAllFiles, kIcons};
  proposed = "multi.dat";
  EXPECT_EQ(save({entered()}), folder.file("multi.dat"));
  extension.clear();
  proposed = "multi";
  EXPECT_EQ(save({entered()}), folder.file("multi"));
}

TEST_F(SaveDialog, TheNameOfAFolderLeadsIntoIt) {
  for (const char* name : {"sub", "v1.0"}) {
    std::filesystem::create_directory(folder.file(name));
    for (const std::string& text : {std::string(name), std::string(name) + "/", folder.file(name)}) {
      EXPECT_EQ(saveAs(text), std::nullopt);
      EXPECT_EQ(leftIn, folder.file(name)) << text;
      EXPECT_EQ(leftText, text);
    }
    saveAs(name);
    EXPECT_EQ(leftSelected, name) << "the next key begins another name";
    EXPECT_EQ(save({typed(name), typed("py4.0")}), folder.file(std::string(name) + "/py4.0.ico"));
  }
  EXPECT_EQ(save({typed("sub"), typed(".."), typed("new")}), folder.file("new.ico"));
  EXPECT_TRUE(std::filesystem::is_empty(folder.file("sub")));
}

TEST_F(SaveDialog, AFolderOfTheCurrentDirectoryIsNoFolderElsewhere) {
  const test::TempFolder current;
  std::filesystem::create_directory(current.file("sub"));
  const QString before = QDir::currentPath();
  QDir::setCurrent(pathToText(current.path()));
  EXPECT_EQ(saveAs("sub"), folder.file("sub.ico"));
  filters = {kAllFiles};
  EXPECT_EQ(saveAs("sub"), folder.file("sub.ico"));
  QDir::setCurrent(before);
}

TEST_F(SaveDialog, TheQuestionBeforeAFileIsReplacedIsForTheCompletedName) {
  // The second name is not UTF-8.
  for (const char* name : {"py4.0", "caf\xE9.0"}) {
    const std::string file = folder.write(name + std::string(".ico"));
    EXPECT_EQ(saveAs(name, QMessageBox::No), std::nullopt);
    ASSERT_EQ(questions.size(), 1U);
    EXPECT_NE(questions[0].find(".0.ico already exists."), std::string::npos) << questions[0];
    EXPECT_EQ(leftText.substr(leftText.rfind('/') + 1), name + std::string(".ico"));
    EXPECT_EQ(saveAs(name), file);
    EXPECT_EQ(questions.size(), 1U);
    proposed = name;
    EXPECT_EQ(save({pressed()}), file);
    EXPECT_EQ(questions.size(), 1U);
    flags = 0;
    EXPECT_EQ(saveAs(name), file);
    EXPECT_EQ(questions.size(), 0U);
    flags = kFileOverwritePrompt;
  }
}

TEST_F(SaveDialog, AFileOfTheNameBeforeItIsCompletedIsNotMeant) {
  folder.write("py4.0");
  EXPECT_EQ(saveAs("py4.0"), folder.file("py4.0.ico"));
  EXPECT_TRUE(questions.empty());
  proposed = "py4.0";
  for (const Step& accepted : {pressed(), entered()}) {
    EXPECT_EQ(save({accepted}), folder.file("py4.0.ico"));
    EXPECT_TRUE(questions.empty());
  }
}

TEST_F(SaveDialog, WhatIsSelectedInTheListIsTakenAsItIs) {
  folder.write("README");
  std::filesystem::create_directory(folder.file("pictures"));
  filters = {kAllFiles};
  for (const Step& accepted : {pressed(), entered()}) {
    EXPECT_EQ(save({selected("README"), accepted}), folder.file("README"));
    EXPECT_EQ(questions.size(), 1U);
  }
  proposed = "py4.0";
  filters = {kIcons};
  EXPECT_EQ(save({selected("pictures"), pressed()}), std::nullopt);
  EXPECT_EQ(leftIn, folder.file("pictures"));
  EXPECT_EQ(leftText, "py4.0");
}

}  // namespace
}  // namespace gp
