// The forms with fonts of 9, 12 and 14 points, in light and dark: no text is cut.
#include "alpha/AlphaConversion.h"
#include "document/Containers.h"
#include "document/PanelNumbers.h"
#include "files/ui/frmGPHeaderDiff.h"
#include "shell/ui/frmDirDialog.h"
#include "shell/ui/frmGPAbout.h"
#include "ui/AlphaFormFixture.h"
#include "ui/FormFixture.h"
#include "ui/IconFiles.h"
#include "ui/MultiIconFormFixture.h"
#include "ui/Screens.h"
#include "ui/WholeTexts.h"

#include <QScrollArea>
#include <QScrollBar>

#include <algorithm>

namespace gp {
namespace {

using test::expectAllTextsAreWhole;
using test::FontOf;
using test::kPoints;

class LargeFonts : public test::FormFixture {
 protected:
  ~LargeFonts() override { QApplication::setPalette(QPalette()); }

  struct Panel {
    const char* name;
    const char* control;
    int index;
  };
  static constexpr Panel kPanels[] = {
      {"shadowed", "mnuEffectsSub", 14},    {"buttonize", "mnuEffectsSub", 3},   {"disabled", "mnuEffectsSub", 21},
      {"confine-256", "mnuEffectsSub3", 0}, {"confine-16", "mnuEffectsSub3", 1}, {"confine-2", "mnuEffectsSub3", 2},
      {"rotate", "mnuRotateSubmenu", 4},    {"cursor", "mnuFileSub", 18},        {"sphere", "mnuEffectsSub", 2},
      {"gradient", "mnuEffectsSub", 4},     {"brightness", "mnuEffectsSub", 6},  {"sharpen", "mnuEffectsSub", 7},
      {"antialias", "mnuEffectsSub", 8},    {"theme", "mnuEffectsSub", 9},       {"cast", "mnuEffectsSub", 16},
      {"swap", "mnuEffectsSub", 20},        {"blend", "mnuEffectsSub", 23},      {"texture", "mnuEffectsSub", 24},
      {"resize", "mnuEffectsSub1", 2},      {"text", "mnuEffectsSub", 0},        {"preview", "mnuEnquiryCurrent", 7}};

