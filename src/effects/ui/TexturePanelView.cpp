#include "effects/ui/TexturePanelView.h"

#include "document/ui/Lists.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace gp {
namespace {

constexpr int kGap = 8;
constexpr const char* kOpenTip = "Open custom pattern bitmap file";

}  // namespace

TexturePanelView::TexturePanelView(QWidget* parent, TexturePanel& panel)
    : EffectPanelView(parent, panel), panel_(panel) {
  addList(TextureList::Pattern, "Pattern &in use:");
  addOpen();
  addList(TextureList::Style, "&Style:");
  addList(TextureList::Depth, "&Depth:");
  addSamples({{"picTexturize(0)", "Sample", panel_.sample()}, {"picTexturize(1)", "Pattern", panel_.picTexturize()}});
  setFirstControl(lists_.at(TextureList::Pattern));
  refresh();
}

void TexturePanelView::addList(TextureList list, const char* caption) {
  const QString name = QString(caption).remove('&').remove(':');
  QComboBox* combo = makeList(rows(), panel_.listOf(list), name);
  connect(combo, &QComboBox::activated, this, [this, list](int index) { panel_.pick(list, index); });
  addRow(QString("lblTexturize(%1)").arg(static_cast<int>(list)), caption, combo);
  lists_.emplace(list, combo);
}

void TexturePanelView::addOpen() {
  auto* place = new QWidget(rows());
  auto* columns = new QHBoxLayout(place);
  columns->setContentsMargins(0, 0, 0, 0);
  columns->setSpacing(kGap);
  auto* button = new QPushButton("Open c&ustom ....", place);
  button->setObjectName("cmdTextureOpen");
  button->setToolTip(kOpenTip);
  button->setAccessibleName(kOpenTip);
  button->setAutoDefault(false);
  connect(button, &QPushButton::clicked, this, [this] { panel_.cmdTextureOpen(); });
  auto* label = new QLabel("(Custom 48x48)", place);
  label->setObjectName("lblTextureOpen");
  columns->addWidget(button);
  columns->addWidget(label, 1);
  addWide(place);
}

// Changing a list here does not emit `activated`, which only a choice of the user does.
void TexturePanelView::refresh() {
  for (const auto& [list, combo] : lists_) {
    showEntries(combo, panel_.listOf(list).entries);
    combo->setCurrentIndex(panel_.choiceOf(list));
  }
}

}  // namespace gp
