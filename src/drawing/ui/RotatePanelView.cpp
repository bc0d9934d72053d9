#include "drawing/ui/RotatePanelView.h"

#include "document/ui/SampleView.h"
#include "drawing/RotatePanel.h"
#include "platform/qt/PathText.h"

#include <QAbstractListModel>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QSignalBlocker>
#include <QSlider>

namespace gp {
namespace {

constexpr int kAngleLetters = 6;
constexpr int kLongestAngle = 24;  // the largest number of characters that can be typed
constexpr int kSliderPage = 15;
constexpr int kVisibleAngles = 12;

// Creates each text on request, because few of them are ever shown.
class AngleList : public QAbstractListModel {
 public:
  using QAbstractListModel::QAbstractListModel;

  int rowCount(const QModelIndex& parent) const override { return parent.isValid() ? 0 : kAngleCount; }
  QVariant data(const QModelIndex& index, int role) const override {
    const bool isText = role == Qt::DisplayRole || role == Qt::EditRole;
    return isText && index.isValid() ? toText(RotatePanel::angleText(index.row())) : QVariant();
  }
};

}  // namespace

RotatePanelView::RotatePanelView(QWidget* parent, RotatePanel& panel)
    : PanelFrame(parent, kRotatePanel), panel_(panel) {
  addRow("lblRotateImageAngle", "An&gle:", makeAngle());
  addWide(makeSlider());
  addWide(makeAntialias());
  QLabel* label = addRow("lblRotateImageSample", "Sample");
  addTall(makeSample());
  label->setBuddy(picRotateImageSample_);
  addButtons();
  setFirstControl(cboRotateImageAngle_);
  refresh();
}

QWidget* RotatePanelView::makeAngle() {
  auto* angle = cboRotateImageAngle_ = new QComboBox(rows());
  angle->setObjectName("cboRotateImageAngle");
  angle->setAccessibleName("Angle");
  angle->setEditable(true);
  angle->setInsertPolicy(QComboBox::NoInsert);
  angle->setMinimumContentsLength(kAngleLetters);
  angle->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  angle->setMaxVisibleItems(kVisibleAngles);
  angle->setModel(new AngleList(angle));
  // The completer would change a typed "3" to "30".
  angle->setCompleter(nullptr);
  angle->lineEdit()->setMaxLength(kLongestAngle);
  angle->lineEdit()->setAccessibleName("Angle");
  if (auto* list = qobject_cast<QListView*>(angle->view())) list->setUniformItemSizes(true);
  connect(angle, &QComboBox::activated, this, [this](int index) { panel_.pickAngle(index); });
  connect(angle->lineEdit(), &QLineEdit::textEdited, this,
          [this](const QString& text) { panel_.setAngleText(text.toStdString()); });
  return angle;
}

QWidget* RotatePanelView::makeSlider() {
  auto* slider = hsrRotateImageAngle_ = new QSlider(Qt::Horizontal, rows());
  slider->setObjectName("hsrRotateImageAngle");
  slider->setAccessibleName("Rotation angle");
  slider->setRange(-kLargestAngle, kLargestAngle);
  slider->setPageStep(kSliderPage);
  connect(slider, &QSlider::valueChanged, this, [this](int value) { panel_.setSlider(value); });
  return slider;
}

QWidget* RotatePanelView::makeAntialias() {
  auto* box = ckbRotateImageAntiAlias_ = new QCheckBox("Antialias", rows());
  box->setObjectName("ckbRotateImageAntiAlias");
  connect(box, &QCheckBox::toggled, this, [this](bool on) { panel_.setAntialias(on); });
  return box;
}

QWidget* RotatePanelView::makeSample() {
  picRotateImageSample_ =
      new SampleView(rows(), "picRotateImageSample", "Sample", panel_.picRotateImageSample(), kRotateSampleSide);
  return picRotateImageSample_;
}

void RotatePanelView::follow() { panel_.follow(); }

void RotatePanelView::refresh() {
  const QSignalBlocker quietSlider(hsrRotateImageAngle_);
  const QSignalBlocker quietBox(ckbRotateImageAntiAlias_);
  refreshAngle();
  hsrRotateImageAngle_->setValue(panel_.hsrRotateImageAngle());
  ckbRotateImageAntiAlias_->setChecked(panel_.ckbRotateImageAntiAlias());
  picRotateImageSample_->setValueText(QString("%1 degrees").arg(panel_.angle()));
}

// Keeps a text that is being typed, and the cursor's position in it.
void RotatePanelView::refreshAngle() {
  const QSignalBlocker quiet(cboRotateImageAngle_);
  QLineEdit* typed = cboRotateImageAngle_->lineEdit();
  const int place = typed->cursorPosition();
  const QString text = toText(panel_.cboRotateImageAngle());
  // The arrow keys continue from this item.
  const int index = panel_.hsrRotateImageAngle() + kLargestAngle;
  if (cboRotateImageAngle_->currentIndex() != index) cboRotateImageAngle_->setCurrentIndex(index);
  if (typed->text() == text) return;
  typed->setText(text);
  typed->setCursorPosition(place);
}

}  // namespace gp
