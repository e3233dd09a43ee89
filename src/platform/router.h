// The router between this machine and the world, asked to pass calls on. It is asked by UPnP and by
// NAT-PMP, on a thread of its own; nothing here waits for it. What it answers comes from the
// network: it may be wrong, and whoever shows it has to say so.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

namespace verlume {

// The two ways to ask a router. Many know one of them, some both.
enum class RouterLanguage { Upnp, NatPmp };

enum class RouterState {
  NotAsked,
  Asking,
  Mapped,    // it says that it passes calls on
  Refused,   // it answered, and does not
  Silent,    // nothing on this network answered
  Nonsense,  // what answered makes no sense
};

// What the router said in one language. The texts are as it sent them, at most 200 characters each.
struct RouterReport {
  RouterState state = RouterState::NotAsked;
  std::u16string outerAddress;  // "" if it has not said
  std::int32_t outerPort = 0;   // only when Mapped; may be another than was asked for
  std::u16string reason;        // only when Refused: its own words or number
};

class Router {
 public:
  virtual ~Router() = default;

  // Asks the router in both languages to pass calls at `port` on to this machine, and keeps asking
  // before its promise runs out, until Release. Asking for the same port again asks anew at once;
  // for another port, the first one is given back.
  virtual void MapPort(std::int32_t port) = 0;
  // Asks for its outer address only; changes nothing on the router. Does nothing while a port is
  // asked for.
  virtual void AskAddress() = 0;
  // Gives the port back. Harmless without one. What is not given back when the program ends, within
  // 2 s of trying, runs out by itself within the hour.
  virtual void Release() = 0;
  // The port that is asked for, 0 for none.
  virtual std::int32_t Port() const = 0;
  virtual RouterReport Report(RouterLanguage language) const = 0;

  // A report is another. Raised on the user-interface thread, never from inside an operation.
  std::function<void()> onReport;
};

}  // namespace verlume
