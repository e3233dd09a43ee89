// What a router says it can do, and how it answers (UPnP), read with miniupnpc's parsers. The bytes
// come from outside.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform_qt/router/http_url.h"

namespace verlume::qt {

// A service that passes calls on.
struct IgdService {
  std::string type;  // "urn:schemas-upnp-org:service:WANIPConnection:1"
  HttpUrl control;   // on the machine of the description
};

// The services of a description that came from `location`; none if it makes no sense. At most two.
std::vector<IgdService> ReadIgdDescription(std::string_view xml, const HttpUrl& location);

// The elements of an answer with text in them, by their names without prefixes; 100 at most, each
// text with at most 127 bytes.
using SoapValues = std::map<std::string, std::string>;
SoapValues ReadSoapAnswer(std::string_view xml);

// A decimal number up to 65535, and nothing else.
std::optional<std::uint16_t> ReadPort(std::string_view text);

}  // namespace verlume::qt
