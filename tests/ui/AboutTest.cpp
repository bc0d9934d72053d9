// frmGPAbout as start-up picture and as form.
#include "shell/ScreenInformation.h"
#include "shell/ui/frmGPAbout.h"
#include "support/FakeMachine.h"
#include "support/ScriptedPorts.h"
#include "ui/Screens.h"

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

namespace gp {
namespace {

TEST(AboutForm, TellsNameVersionAndLogoUnderTheTitleItIsFoundBy) {
  test::FakeSystem system;
  test::ScriptedBoxes boxes;
  frmGPAbout form(system, boxes, nullptr);
  EXPECT_EQ(form.windowTitle(), "Glimmerpane By Zorvex Lattice");
  EXPECT_TRUE(form.isModal());
  EXPECT_EQ(form.findChild<QLabel*>("lblName")->text(), "Glimmerpane");
  EXPECT_EQ(form.findChild<QLabel*>("lblVersion")->text(), "Version " + QApplication::applicationVersion());
  EXPECT_EQ(form.findChild<QLabel*>("picLogo")->pixmap().deviceIndependentSize(), QSizeF(64, 64));
  test::saveInBothThemes("frmGPAbout", [&] { return std::make_unique<frmGPAbout>(system, boxes, nullptr); });
}

TEST(AboutForm, ScreenInformationIsOneBox) {
  test::FakeSystem system;
  test::ScriptedBoxes boxes;
  frmGPAbout form(system, boxes, nullptr);
  form.show();
  boxes.expectTold(screenInformation(system), BoxIcon::Information);
  auto* information = form.findChild<QPushButton*>("CmdScreenInfo");
  EXPECT_EQ(information->text().remove('&'), "Screen Information");
  information->click();
  EXPECT_TRUE(boxes.done());
  EXPECT_TRUE(form.isVisible());
}

TEST(AboutForm, EnterAndEscapeCloseIt) {
  test::FakeSystem system;
  test::ScriptedBoxes boxes;
  for (const int key : {Qt::Key_Return, Qt::Key_Escape}) {
    frmGPAbout form(system, boxes, nullptr);
    form.show();
    QTest::keyClick(&form, static_cast<Qt::Key>(key));
    EXPECT_FALSE(form.isVisible());
  }
}

TEST(AboutForm, TheStartUpPictureHasNoButtonsAndDoesNotWait) {
  frmGPAbout picture;
  picture.showAtStart();
  EXPECT_TRUE(picture.isVisible());
  EXPECT_FALSE(picture.isModal());
  EXPECT_EQ(picture.windowTitle(), "Glimmerpane By Zorvex Lattice");
  EXPECT_TRUE(picture.findChildren<QAbstractButton*>().isEmpty());
  test::saveInBothThemes("frmGPAbout-start", [] { return std::make_unique<frmGPAbout>(); });
  picture.close();
  EXPECT_FALSE(picture.isVisible());
}

}  // namespace
}  // namespace gp
