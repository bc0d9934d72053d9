// The Editing Area (picDisp) and the area around it (picDispContainer).
#pragma once

#include "document/ui/MagnifiedView.h"

namespace gp {

struct EditState;

// The magnified view of the Current Icon.
class EditingAreaView : public MagnifiedView {
  Q_OBJECT

 public:
  EditingAreaView(QWidget* parent, const EditState& state);

  // Empty without an icon.
  QString accessibleValue() const override;

 signals:
  // The keyboard asks for the pop-up menu.
  void popUpRequested(QPoint globalPosition);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;

 private:
  const EditState& state_;
};

// picDispContainer: keeps the Editing Area in its middle, and shows around it that it has the focus.
class EditingAreaRoom : public QWidget {
  Q_OBJECT

 public:
  EditingAreaRoom(QWidget* parent, const EditState& state);

  EditingAreaView& view() { return *view_; }
  void refresh();

 signals:
  void resized(QSize client);

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void centre();

  EditingAreaView* view_;
};

}  // namespace gp
