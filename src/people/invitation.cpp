#include "people/invitation.h"

#include <algorithm>

#include "people/fingerprint_text.h"
#include "platform/socket.h"
#include "shell/text_pair.h"
#include "shell/trim.h"

namespace verlume {
namespace {

constexpr std::u16string_view kScheme = u"verlume://";
constexpr std::u16string_view kKey = u"/?key=";
constexpr std::size_t kLongestName = 253;  // characters of a name on the network
constexpr std::size_t kLongestAddress = 45;

bool IsDigit(char16_t c) {
  return c >= u'0' && c <= u'9';
}

bool IsNameCharacter(char16_t c) {
  const bool isLetter = (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z');
  return isLetter || IsDigit(c) || c == u'.' || c == u'-' || c == u'_';
}

bool IsIPv6Character(char16_t c) {
  const bool isHex = IsDigit(c) || (c >= u'a' && c <= u'f') || (c >= u'A' && c <= u'F');
  return isHex || c == u':' || c == u'.';
}

bool IsIPv6(std::u16string_view host) {
  return host.size() <= kLongestAddress && std::ranges::count(host, u':') >= 2 &&
         std::ranges::all_of(host, IsIPv6Character);
}

bool IsName(std::u16string_view host) {
  return !host.empty() && host.size() <= kLongestName && host.front() != u'-' &&
         std::ranges::all_of(host, IsNameCharacter);
}

std::optional<std::u16string_view> HostIn(std::u16string_view text) {
  if (text.starts_with(u'[') && text.ends_with(u']')) {
    const std::u16string_view host = text.substr(1, text.size() - 2);
    return IsIPv6(host) ? std::optional(host) : std::nullopt;
  }
  return IsName(text) ? std::optional(text) : std::nullopt;
}

std::optional<std::int32_t> InvitedPort(std::u16string_view digits) {
  if (digits.empty() || digits.size() > 5 || digits.front() == u'0') return std::nullopt;
  std::int32_t port = 0;
  for (const char16_t c : digits) {
    if (!IsDigit(c)) return std::nullopt;
    port = port * 10 + (c - u'0');
  }
  return port <= kGreatestNameablePort ? std::optional(port) : std::nullopt;
}

}  // namespace

std::u16string InvitationText(const Invitation& invitation) {
  const bool isIPv6 = invitation.host.find(u':') != std::u16string::npos;
  std::u16string text(kScheme);
  text += isIPv6 ? u"[" + invitation.host + u"]" : invitation.host;
  text += u":" + DecimalText(invitation.port);
  text += kKey;
  return text + Base64UrlText(invitation.key);
}

bool LooksLikeInvitation(std::u16string_view text) {
  text = Trim(text);
  return text.starts_with(kScheme) && text.find(u' ') == text.npos;
}

std::optional<Invitation> InvitationIn(std::u16string_view text) {
  text = Trim(text);
  if (!text.starts_with(kScheme)) return std::nullopt;
  text.remove_prefix(kScheme.size());
  const std::size_t slash = text.find(kKey);
  if (slash == text.npos) return std::nullopt;
  const std::u16string_view place = text.substr(0, slash);
  const std::size_t colon = place.rfind(u':');
  if (colon == place.npos) return std::nullopt;
  const auto host = HostIn(place.substr(0, colon));
  const auto port = InvitedPort(place.substr(colon + 1));
  const auto key = FingerprintInBase64Url(text.substr(slash + kKey.size()));
  if (!host || !port || !key) return std::nullopt;
  return Invitation{std::u16string(*host), *port, *key};
}

}  // namespace verlume
