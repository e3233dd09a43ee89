#include "support/side.h"

namespace verlume::fake {

Side::Side(FakeNetwork& network, std::u16string_view nickname, std::u16string_view address)
    : fake(network) {
  state.Title = u"Verlume";
  state.IniFile = u"/verlume/Verlume.ini";
  state.ProtocolMarker = BuildProtocolMarker();
  state.Nickname = nickname;
  state.LocalAddress = address;
  state.DateStamp = false;
  state.TimeStamp = false;
  fake.socket.localIP = address;
  fake.socket.onConnectionRequest = [this](std::int64_t id) {
    events.sckControl_ConnectionRequest(id);
  };
  fake.socket.onConnect = [this] { events.sckControl_Connect(); };
  fake.socket.onDataArrival = [this](std::int32_t total) { events.sckControl_DataArrival(total); };
  fake.socket.onAcknowledged = [this] { wire.ShowLinesWaiting(); };
  fake.socket.onUndelivered = [this](std::size_t lines, ConnectionNumber connection) {
    wire.OnUndelivered(lines, connection);
  };
  fake.socket.onClose = [this] { events.sckControl_Close(); };
  ResetConnection(state, fake.platform);
}

Side::~Side() = default;

TwoSides::TwoSides() : alice(network, u"Alice", u"192.0.2.1"), bob(network, u"Bob", u"192.0.2.2") {}

TwoSides::~TwoSides() = default;

}  // namespace verlume::fake
