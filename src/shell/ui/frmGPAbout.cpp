#include "shell/ui/frmGPAbout.h"

#include "platform/ports/MessageBoxes.h"
#include "platform/qt/PathText.h"
#include "platform/qt/Pictures.h"
#include "shell/ScreenInformation.h"
#include "shell/StartUp.h"

#include <QCoreApplication>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace gp {
namespace {

constexpr const char* kLogo = "logo";
constexpr int kMargin = 24;        // pixels
constexpr int kGap = 20;           // between logo and words
constexpr qreal kNameScale = 1.8;  // relative to all other text

QLabel* makeLabel(const char* objectName, const QString& text, QWidget* parent) {
  auto* label = new QLabel(text, parent);
  label->setObjectName(QLatin1String(objectName));
  label->setTextFormat(Qt::PlainText);
  return label;
}

QLabel* makeLogo(QWidget* parent) {
  auto* logo = makeLabel("picLogo", {}, parent);
  logo->setPixmap(Pictures::pixmap(kLogo, parent->devicePixelRatioF(), Pictures::kLogoSize));
  logo->setAccessibleName(QStringLiteral("Logo"));
  return logo;
}

QLabel* makeName(QWidget* parent) {
  auto* name = makeLabel("lblName", toText(kProgramName), parent);
  QFont font = name->font();
  font.setPointSizeF(font.pointSizeF() * kNameScale);
  font.setBold(true);
  name->setFont(font);
  return name;
}

QLayout* makeWords(QWidget* parent) {
  auto* words = new QVBoxLayout;
  words->setSpacing(kGap / 5);
  words->addWidget(makeName(parent));
  words->addWidget(
      makeLabel("lblVersion", QStringLiteral("Version ") + QCoreApplication::applicationVersion(), parent));
  words->addWidget(
      makeLabel("lblPurpose", QStringLiteral("An editor for icons, cursors and animated cursors"), parent));
  words->addStretch();
  return words;
}

}  // namespace

frmGPAbout::frmGPAbout() {
  setObjectName(QStringLiteral("frmGPAbout"));
  setWindowTitle(toText(kAboutTitle));
  auto* rows = new QVBoxLayout(this);
  rows->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  rows->setSpacing(kGap);
  rows->setSizeConstraint(QLayout::SetFixedSize);
  auto* top = new QHBoxLayout;
  top->setSpacing(kGap);
  top->addWidget(makeLogo(this), 0, Qt::AlignTop);
  top->addLayout(makeWords(this));
  rows->addLayout(top);
}

frmGPAbout::frmGPAbout(SystemInfo& system, MessageBoxes& boxes, QWidget* parent) : frmGPAbout() {
  setParent(parent, windowFlags());
  setModal(true);
  addButtons(system, boxes);
}

void frmGPAbout::addButtons(SystemInfo& system, MessageBoxes& boxes) {
  auto* information = new QPushButton(QStringLiteral("&Screen Information"), this);
  information->setObjectName(QStringLiteral("CmdScreenInfo"));
  auto* ok = new QPushButton(QStringLiteral("OK"), this);
  ok->setObjectName(QStringLiteral("cmdOK"));
  connect(information, &QPushButton::clicked, this,
          [&system, &boxes] { boxes.tell(screenInformation(system), BoxIcon::Information); });
  connect(ok, &QPushButton::clicked, this, &QDialog::accept);
  auto* buttons = new QHBoxLayout;
  buttons->addWidget(information);
  buttons->addStretch();
  buttons->addWidget(ok);
  static_cast<QBoxLayout*>(layout())->addLayout(buttons);
  ok->setDefault(true);
  ok->setFocus();
}

void frmGPAbout::showAtStart() {
  show();
  QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

}  // namespace gp
