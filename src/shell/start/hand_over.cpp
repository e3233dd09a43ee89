#include "shell/start/hand_over.h"

#include <vector>

#include "shell/start/command_line.h"
#include "shell/text_pair.h"
#include "stream/utf8_text.h"

namespace verlume {
namespace {

// The number is that of the form; a copy of another form does not understand.
constexpr std::string_view kHeader = "verlume 1\n";

std::vector<std::u16string> ArgumentsOf(const StartTask& task) {
  switch (task.kind) {
    case StartTask::Kind::Wait:
      return {u"--wait", DecimalText(task.port)};
    case StartTask::Kind::Call:
      return {u"--call", task.text, DecimalText(task.port)};
    case StartTask::Kind::OpenInvitation:
      return {task.text};
    case StartTask::Kind::None:
      break;
  }
  return {};
}

// None unless each line has its end.
std::optional<std::vector<std::u16string>> LinesOf(std::string_view text) {
  std::vector<std::u16string> lines;
  while (!text.empty()) {
    const std::size_t end = text.find('\n');
    if (end == text.npos) return std::nullopt;
    lines.push_back(stream::DecodeUtf8(text.substr(0, end)));
    text.remove_prefix(end + 1);
  }
  return lines;
}

}  // namespace

std::string HandOverText(const StartTask& task) {
  const std::vector<std::u16string> arguments = ArgumentsOf(task);
  if (arguments.empty()) return {};
  std::string text(kHeader);
  for (const std::u16string& argument : arguments) text += stream::EncodeUtf8(argument) + '\n';
  return text;
}

std::optional<StartTask> HandedOver(std::string_view text) {
  if (text.size() > kLongestHandOver || !text.starts_with(kHeader)) return std::nullopt;
  const auto arguments = LinesOf(text.substr(kHeader.size()));
  if (!arguments) return std::nullopt;
  CommandLine read = ReadCommandLine(*arguments, false);
  // Also no task, and whatever HandOverText would not write.
  if (read.status || HandOverText(read.task) != text) return std::nullopt;
  return std::move(read.task);
}

}  // namespace verlume
