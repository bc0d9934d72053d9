// A new file beside the one that it is to replace. It has no name until it takes one, where the file system can do
// that, so that a program that dies leaves nothing behind. Removed at the end of this object's life unless it took a
// name.
#pragma once

#include "platform/files/Descriptor.h"

#include <string>
#include <sys/stat.h>

namespace gp {

class TemporaryFile {
 public:
  // `folder` must outlive this object. When it cannot be made, isOpen is false and errno has the reason.
  TemporaryFile(const Descriptor& folder, mode_t permissions);
  ~TemporaryFile();
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;

  bool isOpen() const { return file_.isOpen(); }
  int number() const { return file_.number(); }

  // Takes owner and group of a file, and permissions. Returns false when one of them cannot be had.
  bool takeOwnerAndMode(const struct stat& status, mode_t permissions);
  // Takes the extended attributes of the file at a path, as far as that is allowed. Access lists are among them.
  void takeAttributes(const std::string& path);
  // Waits until the content is on the disk. Returns false when it may not be.
  bool finish() { return systemCalls().sync(file_.number()) == 0; }

  // Take a name in the folder: of a file that is replaced, and one that must be new. Return false with errno set; after
  // EEXIST, takeNewName may be called again with another name.
  bool takeName(const std::string& name);
  bool takeNewName(const std::string& name);
  // Takes any new name with an extension. Returns it; empty on failure.
  std::string takeAnyName(const std::string& extension);

 private:
  bool openNamed(mode_t mode);
  bool takeInterimName();

  const Descriptor& folder_;
  Descriptor file_;
  std::string name_;  // empty while it has none
};

}  // namespace gp
