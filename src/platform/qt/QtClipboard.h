// The desktop's clipboard, for pictures. Pictures of other programs are requested in a fixed list of formats, and only
// their corner is decoded. The program's own pictures are offered in all formats that Qt can write; Qt's clipboard owns
// them, and they are lost at exit unless the desktop keeps them.
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
  // Requires a QGuiApplication, which must outlive the clipboard.
  QtClipboard();

  // Queries the owner once for each content, because the owner may be slow to answer.
  bool hasImage() override;
  bool getImage(ClipboardImage& image, int limit) override;
  bool setImage(const Surface& image) override;
  void clear() override;

  // Called after the content has changed, whichever program changed it.
  std::function<void()> onChange;

 private:
  void changed();

  std::optional<bool> hasImage_;
  QPointer<QMimeData> ours_;  // set while the program's own picture is offered
  QObject listener_;
};

}  // namespace gp
