// The desktop's clipboard, as far as it holds pictures. What another program offers is asked for in the formats of a
// fixed list and is decoded only in part; a copy of our own is offered in all formats that the desktop knows. The
// pictures stay the property of Qt's clipboard, and go with the program unless the desktop keeps them.
#pragma once

#include "platform/ports/Clipboard.h"

#include <QObject>
#include <QPointer>

#include <functional>
#include <optional>

class QMimeData;

namespace gp {

class QtClipboard : public Clipboard {
 public:
  // There must be a QGuiApplication, and it must outlive the clipboard.
  QtClipboard();

  // Asks the owner once for each content, as it may be slow to answer.
  bool hasImage() override;
  bool getImage(ClipboardImage& image, int limit) override;
  bool setImage(const Surface& image) override;
  void clear() override;

  // The content is another one now, whoever changed it.
  std::function<void()> onChange;

 private:
  void changed();

  std::optional<bool> hasImage_;
  QPointer<QMimeData> ours_;  // while our own copy is offered
  QObject listener_;
};

}  // namespace gp
