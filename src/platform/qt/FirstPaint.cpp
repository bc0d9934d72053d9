#include "platform/qt/FirstPaint.h"

#include <QEvent>
#include <QTimer>

#include <utility>

namespace gp {
namespace {

class PaintWatcher : public QObject {
 public:
  PaintWatcher(QWidget& widget, std::function<void()> work) : QObject(&widget), work_(std::move(work)) {
    widget.installEventFilter(this);
  }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() != QEvent::Paint) return false;
    watched->removeEventFilter(this);
    QTimer::singleShot(0, this, [this] {
      work_();
      deleteLater();
    });
    return false;
  }

 private:
  std::function<void()> work_;
};

}  // namespace

void afterFirstPaint(QWidget& widget, std::function<void()> work) { new PaintWatcher(widget, std::move(work)); }

}  // namespace gp
