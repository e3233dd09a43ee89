// Keys and meetings for the tests of people.
#pragma once

#include "people/peer_book.h"

namespace verlume {

inline KeyFingerprint KeyOfNumber(int number) {
  KeyFingerprint key{};
  key[0] = static_cast<std::uint8_t>(number >> 8);
  key[1] = static_cast<std::uint8_t>(number);
  return key;
}

inline PeerBook::Meeting MeetingOf(int key, std::u16string_view name,
                                   std::u16string_view address = u"", Day day = {2026, 11, 3}) {
  PeerBook::Meeting meeting;
  meeting.key = KeyOfNumber(key);
  meeting.name = name;
  meeting.address = address;
  meeting.day = day;
  return meeting;
}

}  // namespace verlume
