// What the program is asked to do as soon as it runs, or while it runs by another start of it.
#pragma once

#include <cstdint>
#include <string>

namespace verlume {

struct StartTask {
  enum class Kind {
    None,
    Wait,            // on `port`; 0 for a free one
    Call,            // `text` on `port`
    OpenInvitation,  // `text`, which may be a wrong one; the user is asked before it is called
  };
  Kind kind = Kind::None;
  std::u16string text;
  std::int32_t port = 0;

  bool operator==(const StartTask&) const = default;
};

}  // namespace verlume
