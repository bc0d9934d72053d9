// The order of a side panel: title, settings with their labels in one column, and the sample directly below them.
#include "document/Containers.h"
#include "document/ui/SampleView.h"
#include "document/ui/SurfacePainting.h"
#include "effects/ConfinePanel.h"
#include "ui/FormFixture.h"

#include <QAbstractScrollArea>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>

namespace gp {
namespace {

constexpr int kGap = 8;

class PanelLooks : public test::FormFixture {
 protected:
  void startWithNew(int entry) {
    start();
    trigger("mnuFileSub", entry);
    state.current().neverSaved = false;
    const int size = state.picImage.width();
    // An icon that can be blended in.
    shell.document().arrival.fillContainer(1, transparentIcon(size), NewRecord());
    state.mIconRecs[1].neverSaved = false;
    for (int y = 0; y < size; ++y)
      for (int x = 0; x < size; ++x) {
        if ((x + y) % 5 == 0) continue;
        state.picImage.SetPixelV(x, y, rgb(x * 5, 255 - y * 5, (x * 37 + y * 11) % 256));
        state.picMask.SetPixelV(x, y, kBlack);
      }
    shell.document().editingArea.ComposeCurrentIcon();
    shell.document().editingArea.UpdatePanelFromCurrent();
  }
  void trigger(const char* control, int index) {
    find<QAction>(QString("%1(%2)").arg(control).arg(index))->trigger();
    settle();
  }
  QWidget* panel() { return find(QString("fraPanel(%1)").arg(state.screen.mActivePanel)); }
  QRect placeOf(const QString& name) { return placeOf(find(name)); }
  QRect placeOf(QWidget* widget) { return {widget->mapTo(panel(), QPoint(0, 0)), widget->size()}; }
  SampleView* sample(const char* name) { return dynamic_cast<SampleView*>(find(name)); }
  int factorOf(const char* name) { return sample(name)->place().width() / state.picImage.width(); }
  QScrollBar* scrollBar() { return panel()->findChild<QAbstractScrollArea*>()->verticalScrollBar(); }

