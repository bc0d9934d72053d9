// The one way in which files are written. The new content goes to a new file in the same folder, which then takes the
// name: at every moment the name has the whole former or the whole new content, also after a failure, a kill or a power
// cut. Mode, owner, extended attributes and symbolic links are kept. Where a new file cannot take the name (several
// hard links, another owner, a folder that is not writable), the content is overwritten in place, behind a backup in
// the state folder; see Backups.h.
#pragma once

#include "platform/files/FileVersion.h"
#include "platform/files/PieceWriting.h"

#include <optional>
#include <string>

namespace gp {

enum class WriteDefect {
  None,
  NotOpened,     // not an ordinary file, read-only, no such folder, no permission, or no backup could be made
  Changed,       // not the file that was read: another program has replaced, changed or removed it
  AlreadyThere,  // a new file was wanted
  NotWritten     // for example a full disk. The former content is still there
};

// Writes a file, new or existing, kMaxFileBytes at most. When `read` is given, the file must still be that version.
[[nodiscard]] WriteDefect writeFile(const std::string& path, Pieces pieces,
                                    const std::optional<FileVersion>& read = std::nullopt);
// The same for one piece; true when it was written.
[[nodiscard]] bool replaceFile(const std::string& path, Piece bytes);
// The same for a file that only its owner may read.
[[nodiscard]] bool replacePrivateFile(const std::string& path, Piece bytes);

enum class ExistingFile { Keep, Replace };
// Writes a file in a folder that other people may have prepared: only a plain name, and nothing outside the folder is
// touched. A symbolic link, and a file that has other names, is never replaced: AlreadyThere.
[[nodiscard]] WriteDefect writeInto(const std::string& folder, const std::string& name, Piece bytes,
                                    ExistingFile existing);

// Lets writes beyond a limit on file sizes, and to a pipe without a reader, fail instead of ending the program. Call it
// first in main.
void ignoreWriteSignals();

}  // namespace gp
