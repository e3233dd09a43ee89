// Where a computer can be called.
#pragma once

#include <cstdint>
#include <string>

namespace verlume {

struct PlaceToCall {
  std::u16string host;  // "" for none
  std::int32_t port = 0;

  bool operator==(const PlaceToCall&) const = default;
};

}  // namespace verlume
