#include "platform_fake/fake_dialogs.h"

#include <stdexcept>

#include "platform/run_time_failure.h"

namespace verlume::fake {
namespace {

template <class Value>
Value Take(std::deque<Value>& script, const char* what) {
  if (script.empty()) throw std::logic_error(std::string("no scripted answer for ") + what);
  Value value = std::move(script.front());
  script.pop_front();
  return value;
}

template <class Value>
Value TakeChoice(std::deque<std::optional<Value>>& script, const char* what) {
  std::optional<Value> choice = Take(script, what);
  if (!choice) throw RunTimeFailure(FailureNumber::Cancelled);
  return *choice;
}

}  // namespace

Answer FakeDialogs::ShowMessage(const Message& message) {
  messages.push_back(message);
  if (whileOpen) whileOpen();
  if (message.tick) {
    messages.back().tick = nullptr;  // it does not live as long
    ticksShown.push_back(*message.tick);
    if (setsTick) message.tick->isSet = *setsTick;
  }
  if (message.buttons == MessageButtons::Ok) return Answer::Ok;
  return Take(answers, "a message box");
}

std::u16string FakeDialogs::AskText(std::u16string_view prompt, std::u16string_view title,
                                    std::u16string_view defaultText) {
  asked.push_back({std::u16string(prompt), std::u16string(title), std::u16string(defaultText)});
  if (whileOpen) whileOpen();
  return Take(typed, "an input box");
}

FileChoice FakeCommonDialog::ShowOpen(const FileChoice& start) {
  filesShown.push_back(start);
  if (whileOpen) whileOpen();
  return TakeChoice(files, "a file dialog");
}

FileChoice FakeCommonDialog::ShowSave(const FileChoice& start) {
  return ShowOpen(start);
}

std::u16string FakeCommonDialog::ChooseFolder(std::u16string_view title,
                                              std::u16string_view initialFolder,
                                              std::u16string_view suggestion) {
  foldersShown.push_back(
      {std::u16string(title), std::u16string(initialFolder), std::u16string(suggestion)});
  if (whileOpen) whileOpen();
  return TakeChoice(folders, "a folder dialog");
}

Color FakeCommonDialog::ShowColor(Color start) {
  colorsShown.push_back(start);
  if (whileOpen) whileOpen();
  return TakeChoice(colors, "a colour dialog");
}

FontChoice FakeCommonDialog::ShowFont(const FontChoice& start, double minimumSize,
                                      double maximumSize) {
  fontsShown.push_back({start, minimumSize, maximumSize});
  if (whileOpen) whileOpen();
  return TakeChoice(fonts, "a font dialog");
}

}  // namespace verlume::fake
