#include "document/ui/IconsPanelView.h"

#include "document/Containers.h"
#include "document/EditState.h"
#include "document/IconsPanel.h"
#include "document/ui/SurfacePainting.h"
#include "platform/qt/Accessibility.h"
#include "platform/qt/PathText.h"
#include "platform/qt/widgets/PictureButton.h"
#include "platform/qt/widgets/RovingFocus.h"

#include <QDropEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QStyleOptionFocusRect>
#include <QUrl>
#include <QVBoxLayout>

namespace gp {
namespace {

constexpr int kIconSide = 48;
constexpr int kOutline = 3;  // the space around each icon for outline and focus, pixels
constexpr int kContainerSide = kIconSide + 2 * kOutline;
constexpr int kGap = 4;
constexpr int kButtonSide = 26;
constexpr Color kCurrentLabel = kWhite;
constexpr Color kOtherLabel = 0xE0E0E0;

std::vector<std::string> localFiles(const QMimeData* data) {
  std::vector<std::string> files;
  for (const QUrl& url : data->urls()) {
    if (!url.isLocalFile()) continue;
    // Decoded here, since a file name need not be valid text.
    files.push_back(QByteArray::fromPercentEncoding(url.path(QUrl::FullyEncoded).toLatin1()).toStdString());
  }
  return files;
}

QString indexed(const char* control, int index) { return QString("%1(%2)").arg(control).arg(index); }

}  // namespace

ContainerButton::ContainerButton(QWidget* parent, int container, const EditState& state, const IconsPanel& panel)
    : QAbstractButton(parent), container_(container), state_(state), panel_(panel) {
  setObjectName(indexed("picPanelIcon", container));
  setAccessibleName(QString("Container %1").arg(container + 1));
  setAccessibleRole(this, QAccessible::RadioButton);
  setCheckable(true);
  setFixedSize(sizeHint());
  setAcceptDrops(true);
}

QSize ContainerButton::sizeHint() const { return {kContainerSide, kContainerSide}; }

bool ContainerButton::isCurrent() const { return state_.mCurContainer == container_; }

void ContainerButton::refresh() {
  const IconContainerRec& record = state_.mIconRecs.at(static_cast<std::size_t>(container_));
  const QString path = toText(record.path.trimmed());
  setToolTip(path.isEmpty() ? accessibleName() : path.toHtmlEscaped());
  setDescription(this, toText(nameOf(record)));
  setChecked(isCurrent());
  update();
}

void ContainerButton::paintEvent(QPaintEvent*) {
  DevicePainter painter(this);
  const QRect whole = painter.toDevice(rect());
  const double ratio = devicePixelRatioF();
  const int outline = static_cast<int>(kOutline * ratio);
  const QRect icon = whole.adjusted(outline, outline, -outline, -outline);
  const int line = isCurrent() ? outline - 1 : 1;
  const QColor lineColor = palette().color(isCurrent() ? QPalette::WindowText : QPalette::Mid);
  painter.fillRect(icon.adjusted(-line, -line, line, line), lineColor);
  painter.fillRect(icon, QColor(toRgb(kGround)));
  paintCentred(painter, state_.picPanelIcon.at(static_cast<std::size_t>(container_)), icon, ratio);
  if (!hasFocus()) return;
  painter.setPen(QPen(palette().color(QPalette::Highlight), outline));
  painter.drawRect(icon);
}

void ContainerButton::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::RightButton && rect().contains(event->position().toPoint())) emit rightReleased();
  QAbstractButton::mouseReleaseEvent(event);
}

void ContainerButton::keyPressEvent(QKeyEvent* event) {
  // Enter acts like Space, as on a push button.
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
    click();
  else if (event->text().size() == 1 && event->text().front().isDigit())
    event->ignore();
  else
    QAbstractButton::keyPressEvent(event);
}

// The file is only read, so its owner must keep it: the action is a copy, whatever is proposed. After an accepted move
// the source would delete the file.
void ContainerButton::answer(QDropEvent* event) const {
  event->setAccepted(event->possibleActions().testFlag(Qt::CopyAction) &&
                     panel_.PanelDragOver(localFiles(event->mimeData())));
  if (event->isAccepted()) event->setDropAction(Qt::CopyAction);
}

