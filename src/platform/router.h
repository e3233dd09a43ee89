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

// What the router said in one language. The texts are as it sent them, at most 200 characters each;
// what would steer the text around them is U+FFFD.
struct RouterReport {
  RouterState state = RouterState::NotAsked;
  std::u16string outerAddress;  // "" if it has not said
  std::int32_t outerPort = 0;   // only when Mapped; may be another than was asked for
  std::u16string reason;        // only when Refused: its own number, and words if it has some

  bool operator==(const RouterReport&) const = default;
};

class Router {
 public:
  virtual ~Router() = default;

  // Asks the router in both languages to pass calls at `port` on to this machine, and keeps asking
  // before its promise runs out, or in case it has changed its mind, until Release. Both reports
  // are Asking now. Asking for the same port again asks anew at once; for another port, the first
  // one is given back.
  virtual void MapPort(std::int32_t port) = 0;
  // Asks for its outer address only; changes nothing on the router. Both reports are Asking now,
  // and NotAsked again when the address has come. Does nothing while a port is asked for.
  virtual void AskAddress() = 0;
  // Gives the port back, and forgets what the router has said: both reports are NotAsked now.
  // Harmless without a port. The end of the program gives it back, too, and tries so for 2 s; then
  // it runs out by itself within the hour, unless the router knows no limit.
  virtual void Release() = 0;
  // The port that is asked for, 0 for none.
  virtual std::int32_t Port() const = 0;
  virtual RouterReport Report(RouterLanguage language) const = 0;

  // The router has said something else than before. Raised on the user-interface thread, never from
  // inside an operation.
  std::function<void()> onReport;
};

}  // namespace verlume