  // The sample is enlarged by the largest whole factor for which there is space.
  void expectLargest(const char* name, int side) {
    const QSize space = sample(name)->size() - QSize(2, 2);
    const QRect place = sample(name)->place();
    EXPECT_EQ(place.width() % side, 0) << name;
    EXPECT_EQ(place.width() / side, std::min(space.width(), space.height()) / side) << name;
  }
};

TEST_F(PanelLooks, TheSampleIsDirectlyBelowTheSettingsAndFillsTheSpace) {
  struct Panel {
    int effect;
    const char* lastControl;  // null for none
    const char* sample;
  };
  constexpr Panel kPanels[] = {{14, "ckbUseSelectedColor", "picEffectsSample"},
                               {11, nullptr, "picEffectsSample"},
                               {3, "cboButtonizePattern", "picButtonize"},
                               {21, nullptr, "picImageForDisabledBtn"},
                               {23, "cboBlendIn(1)", "picBlendIn"}};
  for (const auto& [entry, side] : {std::pair{2, 32}, {3, 16}, {4, 48}}) {
    startWithNew(entry);
    for (const Panel& row : kPanels) {
      SCOPED_TRACE(row.effect);
      SCOPED_TRACE(side);
      trigger("mnuEffectsSub", row.effect);
      const QRect place = placeOf(row.sample), buttons = placeOf(panel()->findChild<QWidget*>("cmdProceed"));
      const int lineHeight = form->fontMetrics().height();
      if (row.lastControl) {
        EXPECT_LE(place.top(), placeOf(row.lastControl).bottom() + 3 * kGap + lineHeight);
        EXPECT_GT(place.top(), placeOf(row.lastControl).bottom());
      }
      EXPECT_LE(buttons.top() - place.bottom(), 2 * kGap) << "all the space down to the buttons";
      EXPECT_EQ(place.width(), panel()->width());
      expectLargest(row.sample, side);
      EXPECT_GE(sample(row.sample)->place().width(), 5 * 48);
      EXPECT_FALSE(scrollBar()->isVisible());
    }
    state.current().modified = false;
    form.reset();
  }
}

TEST_F(PanelLooks, LabelsStartInOneColumnAndControlsInAnother) {
  startWithNew(4);
  const auto expectColumns = [this](std::initializer_list<const char*> labels,
                                    std::initializer_list<const char*> controls) {
    for (const char* label : labels) EXPECT_EQ(placeOf(label).left(), 0) << label;
    for (const char* control : controls) {
      EXPECT_EQ(placeOf(control).left(), placeOf(*controls.begin()).left()) << control;
      EXPECT_EQ(placeOf(control).right(), panel()->width() - 1) << control;
      EXPECT_GT(placeOf(control).left(), kGap) << control;
    }
  };
  trigger("mnuEffectsSub3", 2);
  expectColumns({"lblConfineColors(0)", "lblConfineColors(1)", "lblConfineColors(2)", "lblConfineColors(3)"},
                {"cboConfineColors(2)", "cboConfineColors(3)"});
  trigger("mnuEffectsSub", 3);
  expectColumns({"lblButtonizePattern"}, {"cboButtonizePattern"});
  trigger("mnuRotateSubmenu", 4);
  expectColumns({"lblRotateImageAngle", "lblRotateImageSample"}, {"cboRotateImageAngle"});
  trigger("mnuFileSub", 2);
  trigger("mnuFileSub", 18);
  expectColumns({"lblCursorHotSpot", "lblCursorHotSpot(0)", "lblCursorHotSpot(1)"},
                {"cboCursorHotSpot(0)", "cboCursorHotSpot(1)"});
}

TEST_F(PanelLooks, AReductionShowsItsComposedResultFirstAndLargest) {
  startWithNew(4);
  for (int run = 0; run < 3; ++run) {
    SCOPED_TRACE(run);
    trigger("mnuEffectsSub3", run);
    EXPECT_EQ(panel()->accessibleName(), "Reduce number of colors");
    const Surface& composed = shell.effects().panel<ConfinePanel>().sample();
    const QRect result = placeOf("picConfineResult");
    for (const char* other : {"picConfineColors(0)", "picConfineColors(1)"}) {
      EXPECT_LT(result.left(), placeOf(other).left());
      EXPECT_LE(result.top(), placeOf(other).top());
      EXPECT_GE(factorOf("picConfineResult"), 3 * factorOf(other));
      EXPECT_EQ(factorOf(other), 1) << "as it is";
    }
    expectLargest("picConfineResult", 48);
    const QImage shown = find("picConfineResult")->grab().toImage();
    const QPoint corner = sample("picConfineResult")->place().topLeft();
    const int factor = factorOf("picConfineResult");
    for (int i = 0; i < 48; ++i) {
      EXPECT_EQ(shown.pixel(corner + factor * QPoint(i, i)), toRgb(composed.GetPixel(i, i))) << i;
      EXPECT_EQ(shown.pixel(corner + factor * QPoint(47 - i, i)), toRgb(composed.GetPixel(47 - i, i))) << i;
    }
    EXPECT_FALSE(scrollBar()->isVisible());
  }
}

TEST_F(PanelLooks, TheCurrentColourIsBesideTheBoxThatUsesItAndFollowsChanges) {
  startWithNew(2);
  state.mCurrentColor = rgb(1, 130, 7);
  trigger("mnuEffectsSub", 14);
  const auto shown = [this] {
    QWidget* swatch = find("picUseSelectedColor");
    return swatch->grab().toImage().pixel(swatch->rect().center());
  };
  EXPECT_TRUE(find("picUseSelectedColor")->isVisible());
  EXPECT_EQ(shown(), toRgb(rgb(1, 130, 7)));
  EXPECT_EQ(valueOf(find("picUseSelectedColor")), "RGB: 1, 130, 7");
  EXPECT_GT(placeOf("picUseSelectedColor").left(), placeOf("ckbUseSelectedColor").right());
  EXPECT_EQ(placeOf("picUseSelectedColor").right(), panel()->width() - 1);
  state.mCurrentColor = rgb(250, 0, 251);
  display.changed(DisplayPart::ColorPanel);
  EXPECT_EQ(shown(), toRgb(rgb(250, 0, 251)));
  EXPECT_EQ(valueOf(find("picUseSelectedColor")), "RGB: 250, 0, 251");
  trigger("mnuEffectsSub", 11);
  EXPECT_FALSE(find("picUseSelectedColor")->isVisible());
  trigger("mnuEffectsSub", 14);
  EXPECT_TRUE(find("picUseSelectedColor")->isVisible());
}

TEST_F(PanelLooks, AWiderTextOfABoxContinuesOnAnotherLine) {
  startWithNew(2);
  trigger("mnuEffectsSub", 14);
  auto* box = find<QCheckBox>("ckbUseSelectedColor");
  EXPECT_EQ(box->text(), "&Use currently selected color (otherwise black)");
  EXPECT_LT(box->width(), box->sizeHint().width());
  EXPECT_GE(box->height(), 2 * form->fontMetrics().height());
  EXPECT_EQ(box->height(), box->heightForWidth(box->width()));
  EXPECT_EQ(QAccessible::queryAccessibleInterface(box)->rect().size(), box->size());
  QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(box->width() - 4, box->height() - 4));
  EXPECT_TRUE(box->isChecked()) << "the second line belongs to the box";
  QTest::keyClick(form.get(), Qt::Key_U, Qt::AltModifier);
  QTest::qWait(150);
  EXPECT_FALSE(box->isChecked());
}

// A window too low for a panel shows a scroll bar; nothing is out of reach.
TEST_F(PanelLooks, WhatDoesNotFitScrolls) {
  startWithNew(4);
  trigger("mnuEffectsSub3", 2);
  QWidget* shown = panel();
  shown->setFixedHeight(220);
  settle();
  EXPECT_TRUE(scrollBar()->isVisible());
  EXPECT_GT(scrollBar()->maximum(), 0);
  find("cboConfineColors(2)")->setFocus(Qt::TabFocusReason);
  key(Qt::Key_Tab);
  EXPECT_EQ(QApplication::focusWidget(), find("cboConfineColors(3)"));
  EXPECT_TRUE(shown->rect().contains(placeOf("cboConfineColors(3)")));
  EXPECT_TRUE(shown->rect().contains(placeOf(shown->findChild<QWidget*>("cmdProceed"))));
}

}  // namespace
}  // namespace gp
