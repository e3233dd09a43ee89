#include "benchmarks/loading_pane.h"

#include <QApplication>
#include <algorithm>
#include <chrono>

namespace verlume {

LoadingPane::LoadingPane(qt::Lines lines) : box_(&window_, files_, lines) {
  box_.SetLocked(true);
  box_.widget()->setGeometry(0, 0, 600, 400);
  window_.resize(600, 400);
  window_.show();
  QApplication::processEvents();
}

double LoadingPane::Load(const std::string& rtf) {
  using Clock = std::chrono::steady_clock;
  files_.bytes = rtf;
  bool loading = true;
  box_.onLoadProgress = [&loading](int percent) { loading = percent < 100; };
  std::chrono::duration<double> worst{};
  Clock::time_point before = Clock::now();
  box_.LoadFile(u"", TextFileFormat::RichText);
  while (loading) {
    QApplication::processEvents();
    worst = std::max<std::chrono::duration<double>>(worst, Clock::now() - before);
    before = Clock::now();
  }
  return worst.count();
}

}  // namespace verlume
