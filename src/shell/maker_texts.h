// How the program names its maker, wherever it does.
#pragma once

#include "shell/text_pair.h"

namespace verlume {

// Peers recognise each other by it, too (connection/wire_protocol.h): a copy that words it
// otherwise talks to no other.
inline constexpr TextPair kMakersCredit = {u"Made by the Verlume team",
                                           u"Δημιουργία της ομάδας Verlume"};

inline constexpr TextPair kCopyrightNotice = {u"© 2026 The Verlume team",
                                              u"© 2026 Η ομάδα Verlume"};

}  // namespace verlume
