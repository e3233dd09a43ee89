// Opens addresses in other programs.
#pragma once

#include <string>
#include <string_view>

namespace verlume {

// The computer that an address leads to.
struct LinkHost {
  std::u16string ascii;    // its name in ASCII letters alone (punycode); "" if the address has none
  std::u16string letters;  // the same name in its own letters
};

class LinkOpener {
 public:
  virtual ~LinkOpener() = default;
  // Read by the same rules by which Open reads the address. Without a name if it cannot be opened.
  virtual LinkHost HostOf(std::u16string_view address) const = 0;
  // Hands the address over to the desktop, which starts the program for it; nothing is fetched
  // here. False if it cannot, or if the address begins with neither http:, https: nor mailto:.
  virtual bool Open(std::u16string_view address) = 0;
};

}  // namespace verlume
