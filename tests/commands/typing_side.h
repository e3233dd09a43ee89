// One side of the program, as far as typed lines need it: the real objects on an in-memory
// platform, with the command pane and the style controls connected as in the program.
#pragma once

#include <gtest/gtest.h>

#include "commands/interpreter.h"
#include "connection/connection_state.h"
#include "platform_fake/fake_platform.h"

namespace verlume::fake {

class TypingSide : public testing::Test {
 protected:
  TypingSide();
  ~TypingSide() override;

  // Types a line and presses Enter.
  void Enter(std::u16string_view line) {
    window.rtbCommands.Type(line);
    window.rtbCommands.Type(u"\r");
  }

  // Connects a peer at port 2000 to this side's socket. What this side sends is in
  // fake.socket.sent.
  void Connect() {
    peer.SetLocalPort(2000);
    peer.onConnectionRequest = [this](std::int64_t id) {
      peer.Close();
      peer.Accept(id);
    };
    peer.Listen();
    fake.socket.SetRemotePort(2000);
    fake.socket.Connect();
    network.RunUntilIdle();
    state.IsConnected = true;
    state.RemoteNickname = u"Eve";
  }

  FakeNetwork network;
  FakePlatform fake{network};
  FakeMainWindow& window = fake.window;
  FakeSocket peer{network};
  AppState state;
  ErrorReport errors{state, fake.platform, [this] { ResetConnection(state, fake.platform); },
                     [this] { window.window.Unload(); }};
  Settings settings{state, fake.files};
  DialogueLog log{state, fake.platform, errors, settings};
  StatusPanel statusPanel{fake.platform, errors};
  Dialogue dialogue{state, fake.platform, errors, settings, log};
  WireProtocol wire{
      state, fake.platform, errors, {.dialogue = dialogue, .log = log, .statusPanel = statusPanel}};
  PortKeeper port{state, fake.platform, errors, settings};
  ConnectionActions connection{state,
                               fake.platform,
                               errors,
                               {.settings = settings,
                                .dialogue = dialogue,
                                .log = log,
                                .statusPanel = statusPanel,
                                .wire = wire,
                                .port = port}};
  CommandHistory history{state, fake.platform, errors};
  TextFormat textFormat{state, fake.platform, errors, settings, dialogue};
  CommandInterpreter interpreter{state,
                                 fake.platform,
                                 errors,
                                 {.dialogue = dialogue,
                                  .history = history,
                                  .textFormat = textFormat,
                                  .connection = connection,
                                  .wire = wire}};
};

}  // namespace verlume::fake
