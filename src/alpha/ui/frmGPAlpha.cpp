#include "alpha/ui/frmGPAlpha.h"

#include "alpha/ui/AlphaAreaView.h"
#include "alpha/ui/AlphaSampleView.h"
#include "alpha/ui/AlphaValueView.h"
#include "platform/qt/PathText.h"
#include "platform/qt/widgets/TextCell.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPushButton>
#include <QVBoxLayout>

namespace gp {
namespace {

constexpr int kColumnGap = 12;  // pixels
constexpr int kRowGap = 10;
constexpr int kSmallGap = 6;

constexpr std::array kButtonCaptions{"&Convert to 24 BPP retaining alphaed colors",
                                     "C&hange current icon to 32 BPP True Color", "&Save session and exit",
                                     "&Abort session and exit"};

struct ReadoutCell {
  const char* name;
  const char* widest;
  int row, column, columns;
};
constexpr std::array<ReadoutCell, 3> kReadouts{{{"Position", "X= 48  Y= 48 ", 0, 0, 1},
                                                {"Color of pixel", "RGB:  255, 255, 255 ", 1, 0, 2},
                                                {"Alpha value of pixel", "Alpha =  255 ", 0, 1, 1}}};

// The last one shows the alpha values alone.
constexpr std::array kSampleNames{"Icon on a light ground", "Icon on a gray ground", "Icon on a dark ground",
                                  "Alpha values as shades"};
constexpr int kShades = static_cast<int>(kSampleNames.size()) - 1;

QString indexed(const char* control, int index) {
  return QStringLiteral("%1(%2)").arg(QLatin1String(control)).arg(index);
}

}  // namespace

frmGPAlpha::frmGPAlpha(const FilesContext& context, const IconImage& icon, AlphaMode mode, QWidget* parent)
    : QDialog(parent), editor_(icon, mode, context) {
  setObjectName(QStringLiteral("frmGPAlpha"));
  setWindowTitle(QLatin1String(editor_.caption()));
  setModal(true);
  layOut();
  connectArea();
  refresh();
  area_->view().setFocus();
}

void frmGPAlpha::resume(const AlphaMatrix& values) {
  editor_.resume(values);
  refresh();
}

void frmGPAlpha::layOut() {
  const AlphaCanvas& canvas = editor_.canvas();
  auto* rows = new QVBoxLayout(this);
  rows->setSpacing(kRowGap);
  rows->setSizeConstraint(QLayout::SetFixedSize);
  auto* columns = new QHBoxLayout;
  columns->setSpacing(kColumnGap);
  columns->addWidget(area_ = new AlphaAreaView(this, {canvas.picDisp(), canvas.magnification()}), 0, Qt::AlignTop);
  columns->addLayout(makeControls(), 1);
  rows->addLayout(columns);
  rows->addLayout(makeButtons());
}

QBoxLayout* frmGPAlpha::makeControls() {
  auto* column = new QVBoxLayout;
  column->setSpacing(kRowGap);
  column->addLayout(makeReadouts());
  column->addWidget(makeSamples());
  column->addWidget(fraAlphaValuePanel_ = new AlphaValueView(this, editor_));
  // Nothing moves when it is shown.
  QSizePolicy kept = fraAlphaValuePanel_->sizePolicy();
  kept.setRetainSizeWhenHidden(true);
  fraAlphaValuePanel_->setSizePolicy(kept);
  connect(fraAlphaValuePanel_, &AlphaValueView::restoreRequested, this,
          [this] { editor_.cmdRestoreAlpha(), refresh(); });
  column->addStretch();
  return column;
}

QLayout* frmGPAlpha::makeReadouts() {
  auto* grid = new QGridLayout;
  grid->setSpacing(0);
  for (std::size_t i = 0; i < kReadouts.size(); ++i) {
    const ReadoutCell& readout = kReadouts.at(i);
    auto* cell = lblDispXY_.at(i) =
        new TextCell(this, indexed("lblDispXY", static_cast<int>(i)), QLatin1String(readout.name));
    cell->setText(QLatin1String(readout.widest));
    cell->setMinimumSize(cell->sizeHint());
    grid->addWidget(cell, readout.row, readout.column, 1, readout.columns);
  }
  return grid;
}

// What changes the icon is on the left, what closes the screen on the right.
QLayout* frmGPAlpha::makeButtons() {
  auto* grid = new QGridLayout;
  grid->setHorizontalSpacing(kColumnGap);
  grid->setVerticalSpacing(kSmallGap);
  for (int i = 0; i < static_cast<int>(cmdAlpha_.size()); ++i) grid->addWidget(makeButton(i), i % 2, i / 2);
  for (const int column : {0, 1}) grid->setColumnStretch(column, 1);
  return grid;
}

QWidget* frmGPAlpha::makeSamples() {
  auto* frame = new CaptionFrame(this, QStringLiteral("fraSamples"), QStringLiteral("Preview at the icon's size"));
  auto* row = new QHBoxLayout(frame);
  row->setContentsMargins(frame->frameMargins());
  row->setSpacing(kSmallGap);
  for (int i = 0; i <= kShades; ++i) row->addWidget(makeSample(frame, i));
  row->addStretch();
  return frame;
}

AlphaSampleView* frmGPAlpha::makeSample(QWidget* parent, int index) {
  const auto i = static_cast<std::size_t>(index);
  const AlphaCanvas& canvas = editor_.canvas();
  const bool isIcon = index != kShades;
  samples_.at(i) = new AlphaSampleView(parent, indexed("picSample", index), QLatin1String(kSampleNames.at(i)),
                                       isIcon ? canvas.onGround(i) : canvas.picMaskAlpha(),
                                       isIcon ? AlphaCanvas::kGrounds.at(i) : kWhite);
  return samples_.at(i);
}

QPushButton* frmGPAlpha::makeButton(int index) {
  const auto i = static_cast<std::size_t>(index);
  auto* button = cmdAlpha_.at(i) = new QPushButton(QLatin1String(kButtonCaptions.at(i)), this);
  button->setObjectName(indexed("cmdAlpha", index));
  button->setAutoDefault(false);
  connect(button, &QPushButton::clicked, this, [this, button, index] {
    editor_.cmdAlpha(static_cast<AlphaButton>(index));
    refresh();
    if (!button->isEnabled()) area_->view().setFocus();
  });
  return button;
}

void frmGPAlpha::connectArea() {
  MagnifiedView& view = area_->view();
  view.setPixelDescription([this](QPoint pixel) { return toText(editor_.pixelText(pixel.x(), pixel.y())); });
  connect(&view, &MagnifiedView::pressed, this,
          [this](QPointF at, Qt::MouseButton button, Qt::KeyboardModifiers modifiers) {
            if (button == Qt::LeftButton) editor_.press(at.x(), at.y(), modifiers & Qt::ShiftModifier), showPixels();
          });
  connect(&view, &MagnifiedView::moved, this, [this](QPointF at, Qt::KeyboardModifiers modifiers) {
    editor_.move(at.x(), at.y(), modifiers & Qt::ShiftModifier), showPixels();
  });
  connect(&view, &MagnifiedView::released, this, [this](QPointF, Qt::MouseButton button) {
    if (button == Qt::LeftButton) editor_.release();
  });
  connect(&view, &MagnifiedView::left, this, [this] { editor_.leave(), showPixels(); });
}

// Shows what has changed in the picture, and the readouts.
void frmGPAlpha::showPixels() {
  const std::array texts{editor_.positionText(), editor_.colorText(), editor_.alphaText()};
  for (std::size_t i = 0; i < texts.size(); ++i) lblDispXY_.at(i)->setText(toText(texts.at(i)));
  const PixelBox part = editor_.takeChanged();
  if (part.isEmpty()) return;
  const int m = editor_.canvas().magnification();
  area_->view().refreshPart(part.left * m, part.top * m, (part.right - part.left) * m, (part.bottom - part.top) * m);
  for (AlphaSampleView* sample : samples_) sample->update();
}

void frmGPAlpha::refresh() {
  showPixels();
  fraAlphaValuePanel_->setVisible(editor_.canPaint());
  for (std::size_t i = 0; i < cmdAlpha_.size(); ++i)
    cmdAlpha_.at(i)->setEnabled(editor_.isEnabled(static_cast<AlphaButton>(i)));
  if (editor_.isClosed()) accept();
}

void frmGPAlpha::reject() {
  if (editor_.mayClose()) QDialog::reject();
}

// Enter activates the button with the focus, and never another one.
void frmGPAlpha::keyPressEvent(QKeyEvent* event) {
  if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter) return QDialog::keyPressEvent(event);
  if (auto* button = qobject_cast<QAbstractButton*>(focusWidget())) button->click();
}

}  // namespace gp
