// The column of the six containers with their labels, and the button that copies the Current Icon to its container.
// Reports clicks, right clicks and dropped files by signals.
#pragma once

#include "document/IconContainerRec.h"

#include <QAbstractButton>
#include <QLabel>

#include <array>
#include <string>
#include <vector>

namespace gp {

class IconsPanel;
struct EditState;

// picPanelIcon(i).
class ContainerButton : public QAbstractButton {
  Q_OBJECT

 public:
  ContainerButton(QWidget* parent, int container, const EditState& state, const IconsPanel& panel);
  void refresh();
  QSize sizeHint() const override;

 signals:
  void rightReleased();
  void filesDropped(std::vector<std::string> files);

 protected:
  // A click asks for the container; refresh() checks the button.
  void nextCheckState() override {}
  void paintEvent(QPaintEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dragMoveEvent(QDragMoveEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  bool isCurrent() const;
  void answer(QDropEvent* event) const;

  const int container_;
  const EditState& state_;
  const IconsPanel& panel_;
};

// lblPanelIcon(i).
class ContainerLabel : public QLabel {
  Q_OBJECT

 public:
  ContainerLabel(QWidget* parent, int container);
  void setCurrent(bool current);

 signals:
  void released(Qt::MouseButton button);

 protected:
  void mousePressEvent(QMouseEvent*) override {}
  void mouseReleaseEvent(QMouseEvent* event) override;
};

class IconsPanelView : public QWidget {
  Q_OBJECT

 public:
  IconsPanelView(QWidget* parent, const EditState& state, const IconsPanel& panel);

  // Updates the view after the icon of a container or the current container has changed.
  void refresh();

 signals:
  void containerChosen(int container);
  void containerRightClicked(int container);
  void filesDropped(int container, std::vector<std::string> files);
  void updateRequested();  // imgUpdIconsPanel

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void addContainer(int container, const IconsPanel& panel);

  const EditState& state_;
  std::array<ContainerButton*, kContainerCount> picPanelIcon_{};
  std::array<ContainerLabel*, kContainerCount> lblPanelIcon_{};
};

}  // namespace gp
