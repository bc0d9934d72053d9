// The panel of Text on the main form with the fonts of the system, used by mouse and keyboard.
#include "document/Containers.h"
#include "document/PanelNumbers.h"
#include "document/ui/SampleView.h"
#include "document/ui/SurfacePainting.h"
#include "effects/EffectCases.h"
#include "effects/Effects.h"
#include "effects/TextPanel.h"
#include "effects/ui/TextPanelView.h"
#include "platform/qt/widgets/PictureButton.h"
#include "support/FakeTextDrawing.h"
#include "support/Rooms.h"
#include "ui/FormFixture.h"

#include <QAction>
#include <QClipboard>
#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QSlider>

namespace gp {
namespace {

constexpr int kTextEntry = 0;
constexpr Color kRed = rgb(255, 0, 0);

class TextPanelViewTest : public test::FormFixture {
 protected:
  void startWith(const IconImage& icon) {
    start();
    shell.document().arrival.arrive(icon, NewRecord());
    settle();
    find<QAction>(QString("mnuEffectsSub(%1)").arg(kTextEntry))->trigger();
    settle();
  }
  TextPanel& panel() { return shell.effects().panel<TextPanel>(); }
  QLineEdit* typing() { return find<QLineEdit>("txbWriteText"); }
  QComboBox* list(const char* name) { return find<QComboBox>(name); }
  IconImage current() const { return {state.picImage, state.picMask, {}}; }
  static QString nameOf(QWidget* widget) {
    return QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name);
  }
  // Chooses DejaVu Sans, which every machine of the tests has.
  void pickKnownFont() { pick("cboFontName", "DejaVu Sans"); }
  void pick(const char* name, const QString& entry) {
    const int index = list(name)->findText(entry);
    ASSERT_GE(index, 0) << entry.toStdString();
    list(name)->setCurrentIndex(index);
    emit list(name)->activated(index);
  }
};

TEST_F(TextPanelViewTest, ItOpensWithTheFocusInTheTextAndTheAngleZero) {
  startWith(transparentIcon(48));
  EXPECT_EQ(state.screen.mActivePanel, TextPanel::kNumber);
  EXPECT_EQ(QApplication::focusWidget(), typing());
  EXPECT_EQ(find<QSlider>("hsrTextWriteSampleAngle")->value(), 0);
  EXPECT_EQ(find<QLabel>("lblTextAngle")->text(), "0\u00B0");
}

TEST_F(TextPanelViewTest, EachControlHasItsNameEntriesAndAPlaceInTheTabOrder) {
  startWith(transparentIcon(48));
  EXPECT_EQ(nameOf(typing()), "Text");
  EXPECT_EQ(list("cboFontName")->accessibleName(), "Font");
  EXPECT_EQ(list("cboTextSize")->accessibleName(), "Size");
  EXPECT_EQ(list("cboFontSize")->accessibleName(), "Size in points");
  EXPECT_EQ(list("cboFontSize")->toolTip(), "Size in points");
  EXPECT_EQ(list("cboFontSize")->count(), 18);
  EXPECT_EQ(list("cboTextWriteStyle")->accessibleName(), "Style");
  EXPECT_EQ(nameOf(find("cmdTextColor")), "Click to select text color");
  EXPECT_EQ(nameOf(find("hsrTextWriteSampleAngle")), "Text angle");
  const char* const styles[] = {"Bold", "Italic", "Underline", "Strikeout"};
  for (int i = 0; i < TextPanel::kFontStyles; ++i) {
    EXPECT_EQ(nameOf(indexed("imgFontStyle", i)), styles[i]);
    EXPECT_EQ(indexed("imgFontStyle", i)->toolTip(), styles[i]);
    EXPECT_EQ(QAccessible::queryAccessibleInterface(indexed("imgFontStyle", i))->role(), QAccessible::CheckBox);
  }
  QStringList sizes, written;
  for (int i = 0; i < list("cboTextSize")->count(); ++i) sizes << list("cboTextSize")->itemText(i);
  for (int i = 0; i < list("cboTextWriteStyle")->count(); ++i) written << list("cboTextWriteStyle")->itemText(i);
  EXPECT_EQ(sizes, QStringList({"Normal Size", "Small", "Tiny"}));
  EXPECT_EQ(written, QStringList({"Ordinary", "Hollow", "Embossed", "Engraved", "Shadowed"}));
  EXPECT_EQ(static_cast<std::size_t>(list("cboFontName")->count()), panel().families().size());
  const char* const order[] = {
      "cboFontName",     "cboTextSize",     "cboFontSize",       "imgFontStyle(0)", "imgFontStyle(1)",
      "imgFontStyle(2)", "imgFontStyle(3)", "cboTextWriteStyle", "cmdTextColor",    "hsrTextWriteSampleAngle",
      "cmdProceed"};
  for (const char* name : order) {
    key(Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget()->objectName(), name);
  }
}

TEST_F(TextPanelViewTest, LabelsAndControlsHaveTheirColumnsAndTheSampleWholeSteps) {
  startWith(transparentIcon(48));
  form->resize(form->minimumSize());
  settle();
  QWidget* side = find("fraPanel(5)");
  const auto place = [side](QWidget* widget) { return QRect(widget->mapTo(side, QPoint()), widget->size()); };
  for (const char* label : {"lblWriteText", "lblFontName", "lblTextSize", "lblFontStyle", "lblTextWriteStyle",
                            "lblTextColor", "lblTextWriteAngle"})
    EXPECT_EQ(place(find(label)).left(), 0) << label;
  const int left = place(typing()).left();
  for (const char* control : {"cboFontName", "cboTextSize", "imgFontStyle(0)", "cboTextWriteStyle", "cmdTextColor",
                              "hsrTextWriteSampleAngle"})
    EXPECT_EQ(place(find(control)).left(), left) << control;
  for (const char* control : {"txbWriteText", "cboFontName", "cboFontSize", "cboTextWriteStyle", "lblTextAngle"})
    EXPECT_EQ(place(find(control)).right(), side->width() - 1) << control;
  const auto* sample = dynamic_cast<SampleView*>(find("lblTextSample"));
  EXPECT_EQ(sample->place().width() % 48, 0);
  EXPECT_GE(sample->place().width(), 4 * 48);
  EXPECT_EQ(dynamic_cast<SampleView*>(find("picTextWriteAngleSample"))->place().width(), 48);
  EXPECT_GT(place(find("lblTextSample")).top(), place(find("hsrTextWriteSampleAngle")).bottom());
}

TEST_F(TextPanelViewTest, TypingIsShownInTheSampleAtOnce) {
  startWith(transparentIcon(48));
  pickKnownFont();
  QTest::keyClicks(typing(), "H");
  EXPECT_EQ(panel().text(), "H");
  const QImage sample = find("lblTextSample")->grab().toImage();
  int black = 0;
  for (int y = 0; y < sample.height(); ++y)
    for (int x = 0; x < sample.width(); ++x) black += sample.pixel(x, y) == toRgb(kBlack) ? 1 : 0;
  EXPECT_GT(black, 100);
  QTest::keyClicks(typing(), "i");
  QKeyEvent accented(QEvent::KeyPress, Qt::Key_Eacute, Qt::NoModifier, "\u00E9");
  QApplication::sendEvent(typing(), &accented);
  EXPECT_EQ(panel().text(), "Hi\u00E9");
  QTest::keyClick(typing(), Qt::Key_Home);
  QTest::keyClicks(typing(), "x");
  EXPECT_EQ(panel().text(), "xHi\u00E9");
  EXPECT_EQ(typing()->cursorPosition(), 1);
  EXPECT_TRUE(test::samePixels(current(), transparentIcon(48)));
}

TEST_F(TextPanelViewTest, EveryPixelIsTextOrGround) {
  for (const int size : kIconSides) {
    startWith(transparentIcon(size));
    pickKnownFont();
    dialogs.colors = {kRed};
    click("cmdTextColor");
    panel().setText("Ag\u00DF");
    for (int style = 0; style <= 1; ++style)
      for (const int angle : {0, 33}) {
        panel().pickStyle(style);
        panel().setAngle(angle);
        int painted = 0;
        for (int y = 0; y < size; ++y)
          for (int x = 0; x < size; ++x) {
            const Color image = panel().picture().image.GetPixel(x, y), mask = panel().picture().mask.GetPixel(x, y);
            ASSERT_TRUE((mask == kBlack && image == kRed) || (mask == kWhite && image == kBlack));
            painted += mask == kBlack ? 1 : 0;
          }
        EXPECT_GT(painted, size);
        EXPECT_LT(painted, size * size * 3 / 4);
      }
    state.current().modified = false;
    form.reset();
  }
}

TEST_F(TextPanelViewTest, EnterProceedsAndTheKeyboardDragsTheText) {
  startWith(transparentIcon(48));
  pickKnownFont();
  QTest::keyClicks(typing(), "T");
  const IconImage sample = panel().picture();
  key(Qt::Key_Return);
  EXPECT_EQ(state.screen.mActivePanel, kColorPanel);
  EXPECT_TRUE(state.mRegionExists);
  EXPECT_TRUE(test::samePixels(current(), sample));
  EXPECT_EQ(QApplication::focusWidget(), find("picDisp"));
  key(Qt::Key_Space);
  for (int i = 0; i < 4; ++i) key(Qt::Key_Right);
  key(Qt::Key_Down);
  key(Qt::Key_Space);
  for (int y = 0; y + 1 < 48; ++y)
    for (int x = 0; x + 4 < 48; ++x)
      ASSERT_EQ(state.picMask.GetPixel(x + 4, y + 1), sample.mask.GetPixel(x, y)) << x << " " << y;
  key(Qt::Key_Escape);
  EXPECT_FALSE(state.mRegionExists);
}

TEST_F(TextPanelViewTest, EscapeClosesAndChangesNothing) {
  startWith(transparentIcon(32));
  QTest::keyClicks(typing(), "T");
  key(Qt::Key_Escape);
  EXPECT_EQ(state.screen.mActivePanel, kColorPanel);
  EXPECT_TRUE(test::samePixels(current(), transparentIcon(32)));
  EXPECT_FALSE(state.mRegionExists);
}

TEST_F(TextPanelViewTest, TheLooksOfTheFontAreToggledByMouseAndSpace) {
  startWith(transparentIcon(48));
  pickKnownFont();
  QTest::keyClicks(typing(), "lion");
  for (int i = 0; i < TextPanel::kFontStyles; ++i) {
    auto* button = qobject_cast<PictureButton*>(indexed("imgFontStyle", i));
    const IconImage plain = panel().picture();
    click(button);
    EXPECT_TRUE(button->isChecked());
    EXPECT_TRUE(panel().hasFontStyle(i));
    EXPECT_FALSE(test::samePixels(panel().picture(), plain));
    button->setFocus();
    key(Qt::Key_Space);
    EXPECT_FALSE(button->isChecked());
    EXPECT_TRUE(test::samePixels(panel().picture(), plain));
  }
}

TEST_F(TextPanelViewTest, ListsAndAngleAreChosenByKeys) {
  startWith(transparentIcon(48));
  QTest::keyClicks(typing(), "T");
  QTest::keyClick(list("cboFontSize"), Qt::Key_End);
  EXPECT_EQ(panel().pointsIndex(), 17);
  EXPECT_EQ(list("cboTextSize")->currentIndex(), -1) << "24 points are no size that fits the icon";
  QTest::keyClick(list("cboTextSize"), Qt::Key_End);
  EXPECT_EQ(panel().sizeIndex(), 2);
  EXPECT_EQ(list("cboFontSize")->currentIndex(), -1);
  QTest::keyClick(list("cboTextWriteStyle"), Qt::Key_Down);
  EXPECT_EQ(panel().styleIndex(), 1);
  QTest::keyClick(list("cboFontName"), Qt::Key_End);
  EXPECT_EQ(panel().familyIndex(), list("cboFontName")->count() - 1);
  EXPECT_EQ(list("cboFontName")->toolTip(), list("cboFontName")->currentText());
  auto* angle = find<QSlider>("hsrTextWriteSampleAngle");
  QTest::keyClick(angle, Qt::Key_PageUp);
  EXPECT_EQ(panel().angle(), 15);
  EXPECT_EQ(find<QLabel>("lblTextAngle")->text(), "15\u00B0");
  EXPECT_EQ(nameOf(find("lblTextAngle")), "15 degrees");
  QTest::keyClick(angle, Qt::Key_Home);
  EXPECT_EQ(panel().angle(), -180);
  QTest::keyClick(angle, Qt::Key_End);
  EXPECT_EQ(panel().angle(), 180);
}

TEST_F(TextPanelViewTest, TheColorComesFromTheDialogAndARefusedOneChangesNothing) {
  startWith(transparentIcon(48));
  dialogs.colors = {kRed, 0x808080};
  click("cmdTextColor");
  EXPECT_EQ(find("cmdTextColor")->accessibleDescription(), "RGB: 255, 0, 0");
  QTest::keyClick(list("cboTextWriteStyle"), Qt::Key_End);
  boxes.expectTold("Cannot use this color for text of Shadowed style,\nplease choose another color (e.g. one near it).",
                   BoxIcon::None);
  click("cmdTextColor");
  EXPECT_EQ(find("cmdTextColor")->accessibleDescription(), "RGB: 255, 0, 0");
}

TEST_F(TextPanelViewTest, ATextOfTenThousandLettersIsWritten) {
  startWith(transparentIcon(16));
  pickKnownFont();
  QApplication::clipboard()->setText(QString(10000, 'M'));
  typing()->paste();
  EXPECT_EQ(panel().text().size(), 10000u);
  key(Qt::Key_Return);
  EXPECT_TRUE(state.mRegionExists);
  EXPECT_LE(shell.drawing().regions.content().width(), 48);
}

// A view over a panel whose fonts a test decides.
struct FakeFonts {
  test::Rooms rooms;
  test::FakeTextDrawing fonts;
  Effects effects{rooms.context, rooms.document, rooms.drawing, {rooms.dialog, rooms.pictures, fonts}};
  TextPanel& panel = effects.panel<TextPanel>();
  TextPanelView view{nullptr, panel};
  QComboBox* list = view.findChild<QComboBox*>("cboFontName");

  void open() {
    rooms.document.arrival.arrive(transparentIcon(16), NewRecord());
    effects.open(kTextEntry);
    view.refreshAll();
  }
};

TEST(TextPanelFonts, WithoutFontsTheListIsDisabled) {
  FakeFonts program;
  program.fonts.families.clear();
  program.open();
  EXPECT_EQ(program.list->count(), 0);
  EXPECT_FALSE(program.list->isEnabled());
  program.fonts.families = {"Block"};
  program.open();
  EXPECT_TRUE(program.list->isEnabled());
  EXPECT_EQ(program.list->currentText(), "Block");
}

TEST(TextPanelFonts, TheListShowsTheFormerFontAfterOneThatIsGone) {
  FakeFonts program;
  program.open();
  program.fonts.gone = {"Chalk"};
  program.rooms.boxes.expectTold("Chalk not available in system.", BoxIcon::None);
  QTest::keyClick(program.list, Qt::Key_Down);
  program.view.refreshAll();
  EXPECT_EQ(program.list->currentText(), "Block");
}

}  // namespace
}  // namespace gp
