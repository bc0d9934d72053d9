// The desktop's clipboard, for pictures. Pictures of other programs are requested in a fixed list of formats, and only
// their corner is decoded. A program that does not answer is waited for for one second, and no picture above 64 MB is
// taken. The program's own pictures are offered in all formats that Qt can write; Qt's clipboard owns
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
  enum class Asking { AtOnce, Later };
  // Requires a QGuiApplication, which must outlive the clipboard. With Asking::Later there is no picture, and no other
  // program is asked, until startAsking.
  explicit QtClipboard(Asking asking = Asking::AtOnce);
  void startAsking();

  // Queries the owner once for each content, because the owner may be slow to answer.
  bool hasImage() override;
  bool getImage(ClipboardImage& image, int limit) override;
  bool setImage(const Surface& image, const Surface& alpha) override;
  void clear() override;

  // Called after the content has changed, whichever program changed it.
  std::function<void()> onChange;

 private:
  void changed();

  bool isAsking_;
  std::optional<bool> hasImage_;
  QPointer<QMimeData> ours_;  // set while the program's own picture is offered
  QObject listener_;
};

}  // namespace gp
