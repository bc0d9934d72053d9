#include "document/ui/FileDrops.h"

#include "document/IconsPanel.h"

#include <QDropEvent>
#include <QMimeData>
#include <QUrl>
#include <QWidget>

namespace gp {
namespace {

std::vector<std::string> localFiles(const QMimeData* data) {
  std::vector<std::string> files;
  for (const QUrl& url : data->urls()) {
    if (!url.isLocalFile()) continue;
    // Decoded here, since a file name need not be valid text.
    files.push_back(QByteArray::fromPercentEncoding(url.path(QUrl::FullyEncoded).toLatin1()).toStdString());
  }
  return files;
}

}  // namespace

FileDrops::FileDrops(QWidget* target, const IconsPanel& panel) : QObject(target), panel_(panel) {
  target->setAcceptDrops(true);
  target->installEventFilter(this);
}

// The file is only read, so its owner must keep it: the action is a copy, whatever is proposed. After an accepted move
// the source would delete the file.
void FileDrops::answer(QDropEvent& event) const {
  event.setAccepted(event.possibleActions().testFlag(Qt::CopyAction) &&
                    panel_.PanelDragOver(localFiles(event.mimeData())));
  if (event.isAccepted()) event.setDropAction(Qt::CopyAction);
}

bool FileDrops::eventFilter(QObject* watched, QEvent* event) {
  switch (event->type()) {
    case QEvent::DragEnter:
    // Keys pressed during a drag change the proposed action.
    case QEvent::DragMove:
      answer(*static_cast<QDropEvent*>(event));
      return true;
    case QEvent::Drop: {
      auto& drop = *static_cast<QDropEvent*>(event);
      answer(drop);
      if (drop.isAccepted()) emit dropped(localFiles(drop.mimeData()));
      return true;
    }
    default:
      return QObject::eventFilter(watched, event);
  }
}

}  // namespace gp
