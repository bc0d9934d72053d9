#include "platform/qt/QtMessageBoxes.h"

#include "platform/qt/DialogOwner.h"
#include "platform/qt/PathText.h"

#include <QLabel>
#include <QMessageBox>
#include <QRegularExpression>
#include <QScreen>

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

// A word that does not fit into a line, such as a long file name, may be broken every so often: Qt would cut it off.
QString breakable(QString text) {
  static const QRegularExpression longWord(QStringLiteral("(\\S{50})(?=\\S{50})"));
  return text.replace(longWord, QStringLiteral("\\1\u200B"));
}

// Texts are written in lines, which stay whole where the screen is wide enough; Qt alone would break those beyond half
// a screen once more.
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
