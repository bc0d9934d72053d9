// Works on several items at once and prints what each one gives in their order.
#pragma once

#include "cli/Console.h"
#include "cli/Json.h"

#include <condition_variable>
#include <cstddef>
#include <functional>
#include <mutex>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace gp::cli {

// Whose turn it is. Items are begun in their order, so that the one whose turn it is is always under way.
class Turns {
 public:
  // Waits until all items before this one have ended their turn.
  void await(std::size_t item);
  // Each item ends its turn once.
  void end(std::size_t item);

 private:
  std::mutex mutex_;
  std::condition_variable changed_;
  std::size_t next_ = 0;
};

// What one item gives. It is kept until all items before it are printed, but no more than about a megabyte of it: a
// longer one waits for its turn.
class ItemOutput {
 public:
  ItemOutput(Turns& turns, std::size_t item, JsonArray* array) : turns_(turns), item_(item), array_(array) {}

  void print(std::string_view text);
  // As cli::complain; the exit status becomes kRefused.
  void complain(const std::string& file, const std::string& reason);
  int status() const { return status_; }
  // The item is done: prints all of it, in its turn.
  void finish();

 private:
  void flush();

  Turns& turns_;
  std::size_t item_;
  JsonArray* array_;  // of which this item is an element, if it prints anything; null without one
  bool hasBegun_ = false;
  std::string text_;
  std::vector<std::pair<std::string, std::string>> complaints_;
  int status_ = kDone;
};

// Calls `work` for each of the items 0 to count - 1, on at most `jobs` threads. With an array, what each item prints is
// one element. Returns kDone, or kRefused after a complaint.
int runInOrder(std::size_t count, int jobs, JsonArray* array,
               const std::function<void(std::size_t item, ItemOutput& output)>& work);

// Removes "--jobs N" from the arguments; without it, `jobs` is the number of cores. False for anything but a number
// above 0.
bool takeJobs(Arguments& arguments, int& jobs);

}  // namespace gp::cli
