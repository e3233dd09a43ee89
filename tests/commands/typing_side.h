// One side of the program as far as typed lines reach: the real rooms on an in-memory platform,
// with the command pane and the style controls bound as in the program.
#pragma once

#include <gtest/gtest.h>

#include "commands/interpreter.h"
#include "connection/connection_state.h"
#include "platform_fake/fake_platform.h"

namespace verlume::fake {

class TypingSide : public testing::Test {
 protected:
  TypingSide() {
    state.Title = u"Verlume";
    state.IniFile = u"/verlume/Verlume.ini";
    state.Nickname = u"Bob";
    state.DateStamp = state.TimeStamp = false;
    state.History[0] = u"0";
    state.FontName = u"Arial";
    state.FontSize = 10;
    state.ProtocolMarker = BuildProtocolMarker();

    window.rtbCommands.onKeyPress = [this](int& code) { interpreter.rtbCommands_KeyPress(code); };
    window.rtbCommands.onKeyDown = [this](int& code, int shift) {
      history.rtbCommands_KeyDown(code, shift);
    };
    window.rtbCommands.onSelChange = [this] { textFormat.rtbCommands_SelChange(); };
    window.chkBold.onClick = [this] { textFormat.chkBold_Click(); };
    window.chkItalics.onClick = [this] { textFormat.chkItalics_Click(); };
    window.chkUnderline.onClick = [this] { textFormat.chkUnderline_Click(); };
    window.lblColor.onMouseDown = [this](MouseButton b) { textFormat.lblColor_MouseDown(b); };
    window.mnuFormatFontBold.onClick = [this] { textFormat.mnuFormatFontBold_Click(); };
    window.mnuFormatFontItalics.onClick = [this] { textFormat.mnuFormatFontItalics_Click(); };
    window.mnuFormatFontUnderline.onClick = [this] { textFormat.mnuFormatFontUnderline_Click(); };
  }

  // Types a line and presses Enter.
  void Enter(std::u16string_view line) {
    window.rtbCommands.Type(line);
    window.rtbCommands.Type(u"\r");
  }

  // Somebody at port 2000, connected to this side's socket; what this side sends stands in
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
  ErrorReport errors{state, fake.dialogs, [this] { ResetConnection(state, fake.platform); },
                     [this] { window.window.Unload(); }};
  Settings settings{state, fake.files};
  DialogueLog log{state, fake.platform, errors, settings};
  StatusPanel statusPanel{fake.platform, errors};
  Dialogue dialogue{state, fake.platform, errors, settings, log};
  WireProtocol wire{state, fake.platform, errors, {dialogue, log, statusPanel}};
  ConnectionActions connection{
      state, fake.platform, errors, {settings, dialogue, log, statusPanel, wire}};
  CommandHistory history{state, fake.platform, errors};
  TextFormat textFormat{state, fake.platform, errors, settings, dialogue};
  CommandInterpreter interpreter{
      state, fake.platform, errors, {dialogue, history, textFormat, connection, wire}};
};

}  // namespace verlume::fake
