// googlemock's string matchers for std::u16string.
#pragma once

#include <gmock/gmock.h>

namespace verlume {

MATCHER_P(BeginsWith, start, "") {
  return arg.starts_with(start);
}
MATCHER_P(EndsIn, end, "") {
  return arg.ends_with(end);
}
MATCHER_P(Holds, part, "") {
  return arg.find(part) != arg.npos;
}

}  // namespace verlume
