#include "records/log_file.h"

#include <algorithm>

#include "platform/run_time_failure.h"
#include "shell/folders.h"
#include "shell/nickname.h"
#include "shell/text_pair.h"

namespace verlume {
namespace {

constexpr std::u16string_view kExtension = u".txt";
// How each line of a log begins; a 0 stands for any digit.
constexpr std::string_view kStampForm = "[0000-00-00_00:00:00]";

bool IsAllowedInFileName(std::u16string_view character) {
  constexpr std::u16string_view kForbidden = u"\\/:*?\"<>|";
  return IsShowable(character) && kForbidden.find(character) == kForbidden.npos;
}

bool HasStampForm(std::string_view text) {
  const auto fits = [](char c, char form) {
    return form == '0' ? '0' <= c && c <= '9' : c == form;
  };
  return std::equal(text.begin(), text.end(), kStampForm.begin(), kStampForm.end(), fits);
}

// A file that may not be read is not known to be a log.
bool IsEmptyOrLog(std::u16string_view path, const FileSystem& files) try {
  const std::string start = files.ReadStart(path, kStampForm.size());
  return start.empty() || HasStampForm(start);
} catch (const RunTimeFailure& failure) {
  if (failure.number == FailureNumber::PermissionDenied) return false;
  throw;
}

}  // namespace

std::u16string LogFileStemOf(std::u16string_view nickname, const FileSystem& files) {
  std::u16string stem;
  while (!nickname.empty()) {
    const std::u16string_view character = FirstCharacter(nickname);
    if (stem.size() + character.size() > kNicknameLimit) break;
    stem += IsAllowedInFileName(character) ? character : u"_";
    nickname.remove_prefix(character.size());
  }
  if (stem.empty() || stem == u"." || stem == u"..") return u"_";
  // A device has its name whatever stands behind the first dot.
  if (files.IsNameOfDevice(stem)) stem.insert(std::min(stem.find(u'.'), stem.size()), u"_");
  return stem;
}

std::u16string LogPath(const AppState& state, const FileSystem& files) {
  if (!state.LogFile.empty()) return state.LogFile;
  if (state.LogFolder.empty()) return {};
  return WithTrailingSeparator(state.LogFolder, files.Separator()) + state.LogFileStem +
         std::u16string(kExtension);
}

std::u16string FreeLogPath(const std::u16string& path, const FileSystem& files) {
  std::u16string free = path;
  for (int number = 2; files.IsFile(free) && !IsEmptyOrLog(free, files); ++number) {
    free = path.substr(0, path.size() - kExtension.size());
    free += u" (" + DecimalText(number) + u")";
    free += kExtension;
  }
  return free;
}

}  // namespace verlume
