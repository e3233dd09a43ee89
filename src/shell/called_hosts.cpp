#include "shell/called_hosts.h"

#include <algorithm>
#include <optional>

#include "platform/platform.h"
#include "platform/run_time_failure.h"
#include "shell/app_state.h"
#include "shell/nickname.h"
#include "shell/setting_names.h"
#include "shell/settings.h"
#include "shell/text_pair.h"
#include "shell/trim.h"

namespace verlume {
namespace {

constexpr TextPair kForget = {u"Forget these", u"Διαγραφή της λίστας"};

constexpr std::size_t kLongestHost = 253;  // characters of a name on the network
constexpr std::size_t kLongestLine = 512;  // of a value in the settings file

bool IsHost(std::u16string_view host) {
  if (host.empty() || host.size() > kLongestHost) return false;
  while (!host.empty()) {
    const std::u16string_view character = FirstCharacter(host);
    if (!IsShowable(character) || character == u" " || character == u"\"") return false;
    host.remove_prefix(character.size());
  }
  return true;
}

std::optional<std::int32_t> PortOf(std::u16string_view text) {
  constexpr std::size_t kMostDigits = 5;
  if (text.empty() || text.size() > kMostDigits) return std::nullopt;
  std::int32_t port = 0;
  for (const char16_t c : text) {
    if (c < u'0' || c > u'9') return std::nullopt;
    port = port * 10 + (c - u'0');
  }
  if (port > kGreatestNameablePort) return std::nullopt;
  return port;
}

// "host port nickname"; the nickname may have blanks in it, or be missing.
std::optional<CalledHost> CalledHostOf(std::u16string_view line) {
  const std::size_t hostEnd = line.find(u' ');
  if (hostEnd == line.npos) return std::nullopt;
  const std::size_t portEnd = std::min(line.find(u' ', hostEnd + 1), line.size());
  const std::u16string_view host = line.substr(0, hostEnd);
  const auto port = PortOf(line.substr(hostEnd + 1, portEnd - hostEnd - 1));
  if (!IsHost(host) || !port) return std::nullopt;
  const std::u16string_view nickname = line.substr(std::min(portEnd + 1, line.size()));
  return CalledHost{std::u16string(host), *port, ShowableNickname(nickname)};
}

std::u16string LineOf(const CalledHost& called) {
  std::u16string line = CallParameters(called);
  if (!called.nickname.empty()) line += u' ' + called.nickname;
  return line;
}

bool IsSameCall(const CalledHost& one, const CalledHost& other) {
  return one.host == other.host && one.port == other.port;
}

std::u16string KeyOf(std::size_t index) {
  return std::u16string(setting_key::kCalled) + DecimalText(static_cast<long long>(index) + 1);
}

// Keys beyond the last one are emptied.
void WriteCalledHosts(const AppState& state, Settings& settings, std::size_t countBefore) {
  const std::size_t count = std::max(countBefore, state.CalledHosts.size());
  std::vector<std::u16string> keys;
  for (std::size_t i = 0; i < count; ++i) keys.push_back(KeyOf(i));
  std::vector<Settings::KeyValue> values;
  for (std::size_t i = 0; i < count; ++i) {
    const bool isThere = i < state.CalledHosts.size();
    values.push_back({keys[i], isThere ? LineOf(state.CalledHosts[i]) : std::u16string()});
  }
  try {
    settings.WriteSettings(setting_section::kGeneral, values);
  } catch (const RunTimeFailure&) {
    // A mere convenience must not end the call.
  }
}

}  // namespace

std::u16string CalledPlace(const AppState& state) {
  std::u16string place =
      CallParameters({std::u16string(Trim(state.RemoteHost)), state.RemotePort, {}});
  for (char16_t& c : place) {
    if (c >= u'A' && c <= u'Z') c = static_cast<char16_t>(c + 32);
  }
  return place;
}

std::u16string CallParameters(const CalledHost& called) {
  return called.host + u' ' + DecimalText(called.port);
}

std::u16string CalledHostText(const CalledHost& called) {
  std::u16string text = CallParameters(called);
  if (!called.nickname.empty()) text += u"   (" + called.nickname + u")";
  return text;
}

void ReadCalledHosts(AppState& state, const Platform& platform, const Settings& settings) {
  state.CalledHosts.clear();
  for (std::size_t i = 0; i < kMostCalledHosts; ++i) {
    const std::u16string line =
        settings.ReadSetting(setting_section::kGeneral, KeyOf(i), u"", kLongestLine);
    const auto called = CalledHostOf(line);
    const auto isSame = [&](const CalledHost& one) { return IsSameCall(one, *called); };
    if (!called || std::ranges::any_of(state.CalledHosts, isSame)) continue;
    state.CalledHosts.push_back(*called);
  }
  ShowCalledHosts(state, platform);
}

void RememberCall(AppState& state, const Platform& platform, Settings& settings) {
  CalledHost newest = {std::u16string(Trim(state.RemoteHost)), state.RemotePort, {}};
  if (!IsHost(newest.host)) return;
  std::vector<CalledHost>& hosts = state.CalledHosts;
  const std::size_t countBefore = hosts.size();
  const auto known =
      std::ranges::find_if(hosts, [&](const CalledHost& one) { return IsSameCall(one, newest); });
  if (known != hosts.end()) {
    newest.nickname = known->nickname;
    hosts.erase(known);
  }
  hosts.insert(hosts.begin(), std::move(newest));
  if (hosts.size() > kMostCalledHosts) hosts.pop_back();
  WriteCalledHosts(state, settings, countBefore);
  ShowCalledHosts(state, platform);
}

void RememberAnswer(AppState& state, const Platform& platform, Settings& settings) {
  if (!state.HasCalled || state.CalledHosts.empty()) return;
  CalledHost& newest = state.CalledHosts.front();
  const CalledHost answered = {std::u16string(Trim(state.RemoteHost)), state.RemotePort, {}};
  if (!IsSameCall(newest, answered) || newest.nickname == state.RemoteNickname) return;
  newest.nickname = state.RemoteNickname;
  WriteCalledHosts(state, settings, state.CalledHosts.size());
  ShowCalledHosts(state, platform);
}

void ForgetCalledHosts(AppState& state, const Platform& platform, Settings& settings) {
  const std::size_t countBefore = state.CalledHosts.size();
  state.CalledHosts.clear();
  WriteCalledHosts(state, settings, countBefore);
  ShowCalledHosts(state, platform);
}

void ShowCalledHosts(const AppState& state, const Platform& platform) {
  std::vector<std::u16string> texts;
  for (const CalledHost& called : state.CalledHosts) texts.push_back(CalledHostText(called));
  platform.frmMain.mnuCommCallAgain.SetChoices(texts, kForget.In(state.IsGreek));
}

}  // namespace verlume
