#include "router/upnp_router.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <sys/time.h>

#include <algorithm>
#include <array>
#include <utility>

namespace verlume::router {
namespace {

constexpr const char* kService = "urn:schemas-upnp-org:service:WANIPConnection:1";

std::string Element(const std::string& text, const std::string& name) {
  const std::string start = "<" + name + ">";
  const auto from = text.find(start);
  const auto to = text.find("</" + name + ">");
  if (from == text.npos || to == text.npos) return "";
  return text.substr(from + start.size(), to - from - start.size());
}

std::string Tagged(const std::string& name, const std::string& value) {
  return "<" + name + ">" + value + "</" + name + ">";
}

std::string Http(const std::string& status, const std::string& body) {
  return "HTTP/1.1 " + status +
         "\r\nContent-Type: text/xml\r\nContent-Length: " + std::to_string(body.size()) +
         "\r\n\r\n" + body;
}

std::string Envelope(const std::string& content) {
  return "<?xml version=\"1.0\"?><s:Envelope xmlns:s=\"x\"><s:Body>" + content +
         "</s:Body></s:Envelope>";
}

std::string Done(const std::string& content) {
  return Http("200 OK", Envelope("<u:R xmlns:u=\"y\">" + content + "</u:R>"));
}

// "606 Action not authorized"
std::string Fault(const std::string& refusal) {
  const std::string code = refusal.substr(0, refusal.find(' '));
  const std::string words = refusal.substr(std::min(refusal.size(), code.size() + 1));
  return Http("500 Internal Server Error",
              Envelope("<s:Fault><detail><UPnPError>" + Tagged("errorCode", code) +
                       Tagged("errorDescription", words) + "</UPnPError></detail></s:Fault>"));
}

// Head and body.
std::string ReadRequest(int socket) {
  std::string request;
  std::array<char, 4096> bytes{};
  std::size_t whole = std::string::npos;
  while (request.size() < whole) {
    const ssize_t size = ::recv(socket, bytes.data(), bytes.size(), 0);
    if (size <= 0) return request;
    request.append(bytes.data(), static_cast<std::size_t>(size));
    const auto end = request.find("\r\n\r\n");
    if (end == request.npos) continue;
    const auto length = request.find("Content-Length: ");
    whole = end + 4 + (length < end ? std::stoul(request.substr(length + 16)) : 0);
  }
  return request;
}

}  // namespace

bool SendAll(int socket, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t sent = ::send(socket, bytes.data(), bytes.size(), MSG_NOSIGNAL);
    if (sent <= 0) return false;
    bytes.remove_prefix(static_cast<std::size_t>(sent));
  }
  return true;
}

UpnpRouter::UpnpRouter(const Home& home, UpnpManner manner)
    : manner_(std::move(manner)),
      http_(home, SOCK_STREAM, manner_.address, kPort, [this](int socket) { Accept(socket); }),
      search_(home, SOCK_DGRAM, "0.0.0.0", 1900, [this](int socket) { Search(socket); }) {
  ip_mreqn group{};
  ::inet_pton(AF_INET, "239.255.255.250", &group.imr_multiaddr);
  ::inet_pton(AF_INET, manner_.address.c_str(), &group.imr_address);
  network::Checked(
      ::setsockopt(search_.Number(), IPPROTO_IP, IP_ADD_MEMBERSHIP, &group, sizeof group),
      "join a group");
}

std::map<int, UpnpRouter::Mapping> UpnpRouter::Mappings() const {
  const std::lock_guard lock(mutex_);
  return mappings_;
}

void UpnpRouter::SetMapping(int outerPort, const Mapping& mapping) {
  const std::lock_guard lock(mutex_);
  mappings_[outerPort] = mapping;
}

int UpnpRouter::TimesAsked(const std::string& text) const {
  const std::lock_guard lock(mutex_);
  return static_cast<int>(std::count_if(
      requests_.begin(), requests_.end(),
      [&](const std::string& request) { return request.find(text) != request.npos; }));
}

