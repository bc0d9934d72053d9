// frmGPMultiIcon over scripted ports and real files of several icons, on Qt's offscreen platform.
#pragma once

#include "colour/Colour.h"
#include "document/EditState.h"
#include "document/ui/QtDisplay.h"
#include "drawing/Drawing.h"
#include "files/Files.h"
#include "files/ui/frmGPMultiIcon.h"
#include "platform/gdi/SurfaceOps.h"
#include "platform/qt/DialogOwner.h"
#include "platform/qt/PathText.h"
#include "platform/qt/widgets/CaptionFrame.h"
#include "platform/qt/widgets/TabbedList.h"
#include "platform/qt/widgets/TextCell.h"
#include "platform/text/Paths.h"
#include "support/FakeClipboard.h"
#include "support/FakeEditor.h"
#include "support/ScriptedPorts.h"
#include "support/ShellFixture.h"
#include "support/TempFolder.h"
#include "ui/IconFiles.h"
#include "ui/Screens.h"

#include <QAccessible>
#include <QLabel>
#include <QPushButton>
#include <QTest>

#include <algorithm>
#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

namespace gp::test {

inline Told plainEntry(int size, int colorIndex) {
  return {size, 16, 4, plainIconFile(size, colorIndex).substr(6 + 16)};
}

// Five icons of the sizes that can be edited; the first one of 32 pixels is item 2.
inline const std::vector<Told> kStandard{
    plainEntry(16, 3), plainEntry(24, 9), plainEntry(32, 5), {32, 0, 32, ballImage(32)}, plainEntry(48, 12)};
// Two more of other sizes, Ref 6 and Ref 7.
inline const std::vector<Told> kAllSizes = [] {
  std::vector<Told> entries = kStandard;
  entries.push_back(plainEntry(64, 2));
  entries.push_back({128, 0, 32, ballImage(128)});
  return entries;
}();

// Boxes during which a test can act.
class WatchedBoxes final : public ScriptedBoxes {
 public:
  std::function<void()> inside;  // once, while the next box is shown

  BoxAnswer show(const std::string& text, BoxButtons buttons, BoxIcon icon, BoxAnswer suggested) override {
    if (auto action = std::exchange(inside, nullptr)) action();
    return ScriptedBoxes::show(text, buttons, icon, suggested);
  }
};

class MultiIconFormFixture : public testing::Test {
 protected:
  enum class Face { Edit, EditWithoutContainer, Add };

  struct ButtonTexts {
    const char* name;
    const char* caption;
    const char* toolTip;
  };

  void make(const std::string& path, Face face = Face::Edit) {
    file = path;
    exchange.gMultiIconFile = path;
    exchange.gAddToFile = face == Face::Add;
    if (face == Face::Edit && exchange.gMultiIconResult.empty()) exchange.gMultiIconResult = "0";
    form = std::make_unique<frmGPMultiIcon>(files.context(), display, nullptr);
  }
  void openFile(const std::string& path, Face face = Face::Edit) {
    make(path, face);
    ASSERT_TRUE(form->comeUp());
    ASSERT_TRUE(QTest::qWaitForWindowActive(form.get()));
    settle();
  }
  void open(const std::vector<Told>& entries = kStandard, Face face = Face::Edit) {
    openFile(folder.write("icons.ico", iconFileOf(entries)), face);
  }
  void openToAdd(const std::vector<Told>& entries = kStandard) {
    MakePicSize(exchange.PicCurrIcon, 32, 32);
    exchange.PicCurrIcon.fill(0x3060D0);
    exchange.lblCurrIcon = "16-color  Size: 32x32";
    open(entries, Face::Add);
  }

  template <class Widget = QWidget>
  Widget* find(const char* name) {
    auto* found = form->findChild<Widget*>(name);
    if (!found) ADD_FAILURE() << "no " << name;
    return found;
  }
  bool isShown(const char* name) { return find(name)->isVisible(); }
  TabbedList* icons() { return find<TabbedList>(exchange.gAddToFile ? "lisIcons(1)" : "lisIcons(0)"); }
  TabbedList* others() { return find<TabbedList>("lisOtherIcons"); }
  TabbedList* sequence() { return find<TabbedList>("lisReposition"); }

  // The action of a key or a click runs at once; the action of an access letter runs when its button is released.
  void settle() { QTest::qWait(1); }
  void key(Qt::Key code) {
    QTest::keyClick(form->focusWidget(), code);
    settle();
  }
  void access(Qt::Key letter) {
    QTest::keyClick(form->focusWidget(), letter, Qt::AltModifier);
    // A button that is pressed by its key stays down for a moment and only then acts.
    const auto isUp = [this] {
      return std::ranges::none_of(form->findChildren<QAbstractButton*>(),
                                  [](auto* button) { return button->isDown(); });
    };
    EXPECT_TRUE(QTest::qWaitFor(isUp));
    settle();
  }
  void click(const char* name) {
    QTest::mouseClick(find(name), Qt::LeftButton);
    settle();
  }
  void clickItem(TabbedList* list, int item) {
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(list->item(item)).center());
    settle();
  }
  void doubleClickItem(TabbedList* list, int item) {
    const QPoint place = list->visualItemRect(list->item(item)).center();
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, place);
    QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, place);
    settle();
  }

  QString accessible(const char* name, QAccessible::Text text) {
    return QAccessible::queryAccessibleInterface(find(name))->text(text);
  }
  void expectButtons(const std::vector<ButtonTexts>& expected) {
    for (const ButtonTexts& texts : expected) {
      auto* button = find<QPushButton>(texts.name);
      EXPECT_EQ(button->text().replace("&&", "\n").remove('&').replace('\n', '&'), texts.caption);
      EXPECT_EQ(button->toolTip(), texts.toolTip);
    }
  }
  QStringList enabledButtons() {
    QStringList names;
    for (const QPushButton* button : form->findChildren<QPushButton*>())
      if (button->isEnabled() && button->isVisible()) names << button->objectName();
    return names;
  }
  // The access letters of the buttons and labels of a pane, in alphabetical order.
  std::string accessLetters(const char* pane) {
    std::string letters;
    const auto note = [&letters](QString caption) {
      caption.remove("&&");
      if (caption.contains('&')) letters += caption.at(caption.indexOf('&') + 1).toUpper().toLatin1();
    };
    for (const QLabel* label : find(pane)->findChildren<QLabel*>()) note(label->text());
    for (const QPushButton* button : find(pane)->findChildren<QPushButton*>()) note(button->text());
    std::ranges::sort(letters);
    return letters;
  }
  QStringList tabOrder(int count) {
    QStringList names;
    for (int i = 0; i < count; ++i) {
      names << form->focusWidget()->objectName();
      QTest::keyClick(form->focusWidget(), Qt::Key_Tab);
    }
    return names;
  }

  TempFolder folder;
  EditState state;
  QtDisplay display;
  WatchedBoxes boxes;
  ScriptedPump pump;
  ScriptedDialogs dialogs;
  clsGPDialog dialog{dialogs};
  FakeEditor editor;
  FakeClipboard clipboard;
  ScriptedPictures pictures;
  const Context context{state, editor, display, boxes, pump};
  Document document{context};
  Colour colour{context, dialog, pictures, folder.path()};
  Drawing drawing{context, document, colour.selection, clipboard};
  Files files{context, document, drawing, dialog, folder.file("gptmp.ico")};
  MultiIconExchange& exchange = files.context().multiIcon;
  std::string file;
  std::unique_ptr<frmGPMultiIcon> form;
};

}  // namespace gp::test
