#include "extraction/Extraction.h"

#include "files/Files.h"

namespace gp {

Extraction::Extraction(Files& files, FileTypeIcons& fileTypes)
    : list(files.context(), files, fileTypes), search(files.context()) {}

}  // namespace gp
