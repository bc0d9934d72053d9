// The place that a write goes to: the folder, opened, and the name in it, with links resolved, and what is there now.
#pragma once

#include "platform/files/Descriptor.h"
#include "platform/files/FileVersion.h"

#include <optional>
#include <string>
#include <sys/stat.h>

namespace gp {

struct WriteTarget {
  Descriptor folder;
  std::string folderPath;
  std::string name;
  std::optional<struct stat> status;  // of what has the name; never of a link
  bool isPrivate = false;             // only the owner gets access

  std::string path() const { return folderPath + "/" + name; }
  bool exists() const { return status.has_value(); }
  // The permissions of the file with the new content.
  mode_t permissions() const;
  // True for a new name and for an ordinary file that its owner may write.
  bool mayBeWritten() const;
};

// Follows symbolic links, also to names that do not exist yet. Empty when there is no such folder or the links form a
// circle.
std::optional<WriteTarget> findWriteTarget(const std::string& path);
// A name in a folder; links are not followed. Empty when the name is not a plain one or the folder cannot be opened.
std::optional<WriteTarget> findWriteTarget(const std::string& folder, const std::string& name);
// What has the target's name now, links not followed.
std::optional<struct stat> statusOf(const WriteTarget& target);

// Makes renamed and removed names of a folder durable. Returns false when the device reports an error.
bool syncFolder(const Descriptor& folder);

}  // namespace gp
