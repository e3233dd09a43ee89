// What a router says, made fit to be shown.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace verlume::qt {

// At most 200 characters. What is no UTF-8 and what would steer the text (control characters, turns
// of the writing direction) becomes U+FFFD.
std::u16string RouterText(std::string_view said);

// The router's word for its outer address.
struct OuterAddress {
  bool makesSense = false;
  std::u16string text;  // "" if it has none
};
// An address that one machine can have, or none: "" and "0.0.0.0".
OuterAddress ReadOuterAddress(std::string_view said);

}  // namespace verlume::qt
