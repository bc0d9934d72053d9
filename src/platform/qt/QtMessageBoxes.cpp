#include "platform/qt/QtMessageBoxes.h"

#include "platform/qt/DialogOwner.h"
#include "platform/qt/PathText.h"

#include <QLabel>
#include <QMessageBox>
#include <QRegularExpression>
#include <QScreen>

namespace gp {
namespace {

// Pixels of the screen's width that a box needs besides its text: 480 that Qt leaves free, the picture and the margins.
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
    // Every box has an icon; a box without one is informational.
    case BoxIcon::None:
      break;
  }
  return QMessageBox::Information;
}

// Returns the answer for Escape and the window's close button.
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

// Allows breaks inside very long words such as file names, which Qt would otherwise cut off.
QString breakable(QString text) {
  static const QRegularExpression longWord(QStringLiteral("(\\S{50})(?=\\S{50})"));
  return text.replace(longWord, QStringLiteral("\\1\u200B"));
}

// Keeps the text's own lines unbroken when the screen is wide enough; Qt would break lines longer than half the screen.
void setLines(QMessageBox& box, const QString& text) {
  box.setText(breakable(text));
  auto* label = box.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
  if (!label) return;
  label->setAccessibleName(text);
  label->ensurePolished();
  const int lines = label->fontMetrics().size(Qt::TextExpandTabs, text).width();
  if (lines <= box.screen()->availableGeometry().width() - kBesideText) label->setMinimumWidth(lines);
}

}  // namespace

void QtMessageBoxes::prepare(QMessageBox& box, const std::string& text, BoxButtons buttons, BoxIcon icon,
                             BoxAnswer suggested) {
  box.setWindowTitle(toText(kProgramName));
  box.setTextFormat(Qt::PlainText);
  setLines(box, toText(text));
  box.setIcon(standardIcon(icon));
  box.setStandardButtons(standardButtons(buttons));
  box.setDefaultButton(standardButton(suggested));
  box.setEscapeButton(standardButton(escapeAnswer(buttons)));
}

BoxAnswer QtMessageBoxes::show(const std::string& text, BoxButtons buttons, BoxIcon icon, BoxAnswer suggested) {
  const DialogOwner owner;
  QMessageBox box(owner.window());
  prepare(box, text, buttons, icon, suggested);
  return answerOf(box.exec(), buttons);
}

}  // namespace gp
