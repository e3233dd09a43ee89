// What finding words in a long dialogue costs, and how much an open find bar slows down the writing
// of lines.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <cstdint>

#include "benchmarks/chat.h"
#include "benchmarks/write_lines.h"

namespace verlume {
namespace {

// Words that occur in every line, and words that occur in none.
void BM_FindNext(benchmark::State& state) {
  Chat& chat = ChatOf(state.range(0));
  chat.OpenFindBar(state.range(1) ? u"ΚΑΛΗΜΕΡΑ" : u"καληνύχτα");
  for (auto _ : state) {
    chat.FindNext();
    do QApplication::processEvents();
    while (chat.IsSearching());
  }
  chat.CloseFindBar();
  state.counters["characters"] = static_cast<double>(chat.Pane().TextLength());
}
BENCHMARK(BM_FindNext)
    ->ArgNames({"lines", "found"})
    ->ArgsProduct({{1'000, 100'000}, {0, 1}})
    ->Unit(benchmark::kMillisecond);

void BM_WriteDialogueLineBesideFindBar(benchmark::State& state) {
  Chat& chat = ChatOf(100'000);
  if (state.range(0)) chat.OpenFindBar(u"ΚΑΛΗΜΕΡΑ");
  WriteLines(state, chat);
  chat.CloseFindBar();
}
BENCHMARK(BM_WriteDialogueLineBesideFindBar)
    ->ArgName("open")
    ->Arg(0)
    ->Arg(1)
    ->Iterations(1'000)
    ->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace verlume
