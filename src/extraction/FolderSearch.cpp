#include "extraction/FolderSearch.h"

namespace gp {

bool walkFolder(const std::string&, const std::string&, bool, const FolderVisitor&) { return true; }
int countIconsOfFile(const std::string&) { return 0; }
std::string searchedName(const SearchChoices&, const std::string&, int, int) { return {}; }
void extractIconsOfFile(const std::string&, const SearchChoices&, int&, const std::function<bool()>&) {}

}  // namespace gp
