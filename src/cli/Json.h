// Writes JSON.
#pragma once

#include <string>
#include <string_view>

namespace gp::cli {

// A text in quotes. Bytes that are not valid UTF-8 become lone surrogates "\udc80" to "\udcff", so that different file
// names stay different and a reader can restore the bytes.
std::string jsonText(std::string_view text);

// Prints an array to stdout, one element per line: call next() before each element, and end() once.
class JsonArray {
 public:
  void next();
  void end();

 private:
  bool isEmpty_ = true;
};

}  // namespace gp::cli
