#include "fuzz/stream_checks.h"

#include <string>

#include "fuzz/check.h"
#include "richtext/rtf_reader.h"

namespace verlume::fuzz {
namespace {

bool IsLineEnd(char byte) {
  return byte == '\r' || byte == '\n' || byte == '\0';
}

void CheckLog(std::string_view log) {
  while (!log.empty()) {
    Check(log.starts_with('['), "an entry of the log begins with its stamp");
    const std::size_t end = log.find('\n');
    Check(end != log.npos, "an entry of the log ends");
    log.remove_prefix(end + 1);
  }
}

// The text as a document shows it: every kind of line end becomes one line break.
std::u16string Shown(std::u16string_view text) {
  std::u16string shown;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == u'\r' && text.substr(i + 1).starts_with(u'\n')) continue;
    shown += text[i] == u'\r' ? u'\n' : text[i];
  }
  return shown;
}

}  // namespace

void CheckNothingLost(std::string_view stream, std::string_view delivered) {
  for (const char byte : stream) {
    if (delivered.starts_with(byte)) {
      delivered.remove_prefix(1);
    } else {
      Check(IsLineEnd(byte), "nothing of the stream is lost or changes places");
    }
  }
  Check(delivered.empty(), "nothing is delivered that did not come");
}

void CheckHarmless(const FuzzedCopy& copy, std::u16string_view typed) {
  constexpr std::u16string_view kLogs = u"/logs/";
  for (const auto& [path, bytes] : copy.platform.files.files) {
    if (path == u"/verlume/Verlume.ini") continue;
    Check(path.starts_with(kLogs), "no file is written but logs");
    Check(path.find_first_of(u"/\\", kLogs.size()) == path.npos, "a log lies in its folder");
    CheckLog(bytes);
  }
  Check(copy.Pane() == typed, "what the user is typing stays");
  Check(copy.program.State().RemoteNickname.size() <= kNicknameLimit, "nicknames are cut");
  Check(!copy.HasEnded(), "no peer ends the program");
}

void CheckNicknameIsLiteral(FuzzedCopy& copy) {
  if (!copy.IsConnected()) return;
  copy.platform.socket.sent.clear();
  const std::u16string typed = copy.Pane();
  const std::u16string nickname = copy.program.State().RemoteNickname;
  copy.Type(u"<$r>\r");
  Check(copy.platform.socket.sent.size() == 1, "a line is one send");
  const std::u16string shown = richtext::ReadRtf(copy.platform.socket.sent.front()).text;
  Check(shown == typed + u"<" + Shown(nickname) + u">", "a nickname shows as it is");
}

}  // namespace verlume::fuzz
