#include "platform_qt/router/router_text.h"

#include "platform_qt/os/ipv4.h"
#include "stream/utf8_text.h"

namespace verlume::qt {
namespace {

constexpr std::size_t kLongestText = 200;  // UTF-16 units

bool Steers(char16_t c) {
  const bool isControl = c < 0x20 || (c >= 0x7F && c < 0xA0) || c == 0x2028 || c == 0x2029;
  const bool isTurn = c == 0x061C || c == 0x200E || c == 0x200F || (c >= 0x202A && c <= 0x202E) ||
                      (c >= 0x2066 && c <= 0x2069);
  return isControl || isTurn;
}

bool IsFirstHalf(char16_t c) {
  return c >= 0xD800 && c < 0xDC00;
}

}  // namespace

std::u16string RouterText(std::string_view said) {
  // A character has three bytes per unit at most.
  std::u16string text = stream::DecodeUtf8(said.substr(0, 3 * kLongestText + 3));
  if (text.size() > kLongestText) {
    text.resize(IsFirstHalf(text[kLongestText - 1]) ? kLongestText - 1 : kLongestText);
  }
  for (char16_t& c : text) {
    if (Steers(c)) c = 0xFFFD;
  }
  return text;
}

OuterAddress ReadOuterAddress(std::string_view said) {
  if (said.empty()) return {true, u""};
  const auto address = ParseIpv4(said);
  if (!address) return {};
  if (*address == kNoIpv4) return {true, u""};
  if (!IsOfOneMachine(*address)) return {};
  return {true, RouterText(Ipv4Text(*address))};
}

}  // namespace verlume::qt