void ContainerButton::dragEnterEvent(QDragEnterEvent* event) { answer(event); }

// Keys pressed during a drag change the proposed action.
void ContainerButton::dragMoveEvent(QDragMoveEvent* event) { answer(event); }

void ContainerButton::dropEvent(QDropEvent* event) {
  answer(event);
  if (event->isAccepted()) emit filesDropped(localFiles(event->mimeData()));
}

ContainerLabel::ContainerLabel(QWidget* parent, int container) : QLabel(QString::number(container + 1), parent) {
  setObjectName(indexed("lblPanelIcon", container));
  hideFromAccessibility(this);
  setAlignment(Qt::AlignCenter);
  setAutoFillBackground(true);
  setCurrent(false);
}

void ContainerLabel::setCurrent(bool current) {
  QPalette colors;
  colors.setColor(QPalette::Window, QColor(toRgb(current ? kCurrentLabel : kOtherLabel)));
  colors.setColor(QPalette::WindowText, Qt::black);
  if (colors != palette()) setPalette(colors);
}

void ContainerLabel::mouseReleaseEvent(QMouseEvent* event) {
  if (rect().contains(event->position().toPoint())) emit released(event->button());
}

IconsPanelView::IconsPanelView(QWidget* parent, const EditState& state, const IconsPanel& panel)
    : QWidget(parent), state_(state) {
  setObjectName("picContainer(0)");
  makeGroup(this, "Containers");
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  for (int i = 0; i < kContainerCount; ++i) addContainer(i, panel);
  auto* update = new PictureButton(
      this, "imgUpdIconsPanel",
      {"update-panel", "Update icons panel / clear Undo (same as clicking on icons panel)", kButtonSide});
  update->setFocusPolicy(Qt::TabFocus);
  column->addWidget(update, 0, Qt::AlignHCenter);
  column->addStretch(1);
  connect(update, &PictureButton::clicked, this, &IconsPanelView::updateRequested);

  auto* focus = new RovingFocus(this, 1);
  for (ContainerButton* button : picPanelIcon_) focus->add(button);
  refresh();
}

void IconsPanelView::addContainer(int container, const IconsPanel& panel) {
  auto* button = new ContainerButton(this, container, state_, panel);
  auto* label = new ContainerLabel(this, container);
  connect(button, &ContainerButton::clicked, this, [=, this] { emit containerChosen(container); });
  connect(button, &ContainerButton::rightReleased, this, [=, this] { emit containerRightClicked(container); });
  connect(button, &ContainerButton::filesDropped, this,
          [=, this](const std::vector<std::string>& files) { emit filesDropped(container, files); });
  connect(label, &ContainerLabel::released, this, [=, this](Qt::MouseButton mouse) {
    if (mouse == Qt::LeftButton) emit containerChosen(container);
    if (mouse == Qt::RightButton) emit containerRightClicked(container);
  });

  auto* column = static_cast<QVBoxLayout*>(layout());
  column->addWidget(button);
  column->addWidget(label);
  column->addSpacing(kGap);
  picPanelIcon_.at(static_cast<std::size_t>(container)) = button;
  lblPanelIcon_.at(static_cast<std::size_t>(container)) = label;
}

void IconsPanelView::keyPressEvent(QKeyEvent* event) {
  const int container = event->key() - Qt::Key_1;
  if (container >= 0 && container < kContainerCount)
    picPanelIcon_.at(static_cast<std::size_t>(container))->setFocus(Qt::TabFocusReason);
  else
    QWidget::keyPressEvent(event);
}

void IconsPanelView::refresh() {
  for (std::size_t i = 0; i < picPanelIcon_.size(); ++i) {
    picPanelIcon_[i]->refresh();
    lblPanelIcon_[i]->setCurrent(static_cast<int>(i) == state_.mCurContainer);
  }
}

}  // namespace gp
