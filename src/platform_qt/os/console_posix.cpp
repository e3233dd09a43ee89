#include "platform_qt/os/console.h"

#include <iostream>

namespace verlume::qt {

bool PrintText(std::string_view utf8, bool isError) {
  std::ostream& output = isError ? std::cerr : std::cout;
  output << utf8 << std::flush;
  return static_cast<bool>(output);
}

void LogLine(std::string_view utf8) {
  std::cerr << utf8 << std::endl;
}

}  // namespace verlume::qt
