#include "shell/start/command_line.h"

#include <algorithm>
#include <utility>

#include "connection/port_number.h"
#include "people/invitation.h"
#include "platform/run_time_failure.h"
#include "platform/socket.h"
#include "shell/nickname.h"
#include "shell/start/command_line_texts.h"
#include "shell/version.h"
#include "stream/utf8_text.h"

namespace verlume {
namespace {

namespace texts = command_line_texts;

constexpr std::size_t kLongestHost = 253;    // characters of a name on the network
constexpr std::size_t kLongestQuoted = 100;  // of an argument in a message
constexpr char16_t kNoCharacter = 0xFFFD;    // where the system's bytes were none

// What is wrong with the arguments.
struct WrongUsage {
  const TextPair& text;
  std::u16string first;
  std::u16string second;
  std::u16string third;
};

// An argument as it may be printed.
std::u16string Quoted(std::u16string_view argument) {
  std::u16string quoted;
  while (!argument.empty() && quoted.size() < kLongestQuoted) {
    const std::u16string_view character = FirstCharacter(argument);
    if (IsShowable(character)) {
      quoted += character;
    } else {
      quoted += EscapeOf(character.front());
    }
    argument.remove_prefix(character.size());
  }
  return argument.empty() ? quoted : quoted + u"...";
}

bool IsShowableText(std::u16string_view text) {
  while (!text.empty()) {
    const std::u16string_view character = FirstCharacter(text);
    if (!IsShowable(character) || character.front() == kNoCharacter) return false;
    text.remove_prefix(character.size());
  }
  return true;
}

bool IsOption(std::u16string_view argument) {
  return argument.starts_with(u'-');
}

bool IsInvitation(std::u16string_view argument) {
  return argument.size() <= kLongestInvitation && IsShowableText(argument) &&
         LooksLikeInvitation(argument);
}

bool IsHost(std::u16string_view text) {
  return !text.empty() && text.size() <= kLongestHost && IsShowableText(text) &&
         text.find(u' ') == text.npos && !LooksLikeInvitation(text);
}

std::int32_t PortIn(const std::u16string& text, std::int32_t least) {
  try {
    if (IsPortNumber(text, least, kGreatestNameablePort)) return PortNumberOf(text);
  } catch (const RunTimeFailure&) {  // of so many digits that it fits no number
  }
  throw WrongUsage{texts::kNoPort, text, DecimalText(least), DecimalText(kGreatestNameablePort)};
}

class Reader {
 public:
  explicit Reader(const std::vector<std::u16string>& arguments) : arguments_(arguments) {}

  CommandLine Read(bool isGreek) {
    while (next_ < arguments_.size() && !wants_) ReadArgument();
    if (wants_) {
      read_.status = 0;
      const std::u16string version = DecimalText(version::kMajor) + u"." +
                                     DecimalText(version::kMinor) + u"." +
                                     DecimalText(version::kRevision);
      read_.text = wants_->Fill(isGreek, {version});
    }
    return std::move(read_);
  }

 private:
  void ReadArgument() {
    const std::u16string& argument = arguments_[next_++];
    if (!IsOption(argument)) {
      if (!IsInvitation(argument)) throw WrongUsage{texts::kNeither, argument, {}, {}};
      return SetTask({StartTask::Kind::OpenInvitation, argument, 0});
    }
    const std::size_t equals = argument.find(u'=');
    const std::u16string name = argument.substr(0, equals);
    if (equals != argument.npos) value_ = argument.substr(equals + 1);
    ReadOption(name, argument);
    if (value_) throw WrongUsage{texts::kTakesNoValue, name, {}, {}};
  }

  void ReadOption(const std::u16string& name, const std::u16string& argument) {
    if (name == u"--help") {
      wants_ = &texts::kHelp;
    } else if (name == u"--version") {
      wants_ = &texts::kVersion;
    } else if (name == u"--wait") {
      ReadWait();
    } else if (name == u"--call") {
      ReadCall();
    } else if (name == u"--folder") {
      ReadFolder();
    } else {
      throw WrongUsage{texts::kUnknownOption, argument, {}, {}};
    }
  }

  // What follows an option: behind its "=", or the next argument. None if that is an option.
  std::optional<std::u16string> Value() {
    if (value_) return std::exchange(value_, std::nullopt);
    if (next_ >= arguments_.size() || IsOption(arguments_[next_])) return std::nullopt;
    return arguments_[next_++];
  }

  void ReadWait() {
    // What is meant as an invitation is refused as a second task.
    const bool isPortNext =
        value_ || next_ >= arguments_.size() || !IsInvitation(arguments_[next_]);
    const std::optional<std::u16string> port = isPortNext ? Value() : std::nullopt;
    SetTask({StartTask::Kind::Wait, {}, port ? PortIn(*port, kLeastPort) : 0});
  }

  void ReadCall() {
    const std::optional<std::u16string> host = Value();
    const std::optional<std::u16string> port = Value();
    if (!host || !port) throw WrongUsage{texts::kNeedsHostAndPort, {}, {}, {}};
    if (!IsHost(*host)) throw WrongUsage{texts::kNoHost, *host, {}, {}};
    SetTask({StartTask::Kind::Call, *host, PortIn(*port, 1)});
  }

  void ReadFolder() {
    const std::optional<std::u16string> folder = Value();
    if (!folder || folder->empty()) throw WrongUsage{texts::kNeedsFolder, {}, {}, {}};
    if (!read_.folder.empty()) throw WrongUsage{texts::kTwice, u"--folder", {}, {}};
    read_.folder = *folder;
  }

  void SetTask(StartTask task) {
    if (read_.task.kind != StartTask::Kind::None) throw WrongUsage{texts::kOneAtATime, {}, {}, {}};
    read_.task = std::move(task);
  }

  const std::vector<std::u16string>& arguments_;
  std::size_t next_ = 0;
  std::optional<std::u16string> value_;  // of the option that is being read, behind its "="
  const TextPair* wants_ = nullptr;      // what is only printed
  CommandLine read_;
};

CommandLine Refused(const WrongUsage& wrong, bool isGreek) {
  const std::u16string what = wrong.text.Fill(
      isGreek, {Quoted(wrong.first), std::u16string_view(wrong.second), wrong.third});
  CommandLine refused;
  refused.status = kWrongUsage;
  refused.text = texts::kLine.Fill(isGreek, {what});
  return refused;
}

}  // namespace

CommandLine ReadCommandLine(const std::vector<std::u16string>& arguments, bool isGreek) {
  try {
    return Reader(arguments).Read(isGreek);
  } catch (const WrongUsage& wrong) {
    return Refused(wrong, isGreek);
  }
}

std::vector<std::u16string> TextsOf(const std::vector<std::string_view>& arguments) {
  std::vector<std::u16string> converted;
  converted.reserve(arguments.size());
  for (const std::string_view bytes : arguments) converted.push_back(stream::DecodeUtf8(bytes));
  return converted;
}

std::u16string FolderRefusal(std::u16string_view folder, bool isGreek) {
  return texts::kFolderRefused.Fill(isGreek, {Quoted(folder)});
}

bool SpeaksGreek(const std::function<const char*(const char*)>& environment) {
  for (const char* variable : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
    const char* value = environment(variable);
    if (!value || !*value) continue;
    const std::string_view locale(value);
    return locale.substr(0, locale.find_first_of("_.@-")) == "el";
  }
  return false;
}

}  // namespace verlume
