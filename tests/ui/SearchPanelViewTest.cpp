// fraPanel(20): the search for icons on the screen, by mouse and keyboard, and while it runs.
#include "document/PanelNumbers.h"
#include "platform/qt/widgets/PanelFrame.h"
#include "support/PeBytes.h"
#include "ui/FormFixture.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>

namespace gp {
namespace {

class SearchPanelViewTest : public test::FormFixture {
 protected:
  SearchPanel& search() { return shell.extraction().search; }
  QWidget* frame() { return find("fraPanel(20)"); }
  template <class Widget = QWidget>
  Widget* inFrame(const char* name) {
    auto* found = frame()->findChild<Widget*>(name);
    if (!found) ADD_FAILURE() << "no " << name;
    return found;
  }
  QLineEdit* folderField(int i) { return find<QLineEdit>(QString("txbSearchExeDir(%1)").arg(i)); }
  QPushButton* proceed() { return inFrame<QPushButton>("cmdProceed"); }
  QPushButton* stop() { return find<QPushButton>("cmdStopBrowse"); }
  QString progress() { return valueOf(inFrame("lblSearchExeDir(2)")); }
  void open() {
    start();
    find<QAction>("mnuExtractSub(7)")->trigger();
    settle();
  }
  void type(QLineEdit* field, const QString& text) {
    field->setFocus();
    field->selectAll();
    QTest::keyClicks(field, text);
    settle();
  }
  // Opens the panel on a folder with programs without icons, and an empty target.
  void openOnTree() {
    open();
    folder.makeFolder("tree/sub");
    folder.makeFolder("out");
    for (const char* name : {"tree/a.exe", "tree/b.exe", "tree/sub/c.exe"}) folder.write(name, "no program");
    type(folderField(0), QString::fromStdString(folder.path()) + "/tree");
    type(folderField(1), QString::fromStdString(folder.path()) + "/out");
  }
  // Runs `action` at the first pump of a search.
  void whileSearching(const std::function<void()>& action) {
    bool ran = false;
    pump.inside = [&] { once(action, ran); };
    click(proceed());
    EXPECT_TRUE(ran) << "no pump in the search";
  }
  void once(const std::function<void()>& action, bool& ran) {
    if (!search().isRunning()) {
      pump.inside = [this, &action, &ran] { once(action, ran); };
      return;
    }
    ran = true;
    action();
  }
};

TEST_F(SearchPanelViewTest, ThePanelHasItsFieldsTicksAndButtons) {
  open();
  EXPECT_TRUE(frame()->isVisible());
  EXPECT_EQ(qobject_cast<PanelFrame*>(frame())->title(), "Search & extract from exe files");
  EXPECT_TRUE(folderField(0)->hasFocus());
  EXPECT_EQ(find("cmdInvokeSearchPath(0)")->toolTip(), "Browse folder to search in");
  EXPECT_EQ(find<QLineEdit>("txbMaxIcons")->text(), "1000");
  EXPECT_FALSE(stop()->isVisible());
  EXPECT_TRUE(proceed()->isEnabled());
  EXPECT_EQ(inFrame<QListView>("lsbFoundFiles")->model()->rowCount(), 0);
}

TEST_F(SearchPanelViewTest, TheFieldsReachTheSearch) {
  open();
  type(folderField(0), "/some/folder");
  type(folderField(1), "/other");
  EXPECT_EQ(search().folder(0), "/some/folder");
  EXPECT_EQ(search().folder(1), "/other");
  for (int i = 0; i < SearchPanel::kTicks; ++i) {
    EXPECT_FALSE(search().tick(i));
    click(QString("ckbExtractEXE(%1)").arg(i));
    EXPECT_TRUE(search().tick(i));
  }
}

TEST_F(SearchPanelViewTest, TheFolderButtonsAskForAFolder) {
  open();
  for (int i = 0; i < SearchPanel::kFolders; ++i) {
    const std::string chosen = folder.makeFolder("chosen" + std::to_string(i));
    dialogs.paths = {chosen};
    click(QString("cmdInvokeSearchPath(%1)").arg(i));
    EXPECT_EQ(folderField(i)->text().toStdString(), chosen);
    EXPECT_EQ(search().folder(i), chosen);
  }
}

TEST_F(SearchPanelViewTest, TheMaximumTakesDigitsAndGoesBackToTheLastValidNumber) {
  open();
  auto* maximum = find<QLineEdit>("txbMaxIcons");
  type(maximum, "1x2-3");
  EXPECT_EQ(maximum->text(), "123");
  EXPECT_EQ(search().maximum(), 123);
  type(maximum, "0");
  folderField(0)->setFocus();
  settle();
  EXPECT_EQ(maximum->text().toInt(), search().maximum());
  EXPECT_GT(search().maximum(), 0);
  maximum->setFocus();
  maximum->selectAll();
  key(Qt::Key_Backspace);
  EXPECT_EQ(maximum->text(), "") << "another number can be typed";
  folderField(0)->setFocus();
  settle();
  EXPECT_EQ(maximum->text().toInt(), search().maximum());
}

TEST_F(SearchPanelViewTest, WithoutFoldersThereIsAMessage) {
  open();
  boxes.expectTold("Source directory not entered yet", BoxIcon::None);
  key(Qt::Key_Return);
  EXPECT_TRUE(boxes.done());
  type(folderField(0), "/tmp");
  boxes.expectTold("Save to directory not entered yet", BoxIcon::None);
  click(proceed());
  EXPECT_TRUE(boxes.done());
}

TEST_F(SearchPanelViewTest, WhileItRunsOnlyStopAndCloseCanBePressed) {
  openOnTree();
  whileSearching([this] {
    EXPECT_TRUE(stop()->isVisible());
    EXPECT_TRUE(stop()->isDefault());
    EXPECT_TRUE(stop()->hasFocus()) << "Proceed had it";
    EXPECT_FALSE(proceed()->isEnabled());
    for (int i = 0; i < SearchPanel::kFolders; ++i) {
      EXPECT_TRUE(folderField(i)->isReadOnly());
      EXPECT_FALSE(indexed("cmdInvokeSearchPath", i)->isEnabled());
    }
    EXPECT_EQ(progress(), "In progress... (To halt click Stop)");
  });
  EXPECT_FALSE(stop()->isVisible());
  EXPECT_TRUE(proceed()->isEnabled());
  EXPECT_TRUE(proceed()->isDefault());
  EXPECT_TRUE(proceed()->hasFocus());
  EXPECT_FALSE(folderField(0)->isReadOnly());
  EXPECT_EQ(progress(), "Total: 0 icons");
  EXPECT_EQ(valueOf(inFrame("lblForExtendedFrame")), "");
}

TEST_F(SearchPanelViewTest, StopByMouseAndByKeyEndsTheSearchAndKeepsThePanel) {
  openOnTree();
  const auto program = test::peWith({test::iconOf(1, {}), test::groupOf(1, {{}})});
  folder.write("tree/a.exe", std::string(program.begin(), program.end()));
  const std::function<void()> ways[] = {
      [this] { QTest::mouseClick(stop(), Qt::LeftButton); },
      [this] { QTest::keyClick(stop(), Qt::Key_Escape); },
      [this] { QTest::keyClick(folderField(0), Qt::Key_Escape); },
      [this] { QTest::keyClick(folderField(0), Qt::Key_Return); },
      [this] { QTest::keyClick(stop(), Qt::Key_Space); },
  };
  for (const auto& way : ways) {
    whileSearching(way);
    EXPECT_FALSE(search().isRunning());
    EXPECT_TRUE(search().foundFiles().empty()) << "it went on after Stop";
    EXPECT_EQ(state.screen.mActivePanel, SearchPanel::kNumber);
    EXPECT_TRUE(proceed()->isEnabled());
  }
  click(proceed());
  EXPECT_EQ(search().foundFiles().size(), 1u) << "a search that is not stopped";
  key(Qt::Key_Escape);
  EXPECT_EQ(state.screen.mActivePanel, kColorPanel);
}

TEST_F(SearchPanelViewTest, ClosingThePanelStopsTheSearch) {
  openOnTree();
  whileSearching([this] { QTest::mouseClick(inFrame("cmdCancel"), Qt::LeftButton); });
  EXPECT_FALSE(search().isRunning());
  EXPECT_EQ(state.screen.mActivePanel, kColorPanel);
}

TEST_F(SearchPanelViewTest, EveryControlIsNamedAndTabFollowsTheEye) {
  open();
  const auto name = [](QWidget* widget) {
    return QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name);
  };
  EXPECT_EQ(name(folderField(0)), "Search in");
  EXPECT_EQ(name(folderField(1)), "Save to");
  EXPECT_EQ(name(find("cmdInvokeSearchPath(0)")), "Browse folder to search in");
  EXPECT_EQ(name(find("cmdInvokeSearchPath(1)")), "Browse folder to save to");
  EXPECT_EQ(name(find("ckbExtractEXE(0)")), "Incl Subdir");
  EXPECT_EQ(name(find("ckbExtractEXE(1)")), "Small icons");
  EXPECT_EQ(name(find("ckbExtractEXE(2)")), "Add serial prefix to file name");
  EXPECT_EQ(name(find("txbMaxIcons")), "Max");
  EXPECT_EQ(name(find("lsbFoundFiles")), "Files with icons");
  for (const char* control : {"txbSearchExeDir(0)", "cmdInvokeSearchPath(0)", "txbSearchExeDir(1)",
                              "cmdInvokeSearchPath(1)", "ckbExtractEXE(0)", "ckbExtractEXE(1)", "ckbExtractEXE(2)",
                              "txbMaxIcons", "lsbFoundFiles", "cmdProceed", "cmdCancel"}) {
    ASSERT_NE(QApplication::focusWidget(), nullptr);
    EXPECT_EQ(QApplication::focusWidget()->objectName(), control);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  }
}

}  // namespace
}  // namespace gp
