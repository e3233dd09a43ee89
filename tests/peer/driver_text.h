// How texts, keys and figures are written in the lines of verlume_socket_driver.
#pragma once

#include <QString>
#include <optional>
#include <string>
#include <string_view>

#include "platform/privacy.h"

namespace verlume::peer {

// ASCII, with \uXXXX for the backslash and whatever cannot be printed.
QString Escaped(std::u16string_view text);
std::u16string Unescaped(const QString& text);

// 64 digits; "-" for none.
QString Hex(const std::optional<KeyFingerprint>& key);
std::optional<KeyFingerprint> FromHex(const QString& text);

QString Name(Privacy state);
QString Name(PrivacyFailure failure);
QString Name(OwnKey key);
PrivacyOffer OfferOf(const QString& name);

// The resident memory of this process in KiB, and how many descriptors it has open.
QString Resources();

}  // namespace verlume::peer
