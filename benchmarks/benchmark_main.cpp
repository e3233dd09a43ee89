// Runs the benchmarks in a Qt application: some of them measure widgets.
#include <benchmark/benchmark.h>

#include <QApplication>

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
