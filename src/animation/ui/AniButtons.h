// The buttons cmdANI(0 .. 19) of the pane, made from one table.
#pragma once

#include "animation/AniSession.h"

#include <QObject>

#include <array>
#include <initializer_list>

class QAbstractButton;
class QPushButton;
class QWidget;

namespace gp {

struct AniEvents;
class RovingFocus;

class AniButtons final : public QObject {
  Q_OBJECT

 public:
  static constexpr int kSide = 28;  // of a button with a picture, pixels

  // The events must outlive the buttons.
  AniButtons(QObject* parent, const AniEvents& events);

  // Makes a button with a picture; each index is made once.
  QWidget* makePicture(QWidget* parent, int index);
  // Makes cmdANI(8), whose caption is "Test" or "Stop".
  QWidget* makeTest(QWidget* parent);
  // Makes a group of buttons with pictures, in rows of `columns`. The group is one Tab stop.
  QWidget* makeGroup(QWidget* parent, std::initializer_list<int> indices, int columns);
  QAbstractButton* button(int index) const { return cmdANI_.at(static_cast<std::size_t>(index)); }

  // Brings enabling and captions up to date.
  void refresh();

 private:
  void add(int index, QAbstractButton* button);

  const AniEvents& events_;
  std::array<QAbstractButton*, AniSession::kButtonCount> cmdANI_{};
};

}  // namespace gp
