// What a line of conversation costs in the dialogue pane, and for comparison in Qt's bare widget;
// what a long dialogue costs in memory, when resized, saved and loaded; and what a long macro
// costs.
#include <benchmark/benchmark.h>
#include <unistd.h>

#include <QApplication>
#include <algorithm>
#include <fstream>
#include <string>

#include "benchmarks/bare_pane.h"
#include "benchmarks/chat.h"
#include "benchmarks/loading_pane.h"
#include "benchmarks/write_lines.h"

namespace verlume {
namespace {

constexpr std::int64_t kLong = 100'000;  // lines

double ResidentBytes() {
  std::ifstream statm("/proc/self/statm");
  double total = 0;
  double resident = 0;
  statm >> total >> resident;
  return resident * static_cast<double>(sysconf(_SC_PAGESIZE));
}

template <class Pane>
void MeasureMemory(benchmark::State& state, Pane& (*paneOf)(std::int64_t lines)) {
  const std::int64_t lines = state.range(0);
  double bytes = 0;
  for (auto _ : state) {
    const double before = ResidentBytes();
    paneOf(lines);
    bytes = ResidentBytes() - before;
  }
  state.counters["bytes_per_line"] = bytes / static_cast<double>(lines);
}
// Must be the first benchmark that asks for panes of this length: it measures their creation.
void BM_MemoryOfLines(benchmark::State& state) {
  MeasureMemory(state, ChatOf);
}
void BM_BareMemoryOfLines(benchmark::State& state) {
  MeasureMemory(state, BarePaneOf);
}
BENCHMARK(BM_MemoryOfLines)->Arg(kLong)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_BareMemoryOfLines)->Arg(kLong)->Iterations(1)->Unit(benchmark::kMillisecond);

void BM_WriteDialogueLine(benchmark::State& state) {
  WriteLines(state, ChatOf(state.range(0)));
}
void BM_BareWriteLine(benchmark::State& state) {
  WriteLines(state, BarePaneOf(state.range(0)));
}
// The two alternate, so that the ratio is right even when the machine's speed changes.
const bool kLinesAdded = [] {
  for (const std::int64_t lines : {std::int64_t{100}, std::int64_t{10'000}, kLong}) {
    for (auto* added : {benchmark::RegisterBenchmark("BM_WriteDialogueLine", BM_WriteDialogueLine),
                        benchmark::RegisterBenchmark("BM_BareWriteLine", BM_BareWriteLine)}) {
      added->Arg(lines)->Iterations(1'000)->Unit(benchmark::kMicrosecond);
    }
  }
  return true;
}();

template <class Pane>
void Resize(benchmark::State& state, Pane& pane) {
  int step = 0;
  for (auto _ : state) {
    ++step;
    pane.Resize(600 - 150 * (step % 2), 400 - 50 * (step % 3));
    QApplication::processEvents();
  }
}
void BM_ResizeDialogue(benchmark::State& state) {
  Resize(state, ChatOf(state.range(0)));
}
void BM_BareResize(benchmark::State& state) {
  Resize(state, BarePaneOf(state.range(0)));
}
BENCHMARK(BM_ResizeDialogue)->Arg(kLong)->Iterations(20)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_BareResize)->Arg(kLong)->Iterations(20)->Unit(benchmark::kMillisecond);

// The whole pane, with its margin.
void BM_PaintDialogue(benchmark::State& state) {
  Chat& chat = ChatOf(state.range(0));
  for (auto _ : state) chat.Paint();
}
BENCHMARK(BM_PaintDialogue)->Arg(kLong)->Iterations(100)->Unit(benchmark::kMicrosecond);

// Without writing to the disk.
void BM_SaveDialogue(benchmark::State& state) {
  RichTextBox& pane = ChatOf(state.range(0)).Pane();
  for (auto _ : state) benchmark::DoNotOptimize(pane.Rtf());
  state.counters["bytes"] = static_cast<double>(pane.Rtf().size());
}
BENCHMARK(BM_SaveDialogue)->Arg(kLong)->Iterations(5)->Unit(benchmark::kMillisecond);

void Load(benchmark::State& state, const std::string& rtf, qt::Lines lines) {
  double worst = 0;
  for (auto _ : state) {
    LoadingPane pane(lines);
    worst = std::max(worst, pane.Load(rtf));
  }
  state.counters["worst_answer_s"] = worst;
}

void BM_LoadDialogue(benchmark::State& state) {
  const std::u16string saved = ChatOf(state.range(0)).Pane().Rtf();
  Load(state, std::string(saved.begin(), saved.end()), qt::Lines::Many);
}
BENCHMARK(BM_LoadDialogue)->Arg(kLong)->Iterations(5)->Unit(benchmark::kMillisecond);

// A macro of one line, of `state.range(0)` bytes: many words, or a single long one.
void BM_LoadMacro(benchmark::State& state, std::string_view word) {
  std::string macro = "{\\rtf1\\ansi ";
  while (macro.size() < static_cast<std::size_t>(state.range(0))) macro += word;
  Load(state, macro + '}', qt::Lines::Single);
}
BENCHMARK_CAPTURE(BM_LoadMacro, words, "some words and \\b bold\\b0  ones ")
    ->Arg(5'000'000)
    ->Iterations(3)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(BM_LoadMacro, one_word, "x")
    ->Arg(5'000'000)
    ->Iterations(3)
    ->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace verlume
