#include "animation/ui/AniButtons.h"

#include "animation/ui/AniEvents.h"
#include "platform/qt/widgets/PictureButton.h"
#include "platform/qt/widgets/RovingFocus.h"

#include <QGridLayout>
#include <QPushButton>

#include <algorithm>

namespace gp {
namespace {

constexpr int kTest = 8;
constexpr const char* kTestTooltip = "Test animation";
// The same access letter in both captions.
constexpr const char* kTestCaption = "Te&st";
constexpr const char* kStopCaption = "&Stop";

struct ButtonLook {
  int index;
  const char* picture;
  const char* tooltip;
};

// In the order of the eye.
constexpr ButtonLook kLooks[] = {
    {1, "pane-resize", "Resize"},
    {2, "pane-minimize", "Minimize"},
    {0, "close", "Close ANI session"},
    {3, "film-new", "Create new ANI file"},
    {4, "open", "Open ANI file"},
    {5, "save", "Save to ANI file -- Cursor-based"},
    {6, "close", "Close"},
    {10, "frame-from-area", "From Editing Area"},
    {11, "frame-to-area", "To Editing Area"},
    {15, "frame-load", "Load direct from ICO file to current frame"},
    {18, "frame-up", "Go to one frame up"},
    {19, "frame-down", "Go to one frame down"},
    {16, "frame-shift-up", "Shift current up"},
    {17, "frame-shift-down", "Shift current down"},
    {12, "frame-below", "Add new frame below"},
    {13, "frame-above", "Add new frame above"},
    {14, "frame-remove", "Remove current frame"},
    {9, "properties", "Frame property"},
    {7, "film-time", "Set interval between frames"},
};

QString nameOf(int index) { return QStringLiteral("cmdANI(%1)").arg(index); }

}  // namespace

AniButtons::AniButtons(QObject* parent, const AniEvents& events) : QObject(parent), events_(events) {}

void AniButtons::add(int index, QAbstractButton* button) {
  cmdANI_.at(static_cast<std::size_t>(index)) = button;
  connect(button, &QAbstractButton::clicked, this, [this, index] { events_.press(index), emit pressed(index); });
}

QWidget* AniButtons::makePicture(QWidget* parent, int index) {
  const auto* look = std::ranges::find(kLooks, index, &ButtonLook::index);
  auto* button = new PictureButton(parent, nameOf(index), {look->picture, QLatin1String(look->tooltip), kSide});
  button->setFocusPolicy(Qt::TabFocus);
  add(index, button);
  return button;
}

QWidget* AniButtons::makeTest(QWidget* parent) {
  auto* button = new QPushButton(QLatin1String(kStopCaption), parent);
  button->setObjectName(nameOf(kTest));
  button->setToolTip(QLatin1String(kTestTooltip));
  button->setAutoDefault(false);
  button->setFocusPolicy(Qt::TabFocus);
  int width = button->sizeHint().width();
  button->setText(QLatin1String(kTestCaption));
  width = std::max(width, button->sizeHint().width());
  button->setFixedSize(width, std::max(kSide, button->sizeHint().height()));
  add(kTest, button);
  return button;
}

QWidget* AniButtons::makeGroup(QWidget* parent, std::initializer_list<int> indices, int columns) {
  auto* group = new QWidget(parent);
  auto* grid = new QGridLayout(group);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setSpacing(0);
  grid->setColumnStretch(columns, 1);
  auto* focus = new RovingFocus(group, columns);
  int place = 0;
  for (const int index : indices) {
    QWidget* button = makePicture(group, index);
    grid->addWidget(button, place / columns, place % columns);
    focus->add(button);
    ++place;
  }
  return group;
}

// The first button that is enabled in a group becomes its Tab stop.
void AniButtons::refresh() {
  for (const ButtonLook& look : kLooks) button(look.index)->setEnabled(events_.session.isEnabled(look.index));
  button(kTest)->setEnabled(events_.session.isEnabled(kTest));
  button(kTest)->setText(QLatin1String(events_.session.test().isRunning() ? kStopCaption : kTestCaption));
}

}  // namespace gp
