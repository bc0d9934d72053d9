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

constexpr ButtonLook kLooks[] = {
    {0, "close", "Close ANI session"},
    {1, "pane-resize", "Resize"},
    {2, "pane-minimize", "Minimize"},
    {3, "film-new", "Create new ANI file"},
    {4, "open", "Open ANI file"},
    {5, "save", "Save to ANI file -- Cursor-based"},
    {6, "close", "Close"},
    {7, "film-time", "Set interval between frames"},
    {9, "properties", "Frame property"},
    {10, "frame-from-area", "From Editing Area"},
    {11, "frame-to-area", "To Editing Area"},
    {12, "frame-below", "Add new frame below"},
    {13, "frame-above", "Add new frame above"},
    {14, "frame-remove", "Remove current frame"},
    {15, "frame-load", "Load direct from ICO file to current frame"},
    {16, "frame-shift-up", "Shift current up"},
    {17, "frame-shift-down", "Shift current down"},
    {18, "frame-up", "Go to one frame up"},
    {19, "frame-down", "Go to one frame down"},
};

QString nameOf(int index) { return QStringLiteral("cmdANI(%1)").arg(index); }

}  // namespace

AniButtons::AniButtons(QObject* parent, const AniEvents& events) : QObject(parent), events_(events) {}

void AniButtons::add(int index, QAbstractButton* button) {
  cmdANI_.at(static_cast<std::size_t>(index)) = button;
  connect(button, &QAbstractButton::clicked, this, [this, index] { events_.press(index); });
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

void AniButtons::refresh() {
  for (int index = 0; index < AniSession::kButtonCount; ++index)
    if (QAbstractButton* made = button(index)) made->setEnabled(events_.session.isEnabled(index));
  if (QAbstractButton* test = button(kTest))
    test->setText(QLatin1String(events_.session.test().isRunning() ? kStopCaption : kTestCaption));
}

}  // namespace gp
