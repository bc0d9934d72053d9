#include "platform/qt/QtMessageBoxes.h"

#include "platform/qt/DialogOwner.h"
#include "platform/qt/PathText.h"

#include <QLabel>
#include <QMessageBox>
#include <QScreen>

#include <algorithm>

namespace gp {
namespace {

// What Qt's box wants of the screen beside its text: it leaves 480 pixels free, and has its picture and margins.
constexpr int kBesideText = 600;

QMessageBox::StandardButtons standardButtons(BoxButtons buttons) {
  switch (buttons) {
    case BoxButtons::YesNo:
      return QMessageBox::Yes | QMessageBox::No;
    case BoxButtons::YesNoCancel:
      return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    case BoxButtons::Ok:
      break;
  }
  return QMessageBox::Ok;
}

QMessageBox::StandardButton standardButton(BoxAnswer answer) {
  switch (answer) {
    case BoxAnswer::Yes:
      return QMessageBox::Yes;
    case BoxAnswer::No:
      return QMessageBox::No;
    case BoxAnswer::Cancel:
      return QMessageBox::Cancel;
    case BoxAnswer::Ok:
      break;
  }
  return QMessageBox::Ok;
}

QMessageBox::Icon standardIcon(BoxIcon icon) {
  switch (icon) {
    case BoxIcon::Information:
      return QMessageBox::Information;
    case BoxIcon::Question:
      return QMessageBox::Question;
    case BoxIcon::Exclamation:
      return QMessageBox::Warning;
    // Every box bears an icon; one that names none only informs.
    case BoxIcon::None:
      break;
  }
  return QMessageBox::Information;
}

// What Escape and the window's close button mean.
BoxAnswer escapeAnswer(BoxButtons buttons) {
  switch (buttons) {
    case BoxButtons::YesNo:
      return BoxAnswer::No;
    case BoxButtons::YesNoCancel:
      return BoxAnswer::Cancel;
    case BoxButtons::Ok:
      break;
  }
  return BoxAnswer::Ok;
}

BoxAnswer answerOf(int button, BoxButtons buttons) {
  for (const BoxAnswer answer : {BoxAnswer::Ok, BoxAnswer::Yes, BoxAnswer::No, BoxAnswer::Cancel}) {
    if (standardButton(answer) == button) return answer;
  }
  return escapeAnswer(buttons);
}

// Texts are written in lines, which stay whole as far as the screen is wide enough; Qt alone would break those beyond
// half a screen once more.
void keepLines(QMessageBox& box) {
  auto* label = box.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
  if (!label) return;
  label->ensurePolished();
  const int lines = label->fontMetrics().size(Qt::TextExpandTabs, box.text()).width();
  label->setMinimumWidth(std::clamp(box.screen()->availableGeometry().width() - kBesideText, 0, lines));
}

}  // namespace

void QtMessageBoxes::prepare(QMessageBox& box, const std::string& text, BoxButtons buttons, BoxIcon icon,
                             BoxAnswer suggested) {
  box.setWindowTitle(toText(kProgramName));
  box.setTextFormat(Qt::PlainText);
  box.setText(toText(text));
  box.setIcon(standardIcon(icon));
  box.setStandardButtons(standardButtons(buttons));
  box.setDefaultButton(standardButton(suggested));
  box.setEscapeButton(standardButton(escapeAnswer(buttons)));
  keepLines(box);
}

BoxAnswer QtMessageBoxes::show(const std::string& text, BoxButtons buttons, BoxIcon icon, BoxAnswer suggested) {
  const DialogOwner owner;
  QMessageBox box(owner.window());
  prepare(box, text, buttons, icon, suggested);
  return answerOf(box.exec(), buttons);
}

}  // namespace gp
