#include "effects/ui/GradientPanelView.h"

#include "colour/ui/ColorButton.h"
#include "document/ui/Lists.h"
#include "effects/ui/PointSampleView.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

namespace gp {
namespace {

constexpr int kGap = 8;
constexpr int kSampleSide = 48;  // of the largest icon
constexpr int kSpherical = static_cast<int>(GradientKind::Spherical);

struct KindLook {
  const char* caption;
  const char* name;
};
constexpr std::array<KindLook, kGradientKinds> kLooks{
    {{"&Linear", "Linear"}, {"S&ymmetric", "Symmetric"}, {"S&quare", "Square"}, {"&Spherical", "Spherical"}}};
constexpr std::array<const char*, GradientPanel::kColors> kColorTips{"Click for first color", "Click for second color"};
constexpr const char* kSwapTip = "Swap 1st & 2nd colors";

template <class Layout>
Layout* layoutIn(QWidget* place) {
  auto* layout = new Layout(place);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(kGap);
  return layout;
}

}  // namespace

GradientPanelView::GradientPanelView(QWidget* parent, GradientPanel& panel)
    : EffectPanelView(parent, panel), panel_(panel) {
  addKinds();
  addGradients();
  addColors();
  addSamples({{"picGradientSample", "Sample", panel_.sample()}});
  setFirstControl(kinds_.front());
  refresh();
}

void GradientPanelView::addKinds() {
  auto* place = new QWidget(rows());
  auto* grid = layoutIn<QGridLayout>(place);
  grid->setColumnStretch(0, 1);
  for (int kind = 0; kind < kGradientKinds; ++kind) {
    auto* button = new QRadioButton(kLooks.at(static_cast<std::size_t>(kind)).caption, place);
    button->setObjectName(QString("OptGradType(%1)").arg(kind));
    connect(button, &QRadioButton::clicked, this, [this, kind] { panel_.pickKind(kind); });
    kinds_.at(static_cast<std::size_t>(kind)) = button;
    grid->addWidget(button, kind, 0);
    if (kind < GradientPanel::kAngles) addAngle(grid, kind);
  }
  addWide(place);
}

void GradientPanelView::addAngle(QGridLayout* grid, int kind) {
  const QString name = QString("%1 angle").arg(kLooks.at(static_cast<std::size_t>(kind)).name);
  // Its name says more than the label beside it.
  QComboBox* list = makeUnlabelledList(grid->parentWidget(), QString("cboGradientAngle(%1)").arg(kind), name);
  auto* label = new QLabel("Angle:", grid->parentWidget());
  label->setObjectName(QString("lblGradientAngle(%1)").arg(kind));
  connect(list, &QComboBox::activated, this, [this, kind](int index) { panel_.pickAngle(kind, index); });
  angles_.at(static_cast<std::size_t>(kind)) = list;
  grid->addWidget(label, kind, 1);
  grid->addWidget(list, kind, 2);
}

void GradientPanelView::addGradients() {
  auto* place = new QWidget(rows());
  auto* row = layoutIn<QHBoxLayout>(place);
  for (int kind = 0; kind < kSpherical; ++kind) {
    auto* view = new SampleView(place, QString("PicGradient(%1)").arg(kind),
                                QString("%1 gradient").arg(kLooks.at(static_cast<std::size_t>(kind)).name),
                                panel_.PicGradient(kind), kSampleSide, SampleRoom::Fixed);
    view->setToolTip(kLooks.at(static_cast<std::size_t>(kind)).name);
    gradients_.at(static_cast<std::size_t>(kind)) = view;
  }
  auto* spherical =
      new PointSampleView(place, QString("PicGradient(%1)").arg(kSpherical), "Click to change center point",
                          panel_.PicGradient(kSpherical), kSampleSide, SampleRoom::Fixed);
  connect(spherical, &PointSampleView::picked, this, [this](int x, int y) { panel_.clickCenter(x, y); });
  gradients_.at(kSpherical) = spherical_ = spherical;
  for (SampleView* view : gradients_) row->addWidget(view);
  row->addStretch();
  addWide(place);
}

ColorButton* GradientPanelView::makeColorButton(QWidget* parent, int i) {
  auto* button = new ColorButton(parent, QString("cmdGradientColor(%1)").arg(i),
                                 kColorTips.at(static_cast<std::size_t>(i)), panel_.color(i));
  connect(button, &QAbstractButton::clicked, this, [this, i] { panel_.chooseColor(i); });
  colors_.at(static_cast<std::size_t>(i)) = button;
  return button;
}

void GradientPanelView::addColors() {
  auto* place = new QWidget(rows());
  auto* row = layoutIn<QHBoxLayout>(place);
  row->addWidget(makeColorButton(place, 0));
  row->addWidget(makeColorButton(place, 1));
  auto* swap = new QPushButton("S&wap", place);
  swap->setObjectName("cmdGradientColor(2)");
  swap->setToolTip(kSwapTip);
  swap->setAccessibleName(kSwapTip);
  swap->setAutoDefault(false);
  connect(swap, &QPushButton::clicked, this, [this] { panel_.swapColors(); });
  row->addWidget(swap);
  row->addStretch();
  addRow("lblGradientColors", "Colors:", place);
}

// Setting a button or a list here does not emit `clicked` or `activated`, which only a choice of the user does.
void GradientPanelView::refresh() {
  kinds_.at(static_cast<std::size_t>(panel_.kind()))->setChecked(true);
  for (int i = 0; i < GradientPanel::kAngles; ++i)
    angles_.at(static_cast<std::size_t>(i))->setCurrentIndex(panel_.angle(i));
  for (ColorButton* button : colors_) button->refresh();
  for (SampleView* view : gradients_) view->refresh();
  // The pixel of the keyboard stays where the user has moved it.
  const int center = panel_.center();
  spherical_->setPoint(spherical_->hasFocus() ? spherical_->point() : QPoint(xOfPoint(center), yOfPoint(center)));
}

}  // namespace gp
