// What the subcommands share that make one file of one image: taking their arguments apart, loading the image and
// writing the icon that has become of it. A refusal touches no file.
#pragma once

#include "cli/Console.h"
#include "cli/EntryLoading.h"

#include <cstddef>
#include <optional>
#include <string>

namespace gp::cli {

// "IN.ico INDEX OUT", and what stands behind that.
struct ImageArguments {
  std::string input;
  int index = 0;
  std::string output;
  Arguments more;
};
// Takes them out of arguments that no option of the command is in any more. `needed` is how they are told in a
// complaint, `more` how many stand behind OUT. Gives kDone, or kBadUsage after a complaint.
int takeImageArguments(const std::string& command, const std::string& needed, const Arguments& arguments,
                       std::size_t more, ImageArguments& told);

// Loads the image as the editor does when it opens a file. Empty after a complaint.
std::optional<LoadedIcon> loadImage(const ImageArguments& told);
// The same for an effect, which takes no icon with alpha.
std::optional<LoadedIcon> loadImageForEffect(const ImageArguments& told);

// Gives kDone for an output that has been written, otherwise kRefused after a complaint.
int answerToWriting(bool isWritten, const std::string& output);
// Writes an icon as the editor saves one of that record. Returns the exit status.
int writeIcon(const IconImage& icon, const IconContainerRec& record, const std::string& output);

}  // namespace gp::cli
