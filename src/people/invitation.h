// An invitation: where somebody waits for a call, and the key that will answer there.
//
//   verlume://192.0.2.7:4000/?key=AAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAA
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "platform/privacy.h"

namespace verlume {

struct Invitation {
  std::u16string host;  // a name or an address; IPv6 without brackets
  std::int32_t port = 0;
  KeyFingerprint key{};

  bool operator==(const Invitation&) const = default;
};

// An IPv6 address is put into brackets.
std::u16string InvitationText(const Invitation& invitation);

// Whether the text is meant as an invitation; it may be a wrong one. Blanks around it do not count.
bool LooksLikeInvitation(std::u16string_view text);

// None unless the text is an invitation: a host of ASCII letters, digits, ".", "-" and "_", or an
// IPv6 address in brackets; a port from 1 to kGreatestNameablePort; and a whole key. Nothing may
// follow. Blanks around it do not count.
std::optional<Invitation> InvitationIn(std::u16string_view text);

}  // namespace verlume
