#include "platform_qt/router/ssdp_answer.h"

#include "platform_qt/router/http_answer.h"

namespace verlume::qt {

std::string SsdpQuestion(std::string_view host, std::string_view target) {
  std::string text = "M-SEARCH * HTTP/1.1\r\nHOST: ";
  text += host;
  text += "\r\nMAN: \"ssdp:discover\"\r\nMX: 1\r\nST: ";
  text += target;
  text += "\r\n\r\n";
  return text;
}

std::optional<SsdpAnswer> ReadSsdpAnswer(std::string_view bytes, Ipv4 sender) {
  constexpr int kOk = 200;
  if (HeadStatus(bytes) != kOk) return std::nullopt;
  SsdpAnswer answer;
  const std::string_view kind = HeadField(bytes, "ST").value_or("");
  answer.isOfRouter = kind.find(":InternetGatewayDevice:") != kind.npos ||
                      kind.find(":WANIPConnection:") != kind.npos ||
                      kind.find(":WANPPPConnection:") != kind.npos;
  answer.location = ParseHttpUrl(HeadField(bytes, "LOCATION").value_or(""));
  if (answer.location && answer.location->host != sender) answer.location.reset();
  return answer;
}

}  // namespace verlume::qt
