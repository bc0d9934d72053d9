// Where the program finds and keeps its own files. Folders that it makes can be entered by their owner only.
#pragma once

#include <string>
#include <vector>

namespace gp {

inline constexpr const char* kSettingsFileName = "Glimmerpane.ini";

struct ProgramFolders {
  std::string settings;           // of the settings file
  std::string scratch;            // of files that live for one command
  std::string state;              // of backups; see Backups.h. Empty when it cannot be made
  std::vector<std::string> data;  // of the manual and the companion, in the order of the search

  // Returns the path of a file in the first data folder that has it; without any, its path in the first folder.
  std::string dataFile(const std::string& name) const;
};

// The variables that the choice depends on; empty when unset. Relative folders in them are ignored.
struct FolderVariables {
  std::string home;
  std::string configHome;
  std::string temporary;
};

// Settings: the executable's folder if it has a settings file that can be written (portable use), otherwise
// "$XDG_CONFIG_HOME/Glimmerpane" or "~/.config/Glimmerpane", and without any of these the executable's folder.
// Scratch: a private folder in the folder for temporary files, or the settings folder if another person has its name.
// Data: the executable's folder, then "share/glimmerpane" of its installation prefix. Makes the folders.
ProgramFolders chooseProgramFolders(const std::string& executableFolder, const FolderVariables& variables);
// Makes the choice for this process.
ProgramFolders programFolders();

// Returns the folder for state of the program: "$XDG_STATE_HOME/Glimmerpane" or "~/.local/state/Glimmerpane". Makes it;
// empty when that fails.
std::string stateFolder();

// Makes a folder, if it is missing, that only its owner may enter. Returns its path; empty when that fails or when it
// belongs to another person.
std::string makePrivateFolder(const std::string& path);

}  // namespace gp
