#include "cli/OrderedJobs.h"

#include <algorithm>
#include <atomic>
#include <cstdio>
#include <thread>

namespace gp::cli {
namespace {

constexpr std::size_t kMostKept = std::size_t{1} << 20;  // bytes of text, and complaints
constexpr int kMostJobs = 64;

}  // namespace

void Turns::await(std::size_t item) {
  std::unique_lock lock(mutex_);
  changed_.wait(lock, [&] { return next_ == item; });
}

void Turns::end(std::size_t item) {
  await(item);
  {
    const std::lock_guard lock(mutex_);
    ++next_;
  }
  changed_.notify_all();
}

void ItemOutput::print(std::string_view text) {
  text_ += text;
  if (text_.size() > kMostKept) flush();
}

void ItemOutput::complain(const std::string& file, const std::string& reason) {
  status_ = kRefused;
  complaints_.emplace_back(file, reason);
  if (complaints_.size() > kMostKept / sizeof(complaints_.front())) flush();
}

void ItemOutput::flush() {
  turns_.await(item_);
  if (array_ && !text_.empty() && !std::exchange(hasBegun_, true)) array_->next();
  std::fwrite(text_.data(), 1, text_.size(), stdout);
  text_.clear();
  for (const auto& [file, reason] : complaints_) cli::complain(file, reason);
  complaints_.clear();
}

void ItemOutput::finish() {
  flush();
  turns_.end(item_);
}

int runInOrder(std::size_t count, int jobs, JsonArray* array,
               const std::function<void(std::size_t item, ItemOutput& output)>& work) {
  Turns turns;
  std::atomic<std::size_t> next = 0;
  std::atomic<int> status = kDone;
  const auto run = [&] {
    for (std::size_t item = next++; item < count; item = next++) {
      ItemOutput output(turns, item, array);
      work(item, output);
      output.finish();
      if (output.status() != kDone) status = output.status();
    }
  };
  const auto threads = std::min<std::size_t>(count, static_cast<std::size_t>(std::clamp(jobs, 1, kMostJobs)));
  std::vector<std::jthread> others;
  for (std::size_t i = 1; i < threads; ++i) others.emplace_back(run);
  run();
  others.clear();  // waits for them
  return status;
}

bool takeJobs(Arguments& arguments, int& jobs) {
  std::string text;
  jobs = static_cast<int>(std::max(1U, std::thread::hardware_concurrency()));
  if (!takeOption(arguments, "--jobs", text)) return false;
  return text.empty() || (parseNumber(text, jobs) && jobs > 0);
}

}  // namespace gp::cli
