// picANIContainer(0): the pane of the animated cursor session. It lies over a column of the form, which it covers at
// its normal size; in compact and minimized size it is at the bottom of the column. The title drags it to another
// place. It shows the session and forwards events to it, and has no rules.
#pragma once

#include "animation/ui/AniEvents.h"

#include <QWidget>

#include <optional>

namespace gp {

class AniBody;
class AniButtons;
class AniTitle;
struct ScreenState;

class AniPane final : public QWidget {
  Q_OBJECT

 public:
  // `column` must be in the layout of its parent, which is also the parent of the pane. The screen and what the events
  // refer to must outlive the pane.
  AniPane(QWidget* column, const ScreenState& screen, AniEvents events);

  // Shows, hides and resizes the pane, and shows the session again.
  void refresh();
  void refreshTest();

 signals:
  // The pane had the focus and was hidden: another widget must take it.
  void focusGivenBack();

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void appear();
  void disappear();
  void showContent();
  void arrange();
  void keepFocus(bool hadFocus);
  void place();
  QSize sizeNow() const;
  void dragBy(const QPoint& distance);
  bool hasFocusInside() const;

  QWidget* column_;
  const ScreenState& screen_;
  const AniEvents events_;
  AniButtons* buttons_;
  AniTitle* title_;
  AniBody* body_;
  std::optional<AniPaneSize> arranged_;
  std::optional<QPoint> dragged_;  // the corner that the user has chosen
  QString spoken_;                 // the film's value when it was last announced
};

}  // namespace gp
