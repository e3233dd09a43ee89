// The name of the program's maker.
#pragma once

#include "shell/text_pair.h"

namespace verlume {

// It is also part of the protocol marker (connection/wire_protocol.h): a copy with another wording
// could not talk to any other.
inline constexpr TextPair kMakersCredit = {u"Made by the Verlume team",
                                           u"Δημιουργία της ομάδας Verlume"};

inline constexpr TextPair kCopyrightNotice = {u"© 2026 The Verlume team",
                                              u"© 2026 Η ομάδα Verlume"};

}  // namespace verlume