  void trigger(const char* control, int index) {
    find<QAction>(QString("%1(%2)").arg(control).arg(index))->trigger();
    settle();
  }
  // A ring of many colours.
  void startWithRing() {
    start();
    trigger("mnuFileSub", 2);
    state.current().neverSaved = false;
    for (int y = 0; y < 32; ++y)
      for (int x = 0; x < 32; ++x) {
        const int distance = (x - 16) * (x - 16) + (y - 16) * (y - 16);
        if (distance > 180 || distance < 60) continue;
        state.picImage.SetPixelV(x, y, rgb(255 - x * 7, y * 7, (x * y * 3) % 256));
        state.picMask.SetPixelV(x, y, kBlack);
      }
    shell.document().editingArea.ComposeCurrentIcon();
    shell.document().editingArea.UpdatePanelFromCurrent();
    shell.document().editingArea.MagnifyIcon();
    // An icon that can be blended in.
    shell.document().arrival.fillContainer(1, transparentIcon(32), NewRecord());
    state.mIconRecs[1].neverSaved = false;
    settle();
  }
  void look(const QString& name, int points, const char* theme) {
    settle();
    expectAllTextsAreWhole(*form);
    screenshot(QString("font-%1-%2%3").arg(points).arg(name, theme));
  }
  template <class Check>
  void inEachFontAndTheme(Check check) {
    for (const int points : kPoints)
      for (const char* theme : {"", "-dark"}) {
        SCOPED_TRACE(std::to_string(points) + " points" + theme);
        const FontOf font(points);
        QApplication::setPalette(*theme ? test::darkPalette() : QPalette());
        check(points, theme);
        state.current().modified = false;
        form.reset();
      }
  }
};

TEST_F(LargeFonts, TheMainFormWithEachChartShowsItsTextsWhole) {
  inEachFontAndTheme([this](int points, const char* theme) {
    start();
    look("empty", points, theme);
    click("imgGet256ColorChart");
    look("mixer", points, theme);
    click("imgGetDirectEntryColor");
    look("entry", points, theme);
    EXPECT_EQ(find("fraColorMixer")->height(), find("fraColorMixer")->sizeHint().height()) << "all of the mixer";
  });
}

TEST_F(LargeFonts, EachPanelShowsItsTextsWhole) {
  inEachFontAndTheme([this](int points, const char* theme) {
    startWithRing();
    for (const Panel& panel : kPanels) {
      SCOPED_TRACE(panel.name);
      trigger(panel.control, panel.index);
      ASSERT_NE(state.screen.mActivePanel, kColorPanel);
      look(panel.name, points, theme);
      const auto* area = find(QString("fraPanel(%1)").arg(state.screen.mActivePanel))->findChild<QScrollArea*>();
      EXPECT_FALSE(area->verticalScrollBar()->isVisible());
      EXPECT_LE(area->widget()->minimumSizeHint().width(), area->viewport()->width());
    }
  });
}

// Four rows of icons are visible in each font.
TEST_F(LargeFonts, ThePanelsOfExtractionShowTheirTextsWhole) {
  const std::string icons = folder.makeFolder("icons");
  for (int i = 0; i < 60; ++i)
    folder.write("icons/icon " + std::to_string(i) + ".ico", test::plainIconFile(i % 3 ? 32 : 16, i % 16));
  folder.write("icons/bad.ico", "no icon");
  const auto expectFits = [this](int panel) {
    const auto* area = find(QString("fraPanel(%1)").arg(panel))->findChild<QScrollArea*>();
    EXPECT_FALSE(area->verticalScrollBar()->isVisible());
    EXPECT_LE(area->widget()->minimumSizeHint().width(), area->viewport()->width());
  };
  inEachFontAndTheme([&](int points, const char* theme) {
    start();
    form->resize(100, 100);
    dialogs.paths = {icons};
    trigger("mnuFileSub", 8);
    look("icons-list", points, theme);
    expectFits(kIconsListPanel);
    const ListGrid& grid = shell.extraction().list.grid();
    EXPECT_LE(grid.iconPlace(kCellsOnPage - 1).top + 32, grid.baseHeight());
    shell.showPanel(SearchPanel::kNumber);
    look("search", points, theme);
    expectFits(SearchPanel::kNumber);
    shell.showPanel(kColorPanel);
  });
}

TEST_F(LargeFonts, ThePreviewWithAlphaEffectsShowsItsTextsWhole) {
  inEachFontAndTheme([this](int points, const char* theme) {
    start();
    IconImage icon = transparentIcon(48);
    icon.alpha = AlphaMatrix(48, 48, 255);
    for (int y = 0; y < 48; ++y)
      for (int x = 0; x < 48; ++x) {
        const int distance = (x - 24) * (x - 24) + (y - 24) * (y - 24);
        if (distance >= 576) continue;
        icon.image.SetPixelV(x, y, rgb(220, 60 + x * 2, 30));
        icon.mask.SetPixelV(x, y, kBlack);
        icon.alpha.at(x, y) = static_cast<std::uint8_t>(std::min(255, (576 - distance) * 2 / 3 + 1));
      }
    IconContainerRec record = recordWithAlpha(NewRecord());
    record.neverSaved = false;
    shell.document().arrival.arrive(icon, record);
    settle();
    trigger("mnuEnquiryCurrent", 10);
    ASSERT_EQ(state.screen.mActivePanel, 21);
    look("preview-alpha", points, theme);
    const auto* area = find("fraPanel(21)")->findChild<QScrollArea*>();
    EXPECT_FALSE(area->verticalScrollBar()->isVisible());
    EXPECT_LE(area->widget()->minimumSizeHint().width(), area->viewport()->width());
  });
}

// With a font as most desktops have it, the form is as small as it always was.
TEST_F(LargeFonts, TheSmallestSizeGrowsWithTheFontOnly) {
  int width = 0, height = 0;
  for (const int points : kPoints) {
    const FontOf font(points);
    start();
    form->resize(100, 100);
    if (points == 9) {
      EXPECT_EQ(form->size(), QSize(793, 576));
      EXPECT_EQ(find("fraPanel(0)")->width(), 264);
    }
    EXPECT_GE(form->width(), width);
    EXPECT_GE(form->height(), height);
    EXPECT_GE(find("picDispContainer")->width(), 400);
    EXPECT_GE(find("picDispContainer")->height(), 400);
    width = form->width();
    height = form->height();
    form.reset();
  }
  EXPECT_GT(width, 793);
}

TEST_F(LargeFonts, TheOtherFormsShowTheirTextsWhole) {
  inEachFontAndTheme([this](int points, const char* theme) {
    frmGPAbout about(system, boxes, nullptr);
    frmDirDialog folders("*.ico", folder.path(), boxes);
    for (QWidget* shown : {static_cast<QWidget*>(&about), static_cast<QWidget*>(&folders)}) {
      shown->show();
      ASSERT_TRUE(QTest::qWaitForWindowActive(shown));
      expectAllTextsAreWhole(*shown);
      test::savePicture(*shown, QString("font-%1-%2%3").arg(points).arg(shown->objectName(), theme));
    }
  });
}

class LargeFontsOfIconForms : public test::MultiIconFormFixture {};

TEST_F(LargeFontsOfIconForms, TheBrowserAndTheHeadersShowTheirTextsWhole) {
  for (const int points : kPoints) {
    SCOPED_TRACE(points);
    const FontOf font(points);
    open();
    expectAllTextsAreWhole(*form);
    click("cmdReposition(0)");
    expectAllTextsAreWhole(*form);
    form.reset();
    exchange.gMultiIconResult.clear();
    openToAdd();
    expectAllTextsAreWhole(*form);
    test::savePicture(*form, QString("font-%1-add").arg(points));
    form.reset();
    frmGPHeaderDiff headers(files.context(), display, nullptr);
    headers.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&headers));
    settle();
    expectAllTextsAreWhole(headers);
    test::savePicture(headers, QString("font-%1-headers").arg(points));
  }
}

class LargeFontsOfAlpha : public test::AlphaFormFixture {};

TEST_F(LargeFontsOfAlpha, TheAlphaScreenShowsItsTextsWholeAndFitsASmallScreen) {
  constexpr QSize kSmallScreen(800, 600);
  constexpr int kTitleBar = 30;
  for (const int points : kPoints) {
    SCOPED_TRACE(points);
    const FontOf font(points);
    openWithAlpha();
    expectAllTextsAreWhole(*form);
    EXPECT_LE(form->width(), kSmallScreen.width());
    EXPECT_LE(form->height() + kTitleBar, kSmallScreen.height());
    test::saveInBothThemes(QString("font-%1-alpha").arg(points), [&] { return make(test::discIcon(48, true)); });
  }
}

}  // namespace
}  // namespace gp
