// Any bytes as a macro's file, shown, saved and run; and as a dialogue's file, loaded as rich text
// and as plain text, saved, and loaded again.
#include <cstdint>
#include <string>
#include <string_view>

#include "fuzz/check.h"
#include "fuzz/costs.h"
#include "fuzz/coverage.h"
#include "fuzz/fuzzed_copy.h"

namespace verlume::fuzz {
namespace {

constexpr CostLimits kLimits = {.nanoseconds = 40'000, .heapBytes = 200};

void SaveAndRun(fake::FakeMacroWindow& editor) {
  editor.lstMacroNames.Choose(0);
  const std::u16string shown = editor.rtbMacroText.Text();
  editor.cmdEdit.Click();
  editor.cmdSave.Click();
  editor.lstMacroNames.Choose(0);
  Check(editor.rtbMacroText.Text() == shown, "a macro that is saved shows the same");
  editor.cmdRun.Click();
}

void UseAsMacro(FuzzedCopy& copy, std::string_view bytes) {
  copy.platform.files.files[u"/macros/m.rtf"] = bytes;
  copy.Enter(u"/m");
  if (copy.HasEnded()) return;
  fake::FakeMacroWindow& editor = copy.platform.macros;
  // A macro may open the editor again; the user then closes it at once.
  editor.window.whileModal = [&editor, first = editor.window.timesShownModal] {
    if (editor.window.timesShownModal == first + 1) SaveAndRun(editor);
    editor.window.Unload();
  };
  copy.platform.window.mnuToolsEditMacros.Click();
}

std::u16string Load(FuzzedCopy& copy, Answer format, const std::u16string& path) {
  copy.AnswerNext(format, path);
  copy.platform.window.mnuFileLogOpen.Click();
  return copy.platform.window.rtbData.Text();
}

void UseAsDialogue(FuzzedCopy& copy, std::string_view bytes, Answer format) {
  copy.StartAgain();
  copy.platform.files.files[u"/logs/in"] = bytes;
  const std::u16string loaded = Load(copy, format, u"/logs/in");
  if (loaded.empty()) return;  // there is nothing to save
  copy.AnswerNext(format, u"/logs/out");
  copy.platform.window.mnuFileLogSaveAs.Click();
  Check(Load(copy, format, u"/logs/out") == loaded, "a dialogue that is saved shows the same");
}

}  // namespace
}  // namespace verlume::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace verlume;
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  static fuzz::FuzzedCopy copy;
  copy.StartAgain();
  copy.Connect(fuzz::Role::Callee);
  copy.ShakeHands(fuzz::Role::Callee, "Bob");
  fuzz::ForgetCoverage();
  const fuzz::Costs costs(size, fuzz::kLimits);
  fuzz::UseAsMacro(copy, bytes);
  fuzz::UseAsDialogue(copy, bytes, Answer::Yes);
  fuzz::UseAsDialogue(copy, bytes, Answer::No);
  costs.CheckHeap();
  return 0;
}
