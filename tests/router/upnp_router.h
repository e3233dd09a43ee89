// A router that speaks UPnP as a test wants it to.
#pragma once

#include <map>
#include <mutex>
#include <string>
#include <vector>

#include "router/server.h"

namespace verlume::router {

struct UpnpManner {
  std::string address = Home::kRouter;
  // Where it says that it describes itself; "" for where it does.
  std::string location = "";
  std::string control = "/control";  // in the description
  std::string outerAddress = "203.0.113.7";
  std::string refusal = "";       // of a mapping: "606 Action not authorized"
  bool onlyWithoutEnd = false;    // it knows no leases
  bool takesOver = false;         // it gives a port to whoever asks last
  std::string mapsTo = "";        // who gets the calls instead of who asked
  int searchAnswers = 1;          // to each search
  std::string searchAnswer = "";  // what it answers instead
  // What it sends instead of an answer to a request that contains `attackOn`; it is given up when
  // this returns.
  std::string attackOn = "";
  std::function<void(int socket, const Server& server)> attack = {};
};

class UpnpRouter {
 public:
  static constexpr std::uint16_t kPort = 5000;

  struct Mapping {
    std::string client;
    int port = 0;
    int lease = 0;

    bool operator==(const Mapping&) const = default;
  };

  explicit UpnpRouter(const Home& home, UpnpManner manner = {});

  // By the outer port.
  std::map<int, Mapping> Mappings() const;
  void SetMapping(int outerPort, const Mapping& mapping);
  // The first lines of all requests that contain the text.
  int TimesAsked(const std::string& text) const;

 private:
  void Search(int socket);
  void Accept(int socket);
  std::string Answer(const std::string& request);
  std::string Description() const;
  std::string Add(const std::string& request);
  std::string Entry(const std::string& request) const;
  std::string Delete(const std::string& request);

  const UpnpManner manner_;
  mutable std::mutex mutex_;
  std::map<int, Mapping> mappings_;
  std::vector<std::string> requests_;
  Server http_;
  Server search_;
};

// Sends all of it; false once the other side has gone.
bool SendAll(int socket, std::string_view bytes);

}  // namespace verlume::router
