// Shows each file in a file dialog by the icon that it holds, and any other file by the desktop's picture.
#pragma once

#include <QFileIconProvider>
#include <QImage>

#include <functional>
#include <string>

namespace gp {

// Returns the picture of a file, null when it has none. Called in a thread of the dialog, so it must not use anything
// that another thread changes.
using FilePicture = std::function<QImage(const std::string& path)>;

class FilePictures final : public QFileIconProvider {
 public:
  // Width and height in the list of files, in device-independent pixels.
  static constexpr int kSide = 32;

  explicit FilePictures(FilePicture pictureOf);
  QIcon icon(const QFileInfo& file) const override;
  using QFileIconProvider::icon;

 private:
  const FilePicture pictureOf_;
};

}  // namespace gp
