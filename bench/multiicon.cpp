// Measures opening a file of 99 icons in the browser, from the file on disk to the first preview: the core only,
// without a form. Processor time of the whole process.
#include "ManyIconsFile.h"
#include "files/browser/MultiIconBrowser.h"

#include <benchmark/benchmark.h>

namespace {

using namespace gp;

void openBrowser(benchmark::State& state, bench::Icons icons) {
  bench::ManyIconsFile file(icons);
  for (auto _ : state) {
    MultiIconBrowser browser(file.context());
    browser.activate();
    if (browser.selectedIcon() < 0) return state.SkipWithError("no preview");
    benchmark::DoNotOptimize(browser.picIconInFile().pixels().data());
  }
}
BENCHMARK_CAPTURE(openBrowser, deep, bench::Icons::Deep)->MeasureProcessCPUTime()->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(openBrowser, mixed, bench::Icons::Mixed)->MeasureProcessCPUTime()->Unit(benchmark::kMillisecond);

}  // namespace
