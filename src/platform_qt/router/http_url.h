// Addresses of a router's own small web server.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "platform_qt/os/ipv4.h"

namespace verlume::qt {

struct HttpUrl {
  Ipv4 host = kNoIpv4;
  std::uint16_t port = 80;
  std::string path;  // begins with '/'; visible ASCII only

  bool operator==(const HttpUrl&) const = default;
};

// "http://192.168.0.1:5000/description.xml": the host is an address, no name, and nobody logs in.
// Nothing for everything else. 1,000 characters at most.
std::optional<HttpUrl> ParseHttpUrl(std::string_view text);

// What `reference` means in a document that came from `base`: a whole address, or a path. Nothing
// if that is another machine.
std::optional<HttpUrl> ResolveUrl(const HttpUrl& base, std::string_view reference);

}  // namespace verlume::qt
