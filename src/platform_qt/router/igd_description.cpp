#include "platform_qt/router/igd_description.h"

#include <miniupnpc/miniupnpc.h>
#include <miniupnpc/upnpreplyparse.h>

#include <charconv>
#include <memory>

namespace verlume::qt {
namespace {

// It also goes into what is sent, so that it must be one of those that are known.
bool PassesCallsOn(std::string_view type) {
  for (const std::string_view known : {"urn:schemas-upnp-org:service:WANIPConnection:1",
                                       "urn:schemas-upnp-org:service:WANIPConnection:2",
                                       "urn:schemas-upnp-org:service:WANPPPConnection:1"}) {
    if (type == known) return true;
  }
  return false;
}

}  // namespace

std::vector<IgdService> ReadIgdDescription(std::string_view xml, const HttpUrl& location) {
  // It keeps texts of 128 bytes at most.
  const auto data = std::make_unique<IGDdatas>();
  ::parserootdesc(xml.data(), static_cast<int>(xml.size()), data.get());
  std::optional<HttpUrl> base = location;
  if (data->urlbase[0] != '\0') base = ResolveUrl(location, data->urlbase);
  std::vector<IgdService> services;
  for (const IGDdatas_service* each : {&data->first, &data->second}) {
    const auto control = base ? ResolveUrl(*base, each->controlurl) : std::nullopt;
    if (control && PassesCallsOn(each->servicetype)) {
      services.push_back({each->servicetype, *control});
    }
  }
  return services;
}

SoapValues ReadSoapAnswer(std::string_view xml) {
  constexpr std::size_t kMostValues = 100;
  NameValueParserData data{};
  ::ParseNameValue(xml.data(), static_cast<int>(xml.size()), &data);
  SoapValues values;
  for (const NameValue* each = data.l_head; each && values.size() < kMostValues;
       each = each->l_next) {
    values.emplace(each->name, each->value);
  }
  ::ClearNameValueList(&data);
  return values;
}

std::optional<std::uint16_t> ReadPort(std::string_view text) {
  std::uint16_t port = 0;
  const char* end = text.data() + text.size();
  const auto [last, error] = std::from_chars(text.data(), end, port);
  if (error != std::errc() || last != end) return std::nullopt;
  return port;
}

}  // namespace verlume::qt
