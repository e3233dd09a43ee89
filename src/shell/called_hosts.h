// The computers that the user has called last, to be called again. They are kept in the settings
// file, which anybody may have changed: what makes no sense there is left out.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace verlume {

struct AppState;
struct Platform;
class Settings;

struct CalledHost {
  std::u16string host;  // as the user typed it, without blanks
  std::int32_t port = 0;
  std::u16string nickname;  // of who answered; "" until someone does

  bool operator==(const CalledHost&) const = default;
};

inline constexpr std::size_t kMostCalledHosts = 20;

// "host port   (nickname)"
std::u16string CalledHostText(const CalledHost& called);
// What "/CALL" is followed by: "host port".
std::u16string CallParameters(const CalledHost& called);

// The same of the call that AppState tells of, with ASCII letters small, as names of hosts are the
// same in any case.
std::u16string CalledPlace(const AppState& state);

// At start-up. Shows them in the menu.
void ReadCalledHosts(AppState& state, const Platform& platform, const Settings& settings);
// A call to AppState's RemoteHost and RemotePort begins: it is the newest of them. A host that a
// line of the settings file cannot hold is not kept. Never fails: if the file cannot be written,
// they are kept until the program ends.
void RememberCall(AppState& state, const Platform& platform, Settings& settings);
// A conversation begins. If this side called, the newest of them gets the peer's nickname.
void RememberAnswer(AppState& state, const Platform& platform, Settings& settings);
void ForgetCalledHosts(AppState& state, const Platform& platform, Settings& settings);
// Fills the menu, in the language in force.
void ShowCalledHosts(const AppState& state, const Platform& platform);

}  // namespace verlume
