// frmDirDialog, used by mouse and keyboard.
#include "platform/qt/PathText.h"
#include "platform/qt/widgets/TextCell.h"
#include "shell/ui/FolderTree.h"
#include "shell/ui/frmDirDialog.h"
#include "support/ScriptedPorts.h"
#include "support/TempFolder.h"
#include "ui/Screens.h"

#include <QApplication>
#include <QComboBox>
#include <QFrame>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QScreen>
#include <QTest>

#include <filesystem>
#include <gtest/gtest.h>
#include <memory>

namespace gp {
namespace {

class DirDialog : public testing::Test {
 protected:
  DirDialog() {
    for (const char* name : {"B.ICO", "a.ico", "c.txt", "icons/one.ico", "icons/deep/none.txt"}) {
      folder_.makeFolder(std::filesystem::path(name).parent_path().native());
      folder_.write(name);
    }
  }
  ~DirDialog() override {
    form_.reset();
    std::filesystem::current_path(former_);
  }

  void open(const std::string& pattern = "*.ICO") {
    form_ = std::make_unique<frmDirDialog>(pattern, folder_.path(), boxes_);
    form_->show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(form_.get()));
  }
  template <class Widget = QWidget>
  Widget* find(const char* name) {
    auto* found = form_->findChild<Widget*>(name);
    if (!found) ADD_FAILURE() << "no " << name;
    return found;
  }
  void press(const char* button) { QTest::mouseClick(find<QPushButton>(button), Qt::LeftButton); }
  void key(Qt::Key code, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QWidget* focused = form_->focusWidget();
    QTest::keyClick(focused ? focused : form_.get(), code, modifiers);
  }
  std::string selectedDir() { return textToPath(find<TextCell>("lblSelectedDir")->text()); }
  QString counted() { return find<TextCell>("lblIconsInDir")->text(); }
  QStringList files() {
    QStringList names;
    auto* list = find<QListWidget>("FileListBox1");
    for (int i = 0; i < list->count(); ++i) names << list->item(i)->text();
    return names;
  }

