#include "effects/ui/LevelsControl.h"

#include "document/ui/Lists.h"
#include "effects/Cast.h"
#include "effects/Channels.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSlider>

namespace gp {
namespace {

constexpr int kGap = 8;
constexpr int kHighestLevel = 255;
constexpr int kLevelsPerPage = 16;
constexpr int kPrefixLength = 3;  // of "cbo"
constexpr std::array<const char*, kChannelCount> kChannelNames{"Red", "Green", "Blue"};

}  // namespace

LevelsControl::LevelsControl(QWidget* parent, const Setting& setting) : QWidget(parent) {
  const QString suffix = QString(setting.control).mid(kPrefixLength);
  setObjectName(setting.control);
  setAccessibleName("Levels");
  auto* rows = new QVBoxLayout(this);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->setSpacing(kGap);
  auto* label = new QLabel(setting.label, this);
  label->setObjectName("lbl" + suffix);
  rows->addWidget(label);
  rows->addWidget(makeLists(setting));
  rows->addWidget(makeSlider(suffix));
  rows->addWidget(makeButton(suffix, setting.first));
}

QWidget* LevelsControl::firstList() const { return lists_.front(); }

QWidget* LevelsControl::makeLists(const Setting& setting) {
  auto* place = new QWidget(this);
  auto* columns = new QHBoxLayout(place);
  columns->setContentsMargins(0, 0, 0, 0);
  columns->setSpacing(kGap);
  for (std::size_t i = 0; i < lists_.size(); ++i) {
    lists_[i] = makeUnlabelledList(place, QString("%1(%2)").arg(setting.control).arg(i), kChannelNames[i]);
    columns->addWidget(lists_[i], 1);
    connect(lists_[i], &QComboBox::activated, this, [this, i](int level) {
      Channels levels = channelsOf(levels_);
      levels[i] = level;
      emit chosen(colorOfChannels(levels));
    });
  }
  return place;
}

QWidget* LevelsControl::makeSlider(const QString& suffix) {
  slider_ = new QSlider(Qt::Horizontal, this);
  slider_->setObjectName("hsr" + suffix);
  slider_->setAccessibleName("All levels");
  slider_->setRange(0, kHighestLevel);
  slider_->setPageStep(kLevelsPerPage);
  connect(slider_, &QSlider::valueChanged, this,
          [this](int position) { emit chosen(levelsAfterSlide(levels_, position)); });
  return slider_;
}

QWidget* LevelsControl::makeButton(const QString& suffix, Color first) {
  auto* button = new QPushButton("&Restore", this);
  button->setObjectName("cmd" + suffix + "Restore");
  button->setAutoDefault(false);
  connect(button, &QPushButton::clicked, this, [this, first] { emit chosen(first); });
  return button;
}

// Only choices of the user are signalled: a list emits `activated` for them only, and the slider is blocked.
void LevelsControl::showLevels(Color levels) {
  levels_ = levels;
  for (std::size_t i = 0; i < lists_.size(); ++i) lists_[i]->setCurrentIndex(channelsOf(levels)[i]);
  const QSignalBlocker quiet(slider_);
  slider_->setValue(sliderOf(levels));
}

}  // namespace gp
