// Any bytes as Verlume.ini: the program starts with it, and writing a setting keeps everything else
// in it. A file that is not text is copied whole, and the program starts a new one.
#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "fuzz/check.h"
#include "fuzz/costs.h"
#include "fuzz/fuzzed_copy.h"
#include "richtext/code_pages.h"
#include "shell/ini_text.h"
#include "shell/settings.h"

namespace verlume::fuzz {
namespace {

constexpr CostLimits kLimits = {.nanoseconds = 40'000, .heapBytes = 200};

constexpr std::u16string_view kByteOrderMark = u"\uFEFF";

std::vector<std::u16string> LinesOf(std::u16string_view text) {
  while (text.starts_with(kByteOrderMark)) text.remove_prefix(1);
  std::vector<std::u16string> lines(1);
  for (const char16_t c : text) {
    if (c == u'\r' || c == u'\n') {
      lines.emplace_back();
    } else {
      lines.back() += c;
    }
  }
  std::erase(lines, u"");
  return lines;
}

// Whether a line holds a value that the program writes at its start, or the one written here.
// Logdialogue is written when the user names no folder for it.
bool MayChange(std::u16string_view line) {
  const std::u16string text = u"[S]\n" + std::u16string(line);
  constexpr std::u16string_view kWritten[] = {u"Language",  u"Name",          u"Bold", u"Italic",
                                              u"Underline", u"Strikethrough", u"Size", u"Forecolor",
                                              u"DateStamp", u"Logdialogue"};
  return std::any_of(std::begin(kWritten), std::end(kWritten),
                     [&](std::u16string_view key) { return ini_text::Read(text, u"S", key); });
}

void CheckLinesStay(std::u16string_view before, std::u16string_view after) {
  const std::vector<std::u16string> now = LinesOf(after);
  auto place = now.begin();
  for (const std::u16string& line : LinesOf(before)) {
    if (MayChange(line)) continue;
    place = std::find(place, now.end(), line);
    Check(place != now.end(), "every line that is not written to stays, in its order");
    ++place;
  }
}

void CheckNothingLost(std::string_view before, const FuzzedCopy& copy) {
  if (before.find('\0') == before.npos) {
    return CheckLinesStay(richtext::DecodeUtf8OrGreek(before), copy.Settings());
  }
  const auto& files = copy.platform.files.files;
  const auto kept = files.find(u"/verlume/Verlume.ini.bad");
  Check(kept != files.end() && kept->second == before, "a file that is no text is kept");
}

void CheckValues(const AppState& state) {
  Check(!state.Nickname.empty() && state.Nickname.size() <= kNicknameLimit, "a nickname is one");
  Check(state.Font.Size >= 8 && state.Font.Size <= 11, "a size is one of those offered");
  Check(state.Font.Color >= 0 && state.Font.Color <= 0xFFFFFF, "a colour is one");
}

}  // namespace
}  // namespace verlume::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace verlume;
  if (size > kLargestSettingsFile) return 0;  // such a file is neither read nor written
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  const fuzz::Costs costs(size, fuzz::kLimits);
  static fuzz::FuzzedCopy copy;
  copy.StartAgain(bytes);
  fuzz::CheckValues(copy.program.State());
  const bool on = copy.program.State().DateStamp;
  copy.Enter(on ? u"/nodate" : u"/date");
  const std::u16string after = copy.Settings();
  const auto written = ini_text::Read(after, u"General", u"DateStamp");
  fuzz::Check(written == (on ? u"False" : u"True"), "what is written is read back");
  fuzz::CheckNothingLost(bytes, copy);
  const std::string file = copy.platform.files.files[u"/verlume/Verlume.ini"];
  copy.StartAgain(file);
  fuzz::CheckValues(copy.program.State());
  return 0;
}
