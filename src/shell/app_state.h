// All program-wide values. Program creates them and passes them by reference; everything runs on
// one thread, so nothing locks them. A modal box lets events through, so whoever shows one reads
// the values again afterwards.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "platform/privacy.h"
#include "shell/called_hosts.h"
#include "shell/place_to_call.h"
#include "shell/text_pair.h"
#include "shell/text_style.h"
#include "shell/undelivered.h"

namespace verlume {

inline constexpr int kHistoryCapacity = 50;
// Whether the router may be asked to pass calls on.
enum class RouterChoice { NotYet, Yes, No };

inline constexpr std::size_t kNicknameLimit = 32;  // characters

struct AppState {
  // Paths.
  std::u16string IniFile;
  std::u16string HelpFileGreek;
  std::u16string HelpFileEnglish;

  // The window and its language.
  std::u16string Title;
  bool IsGreek = false;
  bool AlwaysOnTop = false;
  bool ExitConfirmed = false;  // true only after Yes to the exit question, or when none is needed

  // The connection. At most one of the first three is true; none is Idle.
  bool IsWaiting = false;
  bool IsCalling = false;
  bool IsConnected = false;
  bool ReservedState = false;  // cleared with the other three, never set
  std::int32_t LocalPort = 0;
  std::u16string LocalHostName;
  std::u16string LocalAddress;
  std::u16string RemoteHost;  // as the user called it
  std::int32_t RemotePort = 0;
  std::u16string RemoteAddress;   // of the connected peer
  std::u16string Nickname;        // 1 to kNicknameLimit characters
  std::u16string RemoteNickname;  // as it is shown (shell/nickname.h); "" until the peer sends it
  std::u16string ProtocolMarker;  // opens every protocol message (connection/wire_protocol.h)
  std::size_t LinesWaiting = 0;   // sent, but not yet acknowledged by the peer's machine
  std::size_t LinesUndelivered = 0;  // lines of an ended conversation that were never acknowledged
  bool UndeliveredBefore = false;  // LinesUndelivered is about the conversation before the last one
  std::size_t LinesSaid = 0;       // lines of the user, sent over this connection
  bool HasCalled = false;    // this side made the call of the last conversation, or of the current
  bool OffersAgain = false;  // to call or wait again (shell/again_bar.h)
  UndeliveredLines Undelivered;  // what they said, to be sent to the same peers later
  bool HidesResend = false;  // the user has closed the bar that offers that, in this conversation
  std::vector<CalledHost> CalledHosts;  // newest first
  FilledPair ConnectionNote;            // why the last call or wait has failed, and what to do next
  std::vector<std::u16string> TurnedAway;  // addresses whose calls are rejected without asking

  // Being called.
  RouterChoice AskRouter = RouterChoice::NotYet;
  bool AsksAboutRouter = false;  // a bar asks for that choice (reach/router_bar.h)
  PlaceToCall Place;             // to give to whoever is to call; of the last wait, none when Idle

  // Private conversations.
  PrivacyOffer Offer = PrivacyOffer::WhenPossible;
  OwnKey OwnKeyFound = OwnKey::Ready;         // when the last call or wait began
  std::optional<KeyFingerprint> ExpectedKey;  // of the last call: by invitation
  // A bar asks whether to go on with the peer (connection/peer_gate.h). Until then nothing of the
  // peer is shown, and lines stay in the command pane.
  bool PeerStops = false;

  // The line being executed.
  std::u16string CommandLine;   // its plain text
  std::u16string OutgoingText;  // its rich text, as sent and written into the dialogue pane

  // A record of the line that is being written into the dialogue pane; nothing is decided by it.
  bool ForeignText = false;    // it is the peer's
  bool RemoteMessage = false;  // it names its sender itself: no nickname tag

  // How many lines have come below what is in view of the dialogue.
  std::size_t LinesBelow = 0;

  // Stamps of dialogue lines.
  bool DateStamp = true;
  bool TimeStamp = true;

  // Whether a list beside the command pane suggests completions of a word that begins with "/".
  bool SuggestCommands = true;

  // Whether the spelling of what is typed is checked.
  bool CheckSpelling = true;
  // How the user is told of what happens while another program is in use.
  bool NotifyLines = true;   // notifications of lines and calls
  bool NotifyText = false;   // with the text of the line
  bool NotifySound = false;  // a sound
  bool NotifyCount = true;   // the number of unread lines on the icon

  // The command history: element 0 holds the number of lines as text, 1 is the oldest line.
  std::array<std::u16string, kHistoryCapacity + 1> History;
  std::int16_t HistoryUp = 1;     // Page Up shows the line before this one
  std::int16_t HistoryDown = -1;  // Page Down shows the line after this one

  // The dialogue log.
  std::u16string LogFolder;
  bool LogDialogue = false;     // the user's switch
  bool LogOpen = false;         // a conversation is in progress
  std::u16string LogFileStem;   // the peer's nickname at the first handshake, fit for a file name
  std::u16string LogFile;       // path of this conversation's log; "" until its first line
  std::u16string ClosedLog;     // log file of the last conversation that ended with lines waiting
  std::u16string DialogFilter;  // of the last load or save dialog

  // Macros.
  std::u16string MacrosFolder;
  std::u16string MacroToRun;     // rich text that the macro editor hands over
  std::int32_t MacroIndex = -1;  // of the macro shown or edited in the macro editor, -1 for none

  TextStyle Font;       // of what is typed in the command pane
  TextStyle MacroFont;  // of what is typed in the macro editor
};

}  // namespace verlume
