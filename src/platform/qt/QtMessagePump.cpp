#include "platform/qt/QtMessagePump.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QTimer>

namespace gp {

void QtMessagePump::pump() { QCoreApplication::processEvents(); }

void QtMessagePump::wait(int milliseconds) {
  pump();
  if (milliseconds <= 0) return;
  QEventLoop loop;
  QTimer::singleShot(milliseconds, Qt::PreciseTimer, &loop, &QEventLoop::quit);
  loop.exec();
}

}  // namespace gp
