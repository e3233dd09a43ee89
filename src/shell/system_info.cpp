#include "shell/system_info.h"

#include <optional>
#include <string>

#include "shell/text_pair.h"

namespace verlume {
namespace {

constexpr TextPair kSystemInfoTitle = {u"System information", u"Πληροφορίες συστήματος"};
constexpr TextPair kUnavailable = {
    u"System Information is unavailable at this time.",
    u"Οι Πληροφορίες Συστήματος δεν είναι διαθέσιμες αυτή τη στιγμή."};

// The path in the tool's own registry entry, else the tool in the folder of shared tools.
std::optional<std::u16string> PathOfTool(const Platform& platform) {
  const SystemTools& tools = platform.tools;
  if (auto path = tools.LocalMachineText(u"SOFTWARE\\Microsoft\\Shared Tools\\MSINFO", u"PATH")) {
    return path;
  }
  auto folder = tools.LocalMachineText(u"SOFTWARE\\Microsoft\\Shared Tools Location", u"MSINFO");
  if (!folder) return std::nullopt;
  const std::u16string path = *folder + u"\\MSINFO32.EXE";
  if (!platform.files.IsFile(path)) return std::nullopt;
  return path;
}

}  // namespace

void StartSysInfo(const AppState& state, Platform& platform) {
  const std::optional<std::u16string> path = PathOfTool(platform);
  if (path && platform.tools.StartProgram(*path)) return;
  platform.dialogs.ShowMessage(
      Note(kUnavailable.In(state.IsGreek), kSystemInfoTitle.In(state.IsGreek)));
}

}  // namespace verlume
