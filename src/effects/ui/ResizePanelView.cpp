#include "effects/ui/ResizePanelView.h"

#include "document/ui/Lists.h"
#include "document/ui/SampleView.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>

namespace gp {
namespace {

constexpr int kSampleSide = 96;
constexpr const char* kSoftenedPart = "(Softened)           ";
constexpr const char* kPlainPart = "(Not Softened)";
constexpr std::array<const char*, ResizePanel::kOptions> kNames{"Softened", "Not softened"};

}  // namespace

ResizePanelView::ResizePanelView(QWidget* parent, ResizePanel& panel)
    : EffectPanelView(parent, panel), panel_(panel), option_(makeList(rows(), "cboResizeIcon", "Option")) {
  addRow("lblResizeIcon", "Op&t:", option_);
  connect(option_, &QComboBox::activated, this, [this](int index) { panel_.pickOption(index); });
  addRow("lblResizeIconRemark", "(Remarks: Undo will not be available)");
  addBothSamples();
  addButtons();
  setFirstControl(option_);
  refresh();
}

// Each sample begins below its part of the label.
void ResizePanelView::addBothSamples() {
  QLabel* label = addRow("lblResizeIconSamples", QString(kSoftenedPart) + kPlainPart);
  auto* place = new QWidget(rows());
  auto* grid = new QGridLayout(place);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setSpacing(0);
  grid->setColumnMinimumWidth(0, label->fontMetrics().horizontalAdvance(kSoftenedPart));
  grid->setColumnStretch(1, 1);
  grid->setRowStretch(1, 1);
  for (int i = 0; i < ResizePanel::kOptions; ++i) {
    auto* view = new SampleView(place, QString("picResizeIcon(%1)").arg(i), kNames.at(static_cast<std::size_t>(i)),
                                panel_.picResizeIcon(i), kSampleSide, SampleRoom::Fixed);
    grid->addWidget(view, 0, i, Qt::AlignLeft | Qt::AlignTop);
    results_.at(static_cast<std::size_t>(i)) = view;
  }
  addTall(place);
}

// Setting the list here does not emit `activated`, which only a choice of the user does.
void ResizePanelView::refresh() {
  setTitle(QString::fromStdString(panel_.caption()));
  option_->setCurrentIndex(panel_.cboResizeIcon());
  for (SampleView* view : results_) view->refresh();
}

}  // namespace gp
