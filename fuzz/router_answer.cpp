// What a router answers. The first byte says what the rest is: 'h' the answer of a web server,
// which comes whole and by drops; 's' an answer to a search; 'd' a router's description of itself;
// 'x' an answer to a request; 'u' an address and, behind a line end, what stands in its document;
// 't' a text; 'r' the system's list of routes; 'a' an answer by NAT-PMP to the question for the
// address, 'p' one to the question for a port.
#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>

#include "fuzz/check.h"
#include "platform_qt/os/default_gateways_posix.h"
#include "platform_qt/os/ipv4.h"
#include "platform_qt/router/http_answer.h"
#include "platform_qt/router/igd_description.h"
#include "platform_qt/router/nat_pmp_message.h"
#include "platform_qt/router/router_text.h"
#include "platform_qt/router/ssdp_answer.h"

namespace verlume::fuzz {
namespace {

using namespace qt;

const HttpUrl kHome = {*ParseIpv4("192.168.0.1"), 5000, "/igd/description.xml"};

void CheckIsAtHome(const HttpUrl& url) {
  Check(url.host == kHome.host, "nothing leads to another machine");
  Check(url.port != 0, "a port is a port");
  Check(url.path.starts_with('/'), "a path begins at the root");
  for (const char c : url.path) Check(c > ' ' && c < '\x7F', "a path does not end its line");
}

HttpReader Read(std::string_view bytes, std::size_t piece) {
  HttpReader reader;
  while (!bytes.empty() && reader.Add(bytes.substr(0, piece))) {
    bytes.remove_prefix(std::min(piece, bytes.size()));
  }
  reader.End();
  return reader;
}

void CheckHttp(std::string_view bytes) {
  const auto whole = Read(bytes, std::max<std::size_t>(bytes.size(), 1)).Answer();
  const auto byDrops = Read(bytes, 1).Answer();
  Check(whole.has_value() == byDrops.has_value(), "drops are an answer where the whole is one");
  if (!whole) return;
  Check(whole->status == byDrops->status && whole->body == byDrops->body,
        "drops say what the whole says");
  Check(whole->body.size() <= HttpReader::kLongestAnswer, "an answer has an end");
}

void CheckServices(std::string_view xml) {
  const auto services = ReadIgdDescription(xml, kHome);
  Check(services.size() <= 2, "there are two services at most");
  for (const IgdService& service : services) {
    CheckIsAtHome(service.control);
    Check(service.type.find_first_of("\"\r\n<>") == service.type.npos,
          "a type is one of the known");
  }
}

void CheckValues(std::string_view xml) {
  const SoapValues values = ReadSoapAnswer(xml);
  Check(values.size() <= 100, "an answer has not many values");
  for (const auto& [name, value] : values) {
    Check(name.size() < 64 && value.size() < 128, "names and values are short");
    ReadPort(value);
    ReadOuterAddress(value);
  }
}

void CheckUrl(std::string_view bytes) {
  const auto end = std::min(bytes.find('\n'), bytes.size());
  if (const auto base = ParseHttpUrl(bytes.substr(0, end))) {
    const auto url = ResolveUrl(*base, bytes.substr(std::min(end + 1, bytes.size())));
    Check(!url || url->host == base->host, "a document does not lead to another machine");
  }
  if (const auto url = ResolveUrl(kHome, bytes)) CheckIsAtHome(*url);
}

void CheckText(std::string_view bytes) {
  const std::u16string text = RouterText(bytes);
  Check(text.size() <= 200, "a text is short");
  for (const char16_t c : text) {
    Check(c >= 0x20 && (c < 0x202A || c > 0x202E), "a text does not steer");
  }
  const OuterAddress outer = ReadOuterAddress(bytes);
  Check(outer.makesSense || outer.text.empty(), "nonsense is no address");
}

void CheckNatPmp(std::string_view bytes, NatPmpOperation wanted) {
  const auto answer = ReadNatPmpAnswer(bytes, wanted);
  if (!answer) return;
  Check(answer->outcome != NatPmpOutcome::Silent, "what has come is not silence");
  if (answer->outcome == NatPmpOutcome::Done) {
    Check(answer->resultCode == 0, "a refusal grants nothing");
    Check(bytes.size() >= (wanted == NatPmpOperation::MapTcpPort ? 16u : 12u),
          "what grants something is whole");
  } else {
    Check(answer->outerAddress == kNoIpv4 && answer->outerPort == 0,
          "nothing else grants anything");
  }
  ReadOuterAddress(Ipv4Text(answer->outerAddress));
}

}  // namespace
}  // namespace verlume::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace verlume::fuzz;
  // A copy that ends where the input does: what reads further is caught.
  const std::string bytes(reinterpret_cast<const char*>(data), size);
  if (bytes.empty()) return 0;
  const std::string_view rest = std::string_view(bytes).substr(1);
  switch (bytes[0]) {
    case 'h':
      CheckHttp(rest);
      break;
    case 's':
      if (const auto answer = ReadSsdpAnswer(rest, kHome.host); answer && answer->location) {
        CheckIsAtHome(*answer->location);
      }
      break;
    case 'd':
      CheckServices(rest);
      break;
    case 'x':
      CheckValues(rest);
      break;
    case 'u':
      CheckUrl(rest);
      break;
    case 't':
      CheckText(rest);
      break;
    case 'r':
      Check(DefaultGatewaysIn(rest).size() <= kMostGateways, "there are not many gateways");
      break;
    case 'a':
      CheckNatPmp(rest, NatPmpOperation::OuterAddress);
      break;
    case 'p':
      CheckNatPmp(rest, NatPmpOperation::MapTcpPort);
      break;
    default:
      break;
  }
  return 0;
}
