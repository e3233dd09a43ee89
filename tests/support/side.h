// One user's program without its event loop: the objects up to the connection, on a platform in
// memory. Sides that share a network can call each other.
#pragma once

#include <string>
#include <string_view>
#include <type_traits>

#include "commands/dialogue/dialogue.h"
#include "connection/connection_actions.h"
#include "connection/connection_state.h"
#include "connection/socket_events.h"
#include "connection/wire_protocol.h"
#include "platform_fake/fake_platform.h"
#include "records/dialogue_log.h"
#include "shell/settings.h"
#include "shell/status_panel.h"

namespace verlume::fake {

struct Side {
  Side(FakeNetwork& network, std::u16string_view nickname, std::u16string_view address);
  ~Side();

  // Typed commands, as the interpreter passes them on.
  void Call(std::u16string_view rest) { Command(u"/CALL", rest, &ConnectionActions::CallRemote); }
  void Wait(std::u16string_view rest) { Command(u"/WAIT", rest, &ConnectionActions::WaitForCall); }
  void Nick(std::u16string_view rest) { Command(u"/NICK", rest, &ConnectionActions::SetNickname); }

  ConnectionState State() const { return StateOf(state); }
  std::u16string Status() const { return fake.window.lblStatus.caption; }
  std::u16string DialoguePane() const { return fake.window.rtbData.Text(); }
  // The status lamp's colour; -1 if its fill and border differ.
  Color Lamp() const {
    const FakeLamp& lamp = fake.window.shpStatus;
    return lamp.fill == lamp.border ? lamp.fill : -1;
  }
  // Turns logging on; LogOf reads the log of a peer.
  void RecordDialogues() {
    fake.files.MakeFolder(u"/logs");
    state.LogFolder = u"/logs/";
    state.LogDialogue = true;
  }
  std::u16string LogOf(std::u16string_view stem) const {
    const std::u16string path = u"/logs/" + std::u16string(stem) + u".txt";
    return fake.files.IsFile(path) ? fake.files.ReadText(path) : u"";
  }

  FakePlatform fake;
  AppState state;
  ErrorReport errors{state, fake.platform, [this] { ResetConnection(state, fake.platform); },
                     [this] { fake.window.window.Unload(); }};
  Settings settings{state, fake.files};
  DialogueLog log{state, fake.platform, errors, settings};
  Dialogue dialogue{state, fake.platform, errors, settings, log};
  StatusPanel statusPanel{fake.platform, errors};
  WireProtocol wire{
      state,
      fake.platform,
      errors,
      {.dialogue = dialogue, .log = log, .statusPanel = statusPanel, .onConversation = [this] {
         RememberAnswer(state, fake.platform, settings);
       }}};
  PortKeeper port{state, fake.platform, errors, settings};
  ConnectionActions actions{state,
                            fake.platform,
                            errors,
                            {.settings = settings,
                             .dialogue = dialogue,
                             .log = log,
                             .statusPanel = statusPanel,
                             .wire = wire,
                             .port = port}};
  SocketEvents events{state, fake.platform, errors, wire, log};

 private:
  void Command(std::u16string_view word, std::u16string_view rest,
               void (ConnectionActions::*action)(std::u16string_view)) {
    state.CommandLine = word;
    if (!rest.empty()) state.CommandLine += u' ';
    state.CommandLine += rest;
    (actions.*action)(state.CommandLine);
  }
};

// Runs an action with a command line, which only some actions read.
using Action = void (*)(ConnectionActions& actions, std::u16string_view commandLine);
template <auto action>
void Run(ConnectionActions& actions, std::u16string_view commandLine) {
  if constexpr (std::is_invocable_v<decltype(action), ConnectionActions&>) {
    (actions.*action)();
  } else {
    (actions.*action)(commandLine);
  }
}

// Alice calls, Bob waits.
struct TwoSides {
  TwoSides();
  ~TwoSides();

  void Connect() {
    bob.Wait(u"4000");
    bob.fake.dialogs.answers.push_back(Answer::Yes);
    alice.Call(u"bob 4000");
    network.RunUntilIdle();
  }

  FakeNetwork network;
  Side alice;
  Side bob;
};

}  // namespace verlume::fake
