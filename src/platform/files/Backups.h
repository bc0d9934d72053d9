// Copies of files that are being overwritten in place. They lie in the state folder of the person, where only that
// person may read them. A backup that is there when no program uses it belongs to a write that never ended.
#pragma once

#include "platform/files/PieceWriting.h"
#include "platform/files/TemporaryFile.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace gp {

class Backup {
 public:
  // Writes a backup of a file's content and waits until it is on the disk. Null when that fails.
  static std::unique_ptr<Backup> make(const std::string& path, Piece content);

  // Removes the backup. Without this call it stays.
  void remove();

 private:
  explicit Backup(Descriptor folder);
  bool write(const std::string& path, Piece content);

  Descriptor folder_;
  TemporaryFile file_;
  std::string name_;
};

// A backup that no running program uses.
struct LeftBackup {
  std::string backup;  // its path
  std::string path;    // of the file
};
// Returns the backups in the state folder, the oldest first. Those of files that have the content of the backup are
// removed instead. A file has several when writing it has failed repeatedly; only the oldest is sure to be undamaged.
std::vector<LeftBackup> leftBackups(const std::string& folder);
// Removes the backups of a file that has been written as a whole since.
void discardBackupsOf(const std::string& path, const std::string& folder);
// Writes the content of the backup to its file, and then removes all backups of the file. False when the file cannot be
// written; the backups then stay.
[[nodiscard]] bool restore(const LeftBackup& left);
void discard(const LeftBackup& left);

}  // namespace gp
