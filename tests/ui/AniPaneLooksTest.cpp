// The pane of the animated cursor session in its three sizes, with fonts of 9, 12 and 14 points, in light and dark: no
// text is cut.
#include "ui/AniPaneFixture.h"
#include "ui/Screens.h"
#include "ui/WholeTexts.h"

namespace gp {
namespace {

class AniPaneLooks : public test::AniPaneFixture {
 protected:
  ~AniPaneLooks() override { QApplication::setPalette(QPalette()); }

  void look(const QString& name) {
    settle();
    test::expectAllTextsAreWhole(*form);
    screenshot(name);
  }
};

TEST_F(AniPaneLooks, EachSizeShowsItsTextsWhole) {
  for (const int points : test::kPoints)
    for (const char* theme : {"", "-dark"}) {
      SCOPED_TRACE(std::to_string(points) + " points" + theme);
      const test::FontOf font(points);
      QApplication::setPalette(*theme ? test::darkPalette() : QPalette());
      open();
      form->resize(1, 1);
      look(QString("font-%1-ani-empty%2").arg(points).arg(theme));
      makeFilm(5);
      look(QString("font-%1-ani%2").arg(points).arg(theme));
      click("cmdANI(1)");
      look(QString("font-%1-ani-compact%2").arg(points).arg(theme));
      click("cmdANI(2)");
      look(QString("font-%1-ani-minimized%2").arg(points).arg(theme));
      shell.animation().session.end();
      form.reset();
    }
}

}  // namespace
}  // namespace gp
