// Lets an icon file be dropped on a widget and on what is inside it. The widget owns this object.
#pragma once

#include <QObject>

#include <string>
#include <vector>

class QDropEvent;
class QWidget;

namespace gp {

class IconsPanel;

class FileDrops : public QObject {
  Q_OBJECT

 public:
  // The IconsPanel, which decides what is accepted, must outlive the widget.
  FileDrops(QWidget* target, const IconsPanel& panel);

 signals:
  void dropped(std::vector<std::string> files);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void answer(QDropEvent& event) const;

  const IconsPanel& panel_;
};

}  // namespace gp
