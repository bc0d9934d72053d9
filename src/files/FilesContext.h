// What the commands on icon files work with.
#pragma once

#include "document/Context.h"

namespace gp {

class Drawing;
class FileForms;
class clsGPDialog;
struct Document;
struct MultiIconExchange;

struct FilesContext : Context {
  Document& document;
  Drawing& drawing;
  clsGPDialog& dialog;
  MultiIconExchange& multiIcon;  // between the commands and the browser of multi-icon files
  FileForms*& forms;             // null until there is a main form to show forms over
};

}  // namespace gp
