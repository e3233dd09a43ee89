#pragma once

#include <benchmark/benchmark.h>

#include <QApplication>

namespace verlume {

// Times the writing of lines, each in a turn of the event loop of its own; what the window does
// between them (it paints) is not counted.
template <class Pane>
void WriteLines(benchmark::State& state, Pane& pane) {
  for (auto _ : state) {
    pane.WriteLine();
    state.PauseTiming();
    QApplication::processEvents();
    state.ResumeTiming();
  }
}

}  // namespace verlume
