// A frame with a caption over it, for a labelled group of controls. The caption is painted only: the controls inside
// carry their own names.
#pragma once

#include <QWidget>

namespace gp {

class CaptionFrame : public QWidget {
  Q_OBJECT

 public:
  CaptionFrame(QWidget* parent, const QString& objectName, const QString& caption);

  const QString& caption() const { return caption_; }
  // The margins of a layout inside the frame.
  QMargins frameMargins() const;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QString caption_;
};

}  // namespace gp
