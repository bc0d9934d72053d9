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
  // Where the content stands inside a frame of this size and font.
  QMargins frameMargins() const;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QString caption_;
};

}  // namespace gp
