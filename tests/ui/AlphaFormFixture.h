// frmGPAlpha over scripted ports, on Qt's offscreen platform.
#pragma once

#include "alpha/ui/frmGPAlpha.h"
#include "document/EditState.h"
#include "files/Files.h"
#include "support/Rooms.h"
#include "support/TempFolder.h"

#include <QTest>
#include <QWidget>

#include <gtest/gtest.h>
#include <memory>

namespace gp::test {

// A disc with an edge that becomes transparent towards the outside.
inline IconImage discIcon(int size, bool withAlpha) {
  IconImage icon = transparentIcon(size);
  icon.alpha = AlphaMatrix(size, size, 255);
  const int middle = size / 2, radius = size * 7 / 16, soft = size / 4;
  for (int y = 0; y < size; ++y)
    for (int x = 0; x < size; ++x) {
      const int distance = (x - middle) * (x - middle) + (y - middle) * (y - middle);
      if (distance > radius * radius) continue;
      icon.image.SetPixelV(x, y, rgb(255 - x * 4, y * 5, (x * y) % 256));
      icon.mask.SetPixelV(x, y, kBlack);
      if (distance > soft * soft) icon.alpha.at(x, y) = static_cast<std::uint8_t>(40 + 3 * (x + y) % 120);
    }
  if (!withAlpha) icon.alpha = AlphaMatrix();
  return icon;
}

class AlphaFormFixture : public testing::Test {
 protected:
  std::unique_ptr<frmGPAlpha> make(const IconImage& icon, AlphaMode mode = AlphaMode::Edit) {
    auto made = std::make_unique<frmGPAlpha>(files.context(), icon, mode, nullptr);
    made->show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(made.get()));
    QTest::qWait(1);
    return made;
  }
  void open(const IconImage& icon, AlphaMode mode = AlphaMode::Edit) { form = make(icon, mode); }
  void openWithAlpha(AlphaMode mode = AlphaMode::Edit) { open(discIcon(32, true), mode); }

  template <class Widget = QWidget>
  Widget* find(const QString& name) {
    auto* found = form->findChild<Widget*>(name);
    if (!found) ADD_FAILURE() << "no " << name.toStdString();
    return found;
  }

  TempFolder folder;
  Rooms rooms;
  EditState& state = rooms.state;
  ScriptedBoxes& boxes = rooms.boxes;
  ScriptedDialogs& dialogs = rooms.dialogs;
  Files files{rooms.context, rooms.document, rooms.drawing, rooms.dialog, folder.file("gptmp.ico")};
  std::unique_ptr<frmGPAlpha> form;
};

}  // namespace gp::test
