// Tests that answer modal dialogs.
#pragma once

#include <QApplication>
#include <QTimer>

#include <functional>

namespace gp {

constexpr int kPatience = 5000;  // ms

// Runs `act` on the next modal window of a type.
template <class Dialog>
void whenShown(std::function<void(Dialog&)> act) {
  auto* poll = new QTimer(qApp);
  QObject::connect(poll, &QTimer::timeout, poll, [poll, act] {
    auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
    if (!dialog) return;
    poll->stop();
    poll->deleteLater();
    act(*dialog);
  });
  poll->start(5);
}

}  // namespace gp
