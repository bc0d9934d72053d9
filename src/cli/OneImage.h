// What the subcommands share that make one file of one image: taking their arguments apart, loading the image and
// writing the icon that has become of it. A refusal touches no file.
#pragma once

#include "cli/Console.h"
#include "document/EditState.h"
#include "document/IconImage.h"

#include <cstddef>
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

// Makes the image the Current Icon, as the editor does when it opens a file. False after a complaint.
[[nodiscard]] bool loadImage(const ImageArguments& told, EditState& state);
// The same for an effect, which takes no icon with alpha.
[[nodiscard]] bool loadImageForEffect(const ImageArguments& told, EditState& state);

// Gives kDone for an output that has been written, otherwise kRefused after a complaint.
int answerToWriting(bool isWritten, const std::string& output);
// Writes the Current Icon as the editor saves it. Gives the exit status.
int writeIcon(const EditState& state, const std::string& output);
// The same with the pictures that an effect has made of it.
int writeIcon(EditState& state, IconImage made, const std::string& output);

}  // namespace gp::cli
