// Asks a service of a router (UPnP) to do something.
#pragma once

#include <string>
#include <string_view>

#include "platform_qt/router/igd_description.h"
#include "platform_qt/router/wait_limit.h"

namespace verlume::qt {

enum class IgdOutcome {
  Done,
  Refused,
  Nonsense,  // no answer, or none that can be read
};

struct IgdAnswer {
  IgdOutcome outcome = IgdOutcome::Nonsense;
  SoapValues values;      // only when Done
  std::string errorCode;  // only when Refused: "718"
  std::string reason;     // only when Refused: the number and the router's words

  // The text of an element, "" if there is none.
  std::string Value(const std::string& name) const;
};

// A port that a router passes on.
struct IgdMapping {
  IgdService service;
  Ipv4 local = kNoIpv4;  // to whom
  std::uint16_t port = 0;
};

IgdAnswer AskOuterAddress(const IgdService& service, const WaitLimit& limit);
// For `lease` seconds; 0 is without end.
IgdAnswer AddMapping(const IgdMapping& mapping, long lease, const WaitLimit& limit);
IgdAnswer DeleteMapping(const IgdMapping& mapping, const WaitLimit& limit);

// Whose the mapping of a port is.
enum class PortOwner { Nobody, We, Another, Unknown };
struct PortEntry {
  PortOwner owner = PortOwner::Unknown;
  long lease = 0;  // seconds that are left; 0 if that is not said, or there is no end
};
PortEntry AskPortEntry(const IgdMapping& mapping, const WaitLimit& limit);

}  // namespace verlume::qt
