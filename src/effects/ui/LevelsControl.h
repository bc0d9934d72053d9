// The control of a setting that is a level for each channel: three lists, a slider that moves all of them, and a button
// that restores the first levels.
#pragma once

#include "effects/Setting.h"

#include <QWidget>

#include <array>

class QComboBox;
class QSlider;

namespace gp {

class LevelsControl final : public QWidget {
  Q_OBJECT

 public:
  // For the control "cboCast" the lists are "cboCast(0)" to "cboCast(2)", slider and button "hsrCast" and
  // "cmdCastRestore". The setting must outlive the control.
  LevelsControl(QWidget* parent, const Setting& setting);

  void showLevels(Color levels);
  QWidget* firstList() const;

 signals:
  // The user has chosen other levels.
  void chosen(int levels);

 private:
  QWidget* makeLists(const Setting& setting);
  QWidget* makeSlider(const QString& suffix);
  QWidget* makeButton(const QString& suffix, Color first);

  Color levels_ = kBlack;
  std::array<QComboBox*, 3> lists_{};
  QSlider* slider_ = nullptr;
};

}  // namespace gp
