// fraPanel(20): the search for icons on the screen, by mouse and keyboard.
#include "platform/qt/widgets/PanelFrame.h"
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
  void open() {
    start();
    shell.showPanel(SearchPanel::kNumber);
    settle();
  }
  void type(QLineEdit* field, const QString& text) {
    field->setFocus();
    field->selectAll();
    QTest::keyClicks(field, text);
    settle();
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