// Answers from its own address, also where the machine has others.
void UpnpRouter::Search(int socket) {
  std::array<char, 2048> bytes{};
  sockaddr_in sender{};
  socklen_t length = sizeof sender;
  const ssize_t size = ::recvfrom(socket, bytes.data(), bytes.size(), 0,
                                  reinterpret_cast<sockaddr*>(&sender), &length);
  const std::string_view question(bytes.data(),
                                  static_cast<std::size_t>(std::max<ssize_t>(size, 0)));
  if (question.find(":InternetGatewayDevice:1") == question.npos) return;
  std::string location = manner_.location;
  if (location.empty()) {
    location = "http://" + manner_.address + ":" + std::to_string(kPort) + "/description.xml";
  }
  std::string answer =
      "HTTP/1.1 200 OK\r\nST: urn:schemas-upnp-org:device:InternetGatewayDevice:1\r\n"
      "Location: " +
      location + "\r\n\r\n";
  if (!manner_.searchAnswer.empty()) answer = manner_.searchAnswer;
  in_pktinfo from{};
  ::inet_pton(AF_INET, manner_.address.c_str(), &from.ipi_spec_dst);
  alignas(cmsghdr) std::array<char, CMSG_SPACE(sizeof from)> control{};
  iovec data{answer.data(), answer.size()};
  msghdr message{};
  message.msg_name = &sender;
  message.msg_namelen = sizeof sender;
  message.msg_iov = &data;
  message.msg_iovlen = 1;
  message.msg_control = control.data();
  message.msg_controllen = control.size();
  cmsghdr* header = CMSG_FIRSTHDR(&message);
  header->cmsg_level = IPPROTO_IP;
  header->cmsg_type = IP_PKTINFO;
  header->cmsg_len = CMSG_LEN(sizeof from);
  *reinterpret_cast<in_pktinfo*>(CMSG_DATA(header)) = from;
  for (int i = 0; i < manner_.searchAnswers; ++i) ::sendmsg(socket, &message, 0);
}

void UpnpRouter::Accept(int socket) {
  const network::Descriptor connection(::accept4(socket, nullptr, nullptr, SOCK_CLOEXEC));
  const timeval limit{10, 0};
  ::setsockopt(connection.Number(), SOL_SOCKET, SO_RCVTIMEO, &limit, sizeof limit);
  ::setsockopt(connection.Number(), SOL_SOCKET, SO_SNDTIMEO, &limit, sizeof limit);
  const std::string request = ReadRequest(connection.Number());
  {
    const std::lock_guard lock(mutex_);
    requests_.push_back(request);
  }
  if (manner_.attack && request.find(manner_.attackOn) != request.npos) {
    return manner_.attack(connection.Number(), http_);
  }
  SendAll(connection.Number(), Answer(request));
}

std::string UpnpRouter::Answer(const std::string& request) {
  const std::lock_guard lock(mutex_);
  const auto asks = [&request](const char* text) { return request.find(text) != request.npos; };
  if (request.starts_with("GET /description.xml ")) return Http("200 OK", Description());
  if (asks("#GetExternalIPAddress")) {
    return Done(Tagged("NewExternalIPAddress", manner_.outerAddress));
  }
  if (asks("#AddPortMapping")) return Add(request);
  if (asks("#GetSpecificPortMappingEntry")) return Entry(request);
  if (asks("#DeletePortMapping")) return Delete(request);
  return Http("404 Not Found", "");
}

std::string UpnpRouter::Description() const {
  return "<?xml version=\"1.0\"?><root><device><deviceType>urn:schemas-upnp-org:device:"
         "InternetGatewayDevice:1</deviceType><deviceList><device><serviceList><service>" +
         Tagged("serviceType", kService) + Tagged("controlURL", manner_.control) +
         "</service></serviceList></device></deviceList></device></root>";
}

std::string UpnpRouter::Add(const std::string& request) {
  const int outerPort = std::stoi(Element(request, "NewExternalPort"));
  Mapping mapping = {Element(request, "NewInternalClient"),
                     std::stoi(Element(request, "NewInternalPort")),
                     std::stoi(Element(request, "NewLeaseDuration"))};
  const auto known = mappings_.find(outerPort);
  const bool isAnothers = known != mappings_.end() && known->second.client != mapping.client;
  if (!manner_.refusal.empty()) return Fault(manner_.refusal);
  if (isAnothers && !manner_.takesOver) return Fault("718 ConflictInMappingEntry");
  if (manner_.onlyWithoutEnd && mapping.lease != 0)
    return Fault("725 OnlyPermanentLeasesSupported");
  if (!manner_.mapsTo.empty()) mapping.client = manner_.mapsTo;
  mappings_[outerPort] = mapping;
  return Done("");
}

std::string UpnpRouter::Entry(const std::string& request) const {
  const auto known = mappings_.find(std::stoi(Element(request, "NewExternalPort")));
  if (known == mappings_.end()) return Fault("714 NoSuchEntryInArray");
  return Done(Tagged("NewInternalPort", std::to_string(known->second.port)) +
              Tagged("NewInternalClient", known->second.client) + Tagged("NewEnabled", "1") +
              Tagged("NewLeaseDuration", std::to_string(known->second.lease)));
}

std::string UpnpRouter::Delete(const std::string& request) {
  mappings_.erase(std::stoi(Element(request, "NewExternalPort")));
  return Done("");
}

}  // namespace verlume::router
