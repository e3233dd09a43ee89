#include "platform_qt/router/igd_control.h"

#include <charconv>
#include <chrono>
#include <initializer_list>
#include <utility>

#include "platform_qt/router/http_exchange.h"

namespace verlume::qt {
namespace {

constexpr const char* kNoSuchEntry = "714";

using Arguments = std::initializer_list<std::pair<const char*, std::string>>;

// No argument has a character that would have to be escaped.
std::string SoapText(const std::string& type, const std::string& action, Arguments arguments) {
  std::string text =
      "<?xml version=\"1.0\"?>\r\n"
      "<s:Envelope xmlns:s=\"http://schemas.xmlsoap.org/soap/envelope/\" "
      "s:encodingStyle=\"http://schemas.xmlsoap.org/soap/encoding/\"><s:Body><u:" +
      action + " xmlns:u=\"" + type + "\">";
  for (const auto& [name, value] : arguments) {
    text.append("<").append(name).append(">").append(value);
    text.append("</").append(name).append(">");
  }
  return text + "</u:" + action + "></s:Body></s:Envelope>\r\n";
}

IgdAnswer ReadAnswer(const HttpAnswer& http) {
  constexpr int kOk = 200;
  IgdAnswer answer;
  SoapValues values = ReadSoapAnswer(http.body);
  if (const auto code = values.find("errorCode"); code != values.end()) {
    if (!ReadPort(code->second)) return answer;  // no number
    answer.outcome = IgdOutcome::Refused;
    answer.errorCode = code->second;
    answer.reason = code->second;
    const std::string& words = values["errorDescription"];
    if (!words.empty()) answer.reason += " " + words;
  } else if (http.status == kOk && http.body.find("Envelope") != http.body.npos) {
    answer.outcome = IgdOutcome::Done;
    answer.values = std::move(values);
  }
  return answer;
}

IgdAnswer Ask(const IgdService& service, const std::string& action, Arguments arguments,
              const WaitLimit& limit) {
  constexpr std::chrono::seconds kLongest{4};
  const HttpQuestion question = {
      .method = "POST",
      .url = service.control,
      .fields = "Content-Type: text/xml; charset=\"utf-8\"\r\nSOAPAction: \"" + service.type + "#" +
                action + "\"\r\n",
      .body = SoapText(service.type, action, arguments)};
  const HttpExchange exchange = AskHttp(question, limit.Within(kLongest));
  return exchange.answer ? ReadAnswer(*exchange.answer) : IgdAnswer();
}

long Seconds(const std::string& text) {
  long seconds = 0;
  std::from_chars(text.data(), text.data() + text.size(), seconds);
  return seconds;
}

}  // namespace

std::string IgdAnswer::Value(const std::string& name) const {
  const auto value = values.find(name);
  return value == values.end() ? "" : value->second;
}

IgdAnswer AskOuterAddress(const IgdService& service, const WaitLimit& limit) {
  return Ask(service, "GetExternalIPAddress", {}, limit);
}

IgdAnswer AddMapping(const IgdMapping& mapping, long lease, const WaitLimit& limit) {
  const std::string port = std::to_string(mapping.port);
  return Ask(mapping.service, "AddPortMapping",
             {{"NewRemoteHost", ""},
              {"NewExternalPort", port},
              {"NewProtocol", "TCP"},
              {"NewInternalPort", port},
              {"NewInternalClient", Ipv4Text(mapping.local)},
              {"NewEnabled", "1"},
              {"NewPortMappingDescription", "Verlume"},
              {"NewLeaseDuration", std::to_string(lease)}},
             limit);
}

IgdAnswer DeleteMapping(const IgdMapping& mapping, const WaitLimit& limit) {
  return Ask(mapping.service, "DeletePortMapping",
             {{"NewRemoteHost", ""},
              {"NewExternalPort", std::to_string(mapping.port)},
              {"NewProtocol", "TCP"}},
             limit);
}

PortEntry AskPortEntry(const IgdMapping& mapping, const WaitLimit& limit) {
  const IgdAnswer answer = Ask(mapping.service, "GetSpecificPortMappingEntry",
                               {{"NewRemoteHost", ""},
                                {"NewExternalPort", std::to_string(mapping.port)},
                                {"NewProtocol", "TCP"}},
                               limit);
  if (answer.outcome == IgdOutcome::Refused) {
    return {answer.errorCode == kNoSuchEntry ? PortOwner::Nobody : PortOwner::Unknown, 0};
  }
  if (answer.outcome == IgdOutcome::Nonsense) return {};
  const std::string client = answer.Value("NewInternalClient");
  if (client.empty()) return {PortOwner::Nobody, 0};
  const bool isOurs = ParseIpv4(client) == mapping.local &&
                      ReadPort(answer.Value("NewInternalPort")) == mapping.port;
  return {isOurs ? PortOwner::We : PortOwner::Another, Seconds(answer.Value("NewLeaseDuration"))};
}

}  // namespace verlume::qt
