#include "files/saving/MultiIconTexts.h"

#include "files/format/DepthTexts.h"
#include "platform/files/Files.h"

#include <array>

namespace gp {
namespace {

struct SaveTexts {
  const char* heldFile;
  const char* alreadyThere;
  const char* readOnly;
  const char* notWritten;
};

constexpr std::array<SaveTexts, 2> kSaveTexts{
    {{"File being saved to",
      " already in original multi-file.\n"
      "Multi-icon file cannot have two icons of identical size and color depth.\n"
      "\n"
      "You may save to a single-icon file or change color-depth first (to see\n"
      "original color-depth, click Enquiry menu).\n",
      "File is read-only.", "Failed to save current icon - at writing stage"},
     {"File being added to",
      " already in file.\n"
      "Multi-icon file cannot have two icons of identical\n"
      "size and color depth.",
      "File is read-only", "Failed to save current icon - writing"}}};

const SaveTexts& textsOf(SaveInto save) { return kSaveTexts.at(static_cast<std::size_t>(save)); }

}  // namespace

std::string sameIconText(const IconTraits& same, SaveInto save) {
  return colorText(same.depth) + " " + std::to_string(same.height) + " x " + std::to_string(same.width) +
         "\n\nIcon of same size and color palette" + textsOf(save).alreadyThere;
}

const char* notWrittenText(const std::string& path, SaveInto save) {
  return HasFileAttribute(path) ? textsOf(save).readOnly : textsOf(save).notWritten;
}

std::string openedInPanelText(int container, SaveInto save) {
  return std::string(textsOf(save).heldFile) + " is currently opened in Icons Panel ref " +
         std::to_string(container + 1) +
         ".\n"
         "\n"
         "Please unload that icon first  (by using \"Clear Container\"\n"
         "submenu of \"Edit\" main menu).\n";
}

std::string fileChangedText(const std::string& path) {
  return path + "\n\nThis file has been changed meanwhile.\nNothing has been written to it.";
}

std::string fileInUseText(const std::string& path) {
  return path + "\n\nAnother program is changing this file.\nNothing has been written to it.\n";
}

std::string notUpdatedText(WriteDefect defect, const std::string& path, SaveInto save) {
  return defect == WriteDefect::Changed ? fileChangedText(path) : notWrittenText(path, save);
}

std::string addNotReadText(const std::string& path, ArraysDefect defect) {
  return (defect == ArraysDefect::NotReadable ? "Failed to open " : "No icon found in ") + path;
}

std::string addNoPositionText(const std::string& path) {
  return "Discrepancy found in the position ref to add in " + path;
}

}  // namespace gp
