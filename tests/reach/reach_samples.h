// Addresses and answers of routers, for tests.
#pragma once

#include <string>
#include <string_view>

#include "platform/network.h"
#include "platform/router.h"

namespace verlume::samples {

inline const NetworkAddress kLoopback = {u"127.0.0.1", u"lo"};
inline const NetworkAddress kPrivate = {u"192.168.1.5", u"eth0"};
inline const NetworkAddress kPublic = {u"81.2.69.142", u"eth0"};
inline const NetworkAddress kProviders = {u"100.64.3.4", u"ppp0"};
inline const NetworkAddress kGlobal = {u"2a02:587::1", u"eth0"};
inline const NetworkAddress kTemporary = {u"2a02:587::77", u"eth0", true};
inline const NetworkAddress kUnique = {u"fd00::1", u"eth0"};
inline const NetworkAddress kLinkLocal = {u"fe80::1", u"eth0"};
inline const NetworkAddress kTunnel = {u"2002:5102:458e::1", u"sit0"};

inline const std::u16string kOuter = u"81.2.69.160";

inline RouterReport Mapped(std::u16string_view address, std::int32_t port) {
  return {RouterState::Mapped, std::u16string(address), port, u""};
}

inline RouterReport In(RouterState state, std::u16string_view reason = {}) {
  return {state, u"", 0, std::u16string(reason)};
}

// What a hostile router says: every kind of character that changes how others look, and markup.
inline std::u16string HostileWords() {
  std::u16string words = u"<b>%1 %5</b>\u202e\u200b\n\r\u2066\xd800";
  words += u'\0';
  words.resize(200, u'\u202e');
  return words;
}

}  // namespace verlume::samples
