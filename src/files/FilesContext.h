// The objects that the commands on icon files use.
#pragma once

#include "document/Context.h"

namespace gp {

class Drawing;
class FileForms;
class clsGPDialog;
struct Document;
struct MultiIconExchange;
struct ProcessValues;

struct FilesContext : Context {
  ProcessValues& process;  // of the state: the folders of dialogs, the screen's depth
  Document& document;
  Drawing& drawing;
  clsGPDialog& dialog;
  MultiIconExchange& multiIcon;  // values exchanged with the browser of multi-icon files
  FileForms*& forms;             // null without a main form
};

}  // namespace gp
