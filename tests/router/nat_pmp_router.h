// A router that speaks NAT-PMP as a test wants it to.
#pragma once

#include <map>
#include <mutex>
#include <optional>
#include <string>

#include "router/server.h"

namespace verlume::router {

struct NatPmpManner {
  std::string address = Home::kRouter;
  std::string outerAddress = "203.0.113.7";
  std::uint16_t result = 0;           // of a question for a port: 2 is "not authorised"
  std::uint16_t outerPort = 0;        // what it grants instead of the wanted one; 0 for that
  std::uint32_t longestLease = 3600;  // seconds
  // What it answers instead; nothing is silence.
  std::function<std::optional<std::string>(const std::string& question)> answer = {};
  int times = 1;  // how often it sends each answer
};

class NatPmpRouter {
 public:
  struct Mapping {
    std::uint16_t outerPort = 0;
    std::uint32_t lease = 0;
  };

  explicit NatPmpRouter(const Home& home, NatPmpManner manner = {});

  // By the machine's port.
  std::map<std::uint16_t, Mapping> Mappings() const;
  int TimesAskedForPort() const;

 private:
  void Serve(int socket);
  std::optional<std::string> Answer(const std::string& question);
  std::string AnswerForPort(const std::string& question);

  const NatPmpManner manner_;
  mutable std::mutex mutex_;
  std::map<std::uint16_t, Mapping> mappings_;
  int timesAskedForPort_ = 0;
  Server server_;
};

}  // namespace verlume::router
