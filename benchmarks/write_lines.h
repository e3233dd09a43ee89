#pragma once

#include <benchmark/benchmark.h>

#include <QApplication>

namespace verlume {

// Measures the writing of lines. Events are handled after each line, which includes painting; that
// time is not counted.
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
