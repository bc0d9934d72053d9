// An icon at its own size, in the middle of a square of one colour with an outline.
#pragma once

#include "platform/gdi/Surface.h"

#include <QWidget>

namespace gp {

class AlphaSampleView final : public QWidget {
  Q_OBJECT

 public:
  // Keeps no pixels: the picture must outlive the view and can change at any time.
  AlphaSampleView(QWidget* parent, const QString& objectName, const QString& accessibleName, const Surface& picture,
                  Color ground);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  const Surface& picture_;
  const Color ground_;
};

}  // namespace gp
