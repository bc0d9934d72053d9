// A setting of an effect: the values that it may have, the option of gpicon and the control of the side panel.
#pragma once

#include "document/ListTables.h"
#include "effects/EffectValues.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace gp {

// How a value is written and chosen. Each value is stored as an int.
enum class SettingKind {
  Number,  // a whole number; a list on the panel
  Tenths,  // a number with one decimal, stored in tenths; a list on the panel
  Word,    // one of `words`, stored as its index; a list on the panel
  Rgb,     // a Colour; a tick box on the panel that selects the current colour instead of `first`
  Levels,  // a number from 0 to 255 for each channel, stored as a Colour; three lists and a slider on the panel
  Flag,    // 0 or 1; an option without a value, a tick box on the panel
  Point,   // see pointValue; a sample to click on, on a panel with its own class
  // The next two are files, whose content is in EffectValues::pictures(). A panel with its own class chooses them.
  IconFile,    // the name of an icon file; stored as 0
  PictureFile  // one of `words`, stored as its index, or the name of a picture file, stored as their number
};

struct Setting {
  const char* option = "";  // name of gpicon's option, without "--"; empty for a setting of the panel only
  SettingKind kind = SettingKind::Number;
  int from = 0, to = 0;                     // lowest and highest value of a number or tenths
  int step = 1;                             // from one list entry to the next; below 0 the list starts with `to`
  int first = 0;                            // the value that applies until another one is chosen
  std::span<const char* const> words = {};  // of a Word or a PictureFile
  bool isRequired = false;                  // gpicon requires the option
  // Returns whether the setting has a part in the result with these values; null when it always has. Otherwise gpicon
  // refuses the option, naming what it goes with: "a color of hue 0".
  bool (*applies)(const EffectValues& values) = nullptr;
  const char* goesWith = "";
  const char* control = "";  // objectName of the panel's control: "cboButtonizePattern"; empty for an option only
  const char* label = "";    // caption of the control, with access letter
  const char* help = "";     // what the values mean, for the help of gpicon
};

// The lowest and highest value that the setting allows.
int lowestValue(const Setting& setting);
int highestValue(const Setting& setting);

// The panel's control offers a number of choices, counted from 0: the entries of a list, off and on, or all
// levels.
bool hasList(const Setting& setting);
// Whether the value is the name of a file, which must be read.
bool isFile(const Setting& setting, int value);
// The list of the control. One that the tables of lists do not contain has an entry for each value.
FilledList listOf(const Setting& setting);
int choiceCount(const Setting& setting);
// The choice that the control shows first.
int firstChoice(const Setting& setting);
// The value of a choice, which must be in range. `currentColor` is the second choice of an Rgb.
int valueOfChoice(const Setting& setting, int choice, Color currentColor);

// "N", "RRGGBB", "normal|small|tiny"; empty for a Flag.
std::string placeholderOf(const Setting& setting);
// "a number from 0 to 2", "six hexadecimal digits", "normal, small or tiny"; "no value" for a Flag.
std::string allowedValues(const Setting& setting);
// The value that a text on the command line describes; nothing when the setting does not allow it. A Flag has no text.
std::optional<int> valueOfText(const Setting& setting, std::string_view text);
// The text that describes a value.
std::string textOfValue(const Setting& setting, int value);
// The settings' first values, in their order.
EffectValues firstValues(std::span<const Setting> settings);

}  // namespace gp
