// Checks that every kind of control shows the keyboard focus by the same ring, in light and dark windows.
#include "colour/ui/MixSwatch.h"
#include "platform/qt/FocusRing.h"
#include "platform/qt/widgets/PictureButton.h"
#include "platform/qt/widgets/TabbedList.h"
#include "platform/qt/widgets/WrappedCheckBox.h"
#include "ui/Contrast.h"
#include "ui/FormFixture.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QSpinBox>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <functional>

namespace gp {
namespace {

using test::contrast;
using test::differenceOf;
using test::kLeastContrast;
using test::seen;

constexpr int kWindows[] = {239, 53, 0};
constexpr int kRing = 2;

struct Kind {
  const char* name;
  std::function<QWidget*(QWidget* parent)> make;
};

template <class Widget>
QWidget* plain(QWidget* parent) {
  return new Widget(parent);
}
template <class Button>
QWidget* labelled(QWidget* parent) {
  return new Button("Text of it", parent);
}
QWidget* list(QWidget* parent, bool isEditable) {
  auto* combo = new QComboBox(parent);
  combo->addItems({"One entry", "Another"});
  combo->setEditable(isEditable);
  return combo;
}
QWidget* items(QWidget* parent) {
  auto* shown = new TabbedList(parent, "list", "List", {30});
  shown->setItems({"One\titem", "Another\titem"});
  shown->setSelected(1);
  return shown;
}

const std::vector<Kind> kKinds = {
    {"push button", labelled<QPushButton>},
    {"flat button",
     [](QWidget* p) {
       return new PictureButton(p, "button", {"save", "Save", 24});
     }},
    {"chosen flat button",
     [](QWidget* p) {
       auto* button = new PictureButton(p, "button", {"paint", "Paint", 28});
       button->setCheckable(true);
       button->setChecked(true);
       return button;
     }},
    {"slider", [](QWidget* p) { return new QSlider(Qt::Horizontal, p); }},
    {"tick box", labelled<QCheckBox>},
    {"wrapped tick box", labelled<WrappedCheckBox>},
    {"radio button", labelled<QRadioButton>},
    {"drop-down list", [](QWidget* p) { return list(p, false); }},
    {"editable list", [](QWidget* p) { return list(p, true); }},
    {"spin box", plain<QSpinBox>},
    {"text", plain<QLineEdit>},
    {"list", items},
    {"tree", plain<QTreeWidget>},
    {"swatch",
     [](QWidget* p) {
       auto* swatch = new MixSwatch(p, "swatch", "Swatch");
       swatch->setFixedSize(40, 24);
       return swatch;
     }},
};

// Expects that focus changes the picture of a widget by a ring around its whole, or around its text.
void expectRing(QWidget& widget, const QImage& without, const QImage& with, const QColor& window) {
  const QRect around = differenceOf(without, with);
  ASSERT_GT(around.width(), 2 * kRing);
  ASSERT_GT(around.height(), 2 * kRing);
  EXPECT_TRUE(widget.rect().contains(around));
  const QColor ring = with.pixelColor(around.topLeft());
  EXPECT_GE(contrast(ring, window), kLeastContrast) << ring.name().toStdString();
  for (int y = around.top(); y <= around.bottom(); ++y)
    for (int x = around.left(); x <= around.right(); ++x) {
      if (around.adjusted(kRing, kRing, -kRing, -kRing).contains(x, y)) continue;
      ASSERT_EQ(with.pixelColor(x, y), ring) << x << ' ' << y << " of " << around.width() << " x " << around.height();
    }
}

TEST(FocusRing, EveryKindOfControlHasTheSameRingInEveryTheme) {
  const QPalette before = QApplication::palette();
  for (const int lightness : kWindows) {
    QApplication::setPalette(test::paletteOf(lightness));
    for (const Kind& kind : kKinds) {
      SCOPED_TRACE(std::string(kind.name) + " on " + std::to_string(lightness));
      QWidget window;
      auto* column = new QVBoxLayout(&window);
      auto* other = new QPushButton("Other", &window);
      QWidget* widget = kind.make(&window);
      column->addWidget(other);
      column->addWidget(widget);
      window.resize(200, 160);
      window.show();
      ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
      other->setFocus(Qt::TabFocusReason);
      if (auto* text = qobject_cast<QLineEdit*>(widget)) text->setCursorPosition(0);
      const QImage without = seen(*widget);
      widget->setFocus(Qt::TabFocusReason);
      ASSERT_TRUE(widget->hasFocus());
      expectRing(*widget, without, seen(*widget), QColor(lightness, lightness, lightness));
    }
  }
  QApplication::setPalette(before);
}

TEST(FocusRing, AnAccentTooNearToTheWindowIsChangedUntilItIsNot) {
  for (const int lightness : {0, 53, 128, 239, 255}) {
    QPalette palette = test::paletteOf(lightness);
    for (const QColor accent : {palette.color(QPalette::Window), QColor(Qt::yellow), QColor(Qt::darkBlue)}) {
      palette.setColor(QPalette::Highlight, accent);
      EXPECT_GE(contrast(accentOn(palette), palette.color(QPalette::Window)), kLeastContrast) << lightness;
    }
  }
  QPalette light = test::paletteOf(255);
  light.setColor(QPalette::Highlight, Qt::darkBlue);
  EXPECT_EQ(accentOn(light), QColor(Qt::darkBlue)) << "a visible accent stays as it is";
}

class FocusOnTheForm : public test::FormFixture {
 protected:
  ~FocusOnTheForm() override { QApplication::setPalette(QPalette()); }
  void expectRingOn(const char* name) {
    SCOPED_TRACE(name);
    QWidget* widget = find(name);
    QWidget* other = find(QString(name) == "cmdTB(0)" ? "picDisp" : "cmdTB(0)");
    other->setFocus(Qt::TabFocusReason);
    settle();
    const QImage without = seen(*widget);
    widget->setFocus(Qt::TabFocusReason);
    settle();
    ASSERT_TRUE(widget->hasFocus());
    expectRing(*widget, without, seen(*widget), widget->palette().color(QPalette::Window));
  }
};

TEST_F(FocusOnTheForm, ContainersToolsChartsSlidersAndSwatchesHaveTheRing) {
  for (const int lightness : kWindows) {
    QApplication::setPalette(test::paletteOf(lightness));
    start();
    find<QAction>("mnuFileSub(2)")->trigger();
    state.current().neverSaved = false;
    settle();
    click("imgGet256ColorChart");
    for (const char* name :
         {"cmdTB(0)", "picPanelIcon(0)", "picPanelIcon(1)", "imgUpdIconsPanel", "imgTool(4)", "imgShiftDir(1)",
          "imgTool(15)", "picColorToUse", "cboBrushSize", "picColorChart(0)", "imgGet16ColorChart", "HsrRGB(0)",
          "PicRGB(1)", "PicRGBMix", "cmdAdjMix(2)", "cboIntervalColor", "imgSavePalette", "picMixGradient"})
      expectRingOn(name);
    form.reset();
  }
}

// The ring of the Editing Area is around it, so that it hides no pixel of the icon.
TEST_F(FocusOnTheForm, TheEditingAreaHasItsRingAroundIt) {
  for (const int lightness : kWindows) {
    QApplication::setPalette(test::paletteOf(lightness));
    start();
    QWidget* room = find("picDispContainer");
    find("cmdTB(0)")->setFocus(Qt::TabFocusReason);
    settle();
    const QImage without = seen(*room);
    find("picDisp")->setFocus(Qt::MouseFocusReason);
    settle();
    const QImage with = seen(*room);
    expectRing(*room, without, with, without.pixelColor(0, 0));
    EXPECT_EQ(differenceOf(without, with), find("picDisp")->geometry().adjusted(-3, -3, 3, 3));
    form.reset();
  }
}

}  // namespace
}  // namespace gp
