// What a line of conversation costs in the dialogue pane, when the dialogue is short and when it is
// long, and what a long dialogue costs: in memory, when its window changes size, when it is saved
// and when it is loaded. Beside these, what a long macro costs.
#include <benchmark/benchmark.h>
#include <unistd.h>

#include <QApplication>
#include <algorithm>
#include <chrono>
#include <cstdint>
#include <fstream>
#include <map>
#include <memory>
#include <string>
#include <string_view>

#include "platform_qt/text/rich_text_box.h"

namespace {

using verlume::SelectionFormat;
using verlume::qt::QtRichTextBox;

// One file, whatever its path.
class OneFile : public verlume::FileSystem {
 public:
  bool IsFolder(std::u16string_view) const noexcept override { return false; }
  bool IsFile(std::u16string_view) const noexcept override { return false; }
  std::vector<std::u16string> ListFiles(std::u16string_view, std::u16string_view) const override {
    return {};
  }
  std::uint64_t SizeOf(std::u16string_view) const override { return bytes.size(); }
  std::u16string ReadText(std::u16string_view) const override { return {}; }
  std::string ReadBytes(std::u16string_view) const override { return bytes; }
  void ReplaceText(std::u16string_view, std::u16string_view text) override {
    bytes.assign(text.begin(), text.end());
  }
  void ReplaceBytes(std::u16string_view, std::string_view) override {}
  void AppendText(std::u16string_view, std::u16string_view) override {}
  void Delete(std::u16string_view) override {}
  char16_t Separator() const override { return u'/'; }

  std::string bytes;
};

constexpr std::u16string_view kMessage =
    u"{\\rtf1\\ansi\\ansicpg1253\\deff0{\\fonttbl{\\f0\\fnil\\fcharset161 Tahoma;}}\r\n"
    u"{\\colortbl ;\\red0\\green0\\blue255;}\r\n"
    u"\\viewkind4\\uc1\\pard\\cf1\\f0\\fs17 \\'ea\\'e1\\'eb\\'e7\\'ec\\'dd\\'f1\\'e1, hello there}";

class Pane {
 public:
  explicit Pane(QtRichTextBox::Lines lines = QtRichTextBox::Lines::Many) {
    box_ = std::make_unique<QtRichTextBox>(&window_, files_, lines);
    box_->SetLocked(true);
    box_->widget()->setGeometry(0, 0, 600, 400);
    window_.resize(600, 400);
    window_.show();
    QApplication::processEvents();
  }

  // As WriteDialogueLine does it: stamp, nickname, message.
  void WriteLine() {
    ToEnd();
    if (box_->TextLength() > 0) box_->SetSelText(u"\r\n");
    WriteBlack(7, u"[12/10/2002_10:20:30]");
    WriteBlack(8, u"<nickname>");
    ToEnd();
    box_->SetSelRtf(kMessage);
    ToEnd();
  }

  void Fill(std::int64_t lines) {
    for (std::int64_t line = 0; line < lines; ++line) WriteLine();
    QApplication::processEvents();
  }

  const std::string& Save() {
    box_->SaveFile(u"", verlume::TextFileFormat::RichText);
    return files_.bytes;
  }

  // How long the window did not answer at worst, in seconds.
  double Load(const std::string& rtf) {
    using Clock = std::chrono::steady_clock;
    files_.bytes = rtf;
    bool loading = true;
    box_->onLoadProgress = [&loading](int percent) { loading = percent < 100; };
    std::chrono::duration<double> worst{};
    Clock::time_point before = Clock::now();
    box_->LoadFile(u"", verlume::TextFileFormat::RichText);
    while (loading) {
      QApplication::processEvents();
      worst = std::max<std::chrono::duration<double>>(worst, Clock::now() - before);
      before = Clock::now();
    }
    return worst.count();
  }

  void Resize(int width, int height) {
    box_->widget()->resize(width, height);
    QApplication::processEvents();
  }

 private:
  void ToEnd() { box_->Select(box_->TextLength(), 0); }
  void WriteBlack(double size, std::u16string_view text) {
    ToEnd();
    box_->SetSelFormat({u"Arial", size, 0, false, false, false, false});
    box_->SetSelText(text);
  }

  OneFile files_;
  QWidget window_;
  std::unique_ptr<QtRichTextBox> box_;
};

double ResidentBytes() {
  std::ifstream statm("/proc/self/statm");
  double total = 0;
  double resident = 0;
  statm >> total >> resident;
  return resident * static_cast<double>(sysconf(_SC_PAGESIZE));
}

// Filled once for all benchmarks, and left to the end of the program: a long one takes its time.
struct FilledPane {
  Pane pane;
  double bytesPerLine = 0;
};
FilledPane& PaneOf(std::int64_t lines) {
  static auto& panes = *new std::map<std::int64_t, FilledPane>;
  const bool isNew = !panes.contains(lines);
  FilledPane& filled = panes[lines];
  if (!isNew) return filled;
  constexpr std::int64_t kWarmUp = 100;
  filled.pane.Fill(kWarmUp);
  const double before = ResidentBytes();
  filled.pane.Fill(lines - kWarmUp);
  filled.bytesPerLine = (ResidentBytes() - before) / static_cast<double>(lines);
  return filled;
}

void BM_WriteDialogueLine(benchmark::State& state) {
  FilledPane& filled = PaneOf(state.range(0));
  for (auto _ : state) filled.pane.WriteLine();
  state.counters["bytes_per_line"] = filled.bytesPerLine;
}
BENCHMARK(BM_WriteDialogueLine)
    ->Arg(100)
    ->Arg(10'000)
    ->Arg(100'000)
    ->Iterations(1'000)
    ->Unit(benchmark::kMicrosecond);

void BM_ResizeDialogue(benchmark::State& state) {
  Pane& pane = PaneOf(state.range(0)).pane;
  int step = 0;
  for (auto _ : state) {
    ++step;
    pane.Resize(600 - 150 * (step % 2), 400 - 50 * (step % 3));
  }
}
BENCHMARK(BM_ResizeDialogue)->Arg(100)->Arg(100'000)->Iterations(20)->Unit(benchmark::kMillisecond);

// What is between the pane and the file; the disk comes on top.
void BM_SaveDialogue(benchmark::State& state) {
  Pane& pane = PaneOf(state.range(0)).pane;
  for (auto _ : state) benchmark::DoNotOptimize(pane.Save());
  state.counters["bytes"] = static_cast<double>(pane.Save().size());
}
BENCHMARK(BM_SaveDialogue)->Arg(100'000)->Iterations(5)->Unit(benchmark::kMillisecond);

void BM_LoadDialogue(benchmark::State& state) {
  const std::string saved = PaneOf(state.range(0)).pane.Save();
  double worst = 0;
  for (auto _ : state) {
    Pane pane;
    worst = std::max(worst, pane.Load(saved));
  }
  state.counters["worst_answer_s"] = worst;
}
BENCHMARK(BM_LoadDialogue)->Arg(100'000)->Iterations(5)->Unit(benchmark::kMillisecond);

// A macro of so many bytes, which is one line: of words, or of one word without end.
void BM_LoadMacro(benchmark::State& state, std::string_view word) {
  std::string macro = "{\\rtf1\\ansi ";
  while (macro.size() < static_cast<std::size_t>(state.range(0))) macro += word;
  macro += '}';
  double worst = 0;
  for (auto _ : state) {
    Pane pane(QtRichTextBox::Lines::Single);
    worst = std::max(worst, pane.Load(macro));
  }
  state.counters["worst_answer_s"] = worst;
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