  std::filesystem::path former_ = std::filesystem::current_path();
  test::TempFolder folder_;
  test::ScriptedBoxes boxes_;
  std::unique_ptr<frmDirDialog> form_;
};

TEST_F(DirDialog, ComesUpInTheStartFolderWithItsFilesOfThePattern) {
  open();
  EXPECT_EQ(form_->windowTitle(), "Directory dialog");
  EXPECT_EQ(selectedDir(), folder_.path());
  EXPECT_EQ(files(), (QStringList{"a.ico", "B.ICO"}));
  EXPECT_EQ(counted(), "ICO files in dir:  2");
  EXPECT_EQ(find<QComboBox>("cboFilePattern")->currentText(), "*.ICO");
  EXPECT_EQ(find<QLabel>("lblFilePattern")->text(), "Display file pattern:");
  EXPECT_EQ(find<QPushButton>("cmdShrink")->toolTip(), "Display only core controls");
  EXPECT_EQ(find<QPushButton>("cmdExtend")->toolTip(), "Extend to display others");
  EXPECT_NE(find("Frame1"), nullptr);
  EXPECT_EQ(find<QComboBox>("DriveListBox1")->itemText(0), "/");
}

TEST_F(DirDialog, EnterOpensTheFolderAndBackspaceGoesUp) {
  open();
  EXPECT_EQ(form_->focusWidget(), find("DirListBox1"));
  key(Qt::Key_Down);
  EXPECT_EQ(selectedDir(), folder_.path());
  key(Qt::Key_Return);
  EXPECT_EQ(selectedDir(), folder_.file("icons"));
  EXPECT_EQ(files(), QStringList{"one.ico"});
  EXPECT_EQ(counted(), "ICO files in dir:  1");
  EXPECT_EQ(std::filesystem::current_path().native(), folder_.file("icons"));
  EXPECT_TRUE(form_->isVisible());
  key(Qt::Key_Backspace);
  EXPECT_EQ(selectedDir(), folder_.path());
}

TEST_F(DirDialog, EnterOnTheOpenFolderIsOk) {
  open();
  key(Qt::Key_Down);
  key(Qt::Key_Return);
  ASSERT_TRUE(form_->isVisible()) << "opened";
  key(Qt::Key_Return);
  EXPECT_FALSE(form_->isVisible());
  EXPECT_EQ(form_->result(), folder_.file("icons"));
}

TEST_F(DirDialog, ADoubleClickOpensAFolder) {
  open();
  auto* tree = find<FolderTree>("DirListBox1");
  const auto found = tree->findItems("icons", Qt::MatchExactly | Qt::MatchRecursive);
  ASSERT_EQ(found.size(), 1);
  tree->scrollToItem(found.first());
  const QPoint where = tree->visualItemRect(found.first()).center();
  QTest::mouseClick(tree->viewport(), Qt::LeftButton, {}, where);
  EXPECT_EQ(selectedDir(), folder_.path());
  QTest::mouseDClick(tree->viewport(), Qt::LeftButton, {}, where);
  EXPECT_EQ(selectedDir(), folder_.file("icons"));
}

TEST_F(DirDialog, AFolderThatIsGoneLeavesTheFormerOne) {
  open();
  std::filesystem::remove_all(folder_.file("icons"));
  key(Qt::Key_Down);
  key(Qt::Key_Return);
  EXPECT_EQ(selectedDir(), folder_.path());
}

TEST_F(DirDialog, ANameThatIsNoUtf8CanBeOpenedAndChosen) {
  const std::string odd = folder_.makeFolder("icons/caf\xE9");
  folder_.write("icons/caf\xE9/x.ico");
  form_ = std::make_unique<frmDirDialog>("*.ICO", odd, boxes_);
  form_->show();
  key(Qt::Key_Backspace);
  EXPECT_EQ(selectedDir(), folder_.file("icons"));
  key(Qt::Key_Down);
  key(Qt::Key_Return);
  EXPECT_EQ(selectedDir(), odd);
  press("cmdOK");
  EXPECT_EQ(form_->result(), odd);
}

TEST_F(DirDialog, ADriveIsEnteredFromItsList) {
  open();
  auto* drives = find<QComboBox>("DriveListBox1");
  drives->setFocus();
  drives->setCurrentIndex(1);
  key(Qt::Key_Home);
  EXPECT_EQ(selectedDir(), "/");
  EXPECT_EQ(drives->currentText(), "/");
}

TEST_F(DirDialog, AnotherPatternShowsOtherFiles) {
  open();
  auto* patterns = find<QComboBox>("cboFilePattern");
  patterns->setFocus();
  key(Qt::Key_Down);
  EXPECT_EQ(patterns->currentText(), "*.*");
  EXPECT_EQ(files(), (QStringList{"a.ico", "B.ICO", "c.txt"}));
  EXPECT_EQ(counted(), "Files in dir:3");
}

TEST_F(DirDialog, OkGivesTheFolderAndClosesTheForm) {
  open();
  EXPECT_EQ(form_->result(), "");
  press("cmdOK");
  EXPECT_FALSE(form_->isVisible());
  EXPECT_EQ(form_->result(), folder_.path());
}

TEST_F(DirDialog, OkInAFolderWithoutFilesAsksAndNoStays) {
  open();
  key(Qt::Key_Down);
  key(Qt::Key_Return);
  key(Qt::Key_Down);
  key(Qt::Key_Return);
  EXPECT_EQ(selectedDir(), folder_.file("icons/deep"));
  const std::string question = "There is no ICO files directly in selected folder.\nProceed still?";
  boxes_.expectAsked(question, BoxAnswer::No);
  press("cmdOK");
  EXPECT_TRUE(form_->isVisible());
  EXPECT_EQ(form_->result(), "");
  boxes_.expectAsked(question, BoxAnswer::Yes);
  press("cmdOK");
  EXPECT_FALSE(form_->isVisible());
  EXPECT_EQ(form_->result(), folder_.file("icons/deep"));
}

TEST_F(DirDialog, CancelAndEscapeGiveNothing) {
  open();
  press("cmdCancel");
  EXPECT_FALSE(form_->isVisible());
  EXPECT_EQ(form_->result(), "");
  open();
  key(Qt::Key_Escape);
  EXPECT_FALSE(form_->isVisible());
  EXPECT_EQ(form_->result(), "");
}

TEST_F(DirDialog, ShrinkTakesTheFileListOutOfViewAndExtendBringsItBack) {
  open();
  const QSize designed = form_->size();
  press("cmdShrink");
  EXPECT_EQ(form_->height(), 300);
  EXPECT_EQ(form_->width(), designed.width());
  EXPECT_FALSE(find("FileListBox1")->isVisible());
  EXPECT_FALSE(find("cmdShrink")->isVisible());
  EXPECT_TRUE(find("cmdExtend")->isVisible());
  const QPoint middle = form_->screen()->availableGeometry().center();
  EXPECT_LE((form_->frameGeometry().center() - middle).manhattanLength(), 2);
  press("cmdExtend");
  EXPECT_EQ(form_->size(), designed);
  EXPECT_TRUE(find("FileListBox1")->isVisible());
  EXPECT_TRUE(find("cmdShrink")->isVisible());
  EXPECT_FALSE(find("cmdExtend")->isVisible());
  EXPECT_LE((form_->frameGeometry().center() - middle).manhattanLength(), 2);
}

TEST_F(DirDialog, TabFollowsTheEyeThroughEveryControl) {
  open();
  std::vector<QString> order;
  for (int i = 0; i < 7; ++i) {
    order.push_back(form_->focusWidget()->objectName());
    QTest::keyClick(form_->focusWidget(), Qt::Key_Tab);
  }
  EXPECT_EQ(order, (std::vector<QString>{"DirListBox1", "cmdOK", "cmdCancel", "cmdShrink", "cboFilePattern",
                                         "FileListBox1", "DriveListBox1"}));
}

TEST_F(DirDialog, LooksRight) {
  for (int i = 0; i < 40; ++i)
    folder_.write("a rather long name of an icon, the number of which is " + std::to_string(i) + ".ico");
  folder_.makeFolder("Photographs and drawings");
  test::saveInBothThemes("frmDirDialog",
                         [&] { return std::make_unique<frmDirDialog>("*.ICO", folder_.file("icons/.."), boxes_); });
  open();
  press("cmdShrink");
  test::savePicture(*form_, "frmDirDialog-shrunk");
}

}  // namespace
}  // namespace gp
