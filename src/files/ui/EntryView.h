// Previews an entry of a file, centred in a frame of fixed size: lblIconInFile and picIconInFile. A larger picture is
// scaled down. Owns no pixels: the Surface must outlive it.
#pragma once

#include "platform/gdi/Surface.h"
#include "platform/qt/Accessibility.h"

#include <QWidget>

namespace gp {

struct EntryViewNames {
  QString frame;    // lblIconInFile
  QString picture;  // picIconInFile
};

class EntryView final : public QWidget, public AccessibleValue {
  Q_OBJECT

 public:
  // `side` is the width and height of the frame's interior, in pixels.
  EntryView(QWidget* parent, const EntryViewNames& names, const Surface& shown, int side);

  // Called when the content of the Surface has changed.
  void refresh();

  QString accessibleValue() const override;  // "32 by 32 pixels"
  QAccessible::Role accessibleRole() const override { return QAccessible::Graphic; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  const Surface& shown_;
  QWidget* picIconInFile;
};

}  // namespace gp
