// Reads what a router answers to the question who passes calls on (SSDP).
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform_qt/router/http_url.h"

namespace verlume::qt {

// The question; `host` is whom it is for, "239.255.255.250:1900", `target` a kind of device or
// service.
std::string SsdpQuestion(std::string_view host, std::string_view target);

struct SsdpAnswer {
  // What it says of itself concerns a router. Others answer to everything.
  bool isOfRouter = false;
  // Where it describes itself: on the machine that answered, or nothing.
  std::optional<HttpUrl> location;
};

// Nothing if the bytes are no answer at all.
std::optional<SsdpAnswer> ReadSsdpAnswer(std::string_view bytes, Ipv4 sender);

}  // namespace verlume::qt
