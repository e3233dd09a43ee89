#include "macros/room_test.h"

namespace verlume {

RoomTest::RoomTest() {
  state.Title = u"Verlume";
  state.IniFile = u"/verlume/Verlume.ini";
}

RoomTest::~RoomTest() = default;

}  // namespace verlume
