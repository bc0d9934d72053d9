// lblIconInFile and picIconInFile: the preview of an entry of a file, in the middle of a place of one size. A picture
// that is larger than the place is scaled down to it as a whole. It owns no pixels: the Surface must outlive it.
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
  // `side` is the room for the picture, in pixels both ways.
  EntryView(QWidget* parent, const EntryViewNames& names, const Surface& shown, int side);

  // Another picture stands in the Surface now.
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
