// Code of the subcommands that write one file from one image: parsing their arguments, loading the image and writing
// the resulting icon. When they refuse an image, no file is written.
#pragma once

#include "cli/Console.h"
#include "cli/EntryLoading.h"

#include <cstddef>
#include <optional>
#include <string>

namespace gp::cli {

// The arguments "IN.ico INDEX OUT" and those that follow.
struct ImageArguments {
  std::string input;
  int index = 0;
  std::string output;
  Arguments more;
};
// Parses arguments from which the options of the command have been removed. `needed` describes the arguments in an
// error message, `more` is the number of those after OUT. Returns kDone, or kBadUsage after an error message.
int takeImageArguments(const std::string& command, const std::string& needed, const Arguments& arguments,
                       std::size_t more, ImageArguments& given);

// Loads the image as the editor does when it opens a file. Empty after an error message.
std::optional<LoadedIcon> loadImage(const ImageArguments& given);
// The same, refusing icons with alpha.
std::optional<LoadedIcon> loadImageWithoutAlpha(const ImageArguments& given);

// Returns kDone if the output has been written, otherwise kRefused after an error message.
int answerToWriting(bool isWritten, const std::string& output);
// Writes an icon as the editor saves one with that record. Returns the exit status.
int writeIcon(const IconImage& icon, const IconContainerRec& record, const std::string& output);

}  // namespace gp::cli
