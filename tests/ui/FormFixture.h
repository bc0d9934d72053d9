// The main form over scripted ports, on Qt's offscreen platform.
#pragma once

#include "document/ui/QtDisplay.h"
#include "platform/qt/PathText.h"
#include "platform/qt/QtTextDrawing.h"
#include "shell/Shell.h"
#include "shell/ui/frmGPEdit.h"
#include "support/FakeClipboard.h"
#include "support/FakeMachine.h"
#include "support/FoldersIn.h"
#include "support/ScriptedPorts.h"
#include "support/ShellFixture.h"
#include "support/TempFolder.h"

#include <QAccessible>
#include <QApplication>
#include <QDir>
#include <QTest>

#include <string>

namespace gp::test {

class FormFixture : public testing::Test {
 protected:
  KeptDirectory directory;
  TempFolder folder;
  ScriptedBoxes boxes;
  ScriptedDialogs dialogs;
  ScriptedPump pump;
  FakeSystem system;
  FakeProcesses processes;
  FakeClipboard clipboard;
  ScriptedPictures pictures;
  QtTextDrawing textDrawing;
  FakeTimer timer;
  FakeFileTypeIcons fileTypes;
  EditState state;
  QtDisplay display;
  Shell shell{state, Ports{boxes, dialogs, pump, system, processes, clipboard, pictures, textDrawing, timer, fileTypes},
              display, test::foldersIn(folder.path())};
  std::unique_ptr<frmGPEdit> form;

  // Shows the form as app/ does, and waits for its first Activate.
  void start(const std::string& commandLine = "") {
    form = std::make_unique<frmGPEdit>(shell, display, commandLine);
    shell.formLoad();
    form->show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(form.get()));
    settle();
  }
  void settle() { QTest::qWait(1); }
  void startWithIcon(int size, int colorIndex = 3) { start(folder.write("icon.ico", plainIconFile(size, colorIndex))); }

  template <class Widget = QWidget>
  Widget* find(const QString& name) {
    auto* found = form->findChild<Widget*>(name);
    if (!found) ADD_FAILURE() << "no " << name.toStdString();
    return found;
  }
  QWidget* indexed(const char* control, int index) { return find(QString("%1(%2)").arg(control).arg(index)); }
  void click(QWidget* widget, Qt::MouseButton button = Qt::LeftButton) {
    QTest::mouseClick(widget, button);
    settle();
  }
  void click(const QString& name) { click(find(name)); }
  void key(int code, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QWidget* focused = QApplication::focusWidget();
    QTest::keyClick(focused ? focused : form.get(), static_cast<Qt::Key>(code), modifiers);
    settle();
  }
  // The centre of an icon pixel on picDisp.
  QPoint middleOf(int x, int y) const {
    const int m = state.gMagnification;
    return {x * m + m / 2, y * m + m / 2};
  }
  static QString valueOf(QWidget* widget) {
    return QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Value);
  }
  void screenshot(const QString& name) const {
    QDir().mkpath(GP_BINARY_DIR "/screens");
    EXPECT_TRUE(form->grab().save(QString(GP_BINARY_DIR "/screens/%1.png").arg(name)));
  }
};

}  // namespace gp::test
