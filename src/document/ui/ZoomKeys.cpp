#include "document/ui/ZoomKeys.h"

#include <QShortcut>

#include <array>

namespace gp {
namespace {

struct ZoomKey {
  const char* keys;
  ZoomStep step;
};

// Many keyboards have plus with Shift, on the key of the equals sign.
constexpr std::array<ZoomKey, 4> kZoomKeys = {
    {{"Ctrl++", ZoomStep::In}, {"Ctrl+=", ZoomStep::In}, {"Ctrl+-", ZoomStep::Out}, {"Ctrl+0", ZoomStep::ToOption}}};

}  // namespace

void addZoomKeys(QWidget* window, const std::function<void(ZoomStep)>& zoom) {
  for (const ZoomKey& key : kZoomKeys) {
    auto* shortcut = new QShortcut(QKeySequence(QString(key.keys)), window);
    QObject::connect(shortcut, &QShortcut::activated, window, [zoom, step = key.step] { zoom(step); });
  }
}

}  // namespace gp
