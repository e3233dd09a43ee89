// What finding words costs in a long dialogue, and what an open find bar costs the lines that are
// written meanwhile.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <cstdint>
#include <map>

#include "commands/dialogue/dialogue.h"
#include "commands/find_in_dialogue.h"
#include "platform_qt/platform.h"

namespace {

using namespace verlume;

constexpr std::u16string_view kMessage =
    u"{\\rtf1\\ansi\\ansicpg1253\\deff0{\\fonttbl{\\f0\\fnil\\fcharset161 Tahoma;}}\r\n"
    u"{\\colortbl ;\\red0\\green0\\blue255;}\r\n"
    u"\\viewkind4\\uc1\\pard\\cf1\\f0\\fs17 \\'ea\\'e1\\'eb\\'e7\\'ec\\'dd\\'f1\\'e1, hello there}";

// The window of a program whose dialogue has so many lines.
class Chat {
 public:
  explicit Chat(std::int64_t lines) {
    state_.Nickname = u"nickname";
    state_.DateStamp = state_.TimeStamp = true;
    platform_.View().frmMain.window.Show();
    for (std::int64_t line = 0; line < lines; ++line) WriteLine();
    QApplication::processEvents();
  }

  void WriteLine() { dialogue_.WriteDialogueLine(kMessage, CommandPane::Keep); }
  void OpenBar(std::u16string_view words) {
    platform_.View().frmMain.findBar.txtFind.SetText(words);
    find_.mnuToolsFind_Click();
  }
  void CloseBar() { find_.cmdFindClose_Click(); }
  void FindNext() {
    find_.cmdFindNext_Click();
    QApplication::processEvents();
  }
  std::size_t Characters() { return platform_.View().frmMain.rtbData.TextLength(); }

 private:
  qt::QtPlatform platform_;
  AppState state_;
  ErrorReport errors_{state_, platform_.View(), [] {}, [] {}};
  Settings settings_{state_, platform_.View().files};
  DialogueLog log_{state_, platform_.View(), errors_, settings_};
  Dialogue dialogue_{state_, platform_.View(), errors_, settings_, log_};
  FindInDialogue find_{state_, platform_.View(), errors_};
};

// Filled once for all benchmarks, and left to the end of the program: a long one takes its time.
Chat& ChatOf(std::int64_t lines) {
  static auto& chats = *new std::map<std::int64_t, Chat>;
  return chats.try_emplace(lines, lines).first->second;
}

// Words that stand in every line, and words that stand in none.
void BM_FindNext(benchmark::State& state) {
  Chat& chat = ChatOf(state.range(0));
  chat.OpenBar(state.range(1) ? u"ΚΑΛΗΜΕΡΑ" : u"καληνύχτα");
  for (auto _ : state) chat.FindNext();
  chat.CloseBar();
  state.counters["characters"] = static_cast<double>(chat.Characters());
}
BENCHMARK(BM_FindNext)
    ->ArgNames({"lines", "found"})
    ->ArgsProduct({{1'000, 100'000}, {0, 1}})
    ->Unit(benchmark::kMillisecond);

void BM_WriteDialogueLineBesideFindBar(benchmark::State& state) {
  Chat& chat = ChatOf(100'000);
  if (state.range(0)) chat.OpenBar(u"ΚΑΛΗΜΕΡΑ");
  for (auto _ : state) chat.WriteLine();
  chat.CloseBar();
}
BENCHMARK(BM_WriteDialogueLineBesideFindBar)
    ->ArgName("open")
    ->Arg(0)
    ->Arg(1)
    ->Iterations(1'000)
    ->Unit(benchmark::kMicrosecond);

}  // namespace
