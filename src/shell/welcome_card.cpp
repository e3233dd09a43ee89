#include "shell/welcome_card.h"

#include <string>

namespace verlume {
namespace {

constexpr TextPair kWhatThisIs = {
    u"Verlume lets two computers talk to each other directly: one waits for a call, the other "
    u"calls.",
    u"Με το Verlume δύο υπολογιστές συνομιλούν απευθείας: ο ένας περιμένει μια κλήση, ο άλλος "
    u"καλεί."};
// %1 LocalPort
constexpr TextPair kWaitingForFriend = {
    u"You are waiting for a call on port %1. Give your friend this address and port.",
    u"Περιμένετε κλήση στη θύρα %1. Δώστε στον φίλο σας αυτήν τη διεύθυνση και τη θύρα."};
// %1 LocalAddress
constexpr TextPair kAddress = {u"Your address: %1", u"Η διεύθυνσή σας: %1"};
// %1 and %2 the place to give to others
constexpr TextPair kAddressAndPort = {u"Your address: %1, port %2",
                                      u"Η διεύθυνσή σας: %1, θύρα %2"};

// A caller that has been accepted is a beginning connection, though the state is still Waiting.
bool IsListening(const AppState& state, const Platform& platform) {
  return state.IsWaiting && platform.sckControl.State() == SocketState::Listening;
}

bool IsWanted(const AppState& state, const Platform& platform) {
  if (platform.frmMain.rtbData.TextLength() > 0) return false;
  const bool isIdle = !state.IsWaiting && !state.IsCalling && !state.IsConnected;
  return isIdle || IsListening(state, platform);
}

// "host:port", with brackets around an IPv6 address.
std::u16string HostAndPort(const std::u16string& address, const std::u16string& port) {
  const bool hasColons = address.find(u':') != address.npos;
  return hasColons ? u"[" + address + u"]:" + port : address + u":" + port;
}

void ShowIdle(const AppState& state, const WelcomeCard& card) {
  const std::u16string& note = state.ConnectionNote.In(state.IsGreek);
  card.lblCard.SetCaption(note.empty() ? kWhatThisIs.In(state.IsGreek) : note);
  card.lblCardAddress.SetCaption(kAddress.Fill(state.IsGreek, {state.LocalAddress}));
  card.cmdCardCopy.SetTextToCopy(state.LocalAddress);
}

void ShowWait(const AppState& state, const WelcomeCard& card) {
  const std::u16string port = DecimalText(state.LocalPort);
  card.lblCard.SetCaption(kWaitingForFriend.Fill(state.IsGreek, {port}));
  const std::u16string given = DecimalText(state.Place.port);
  card.lblCardAddress.SetCaption(kAddressAndPort.Fill(state.IsGreek, {state.Place.host, given}));
  card.cmdCardCopy.SetTextToCopy(HostAndPort(state.Place.host, given));
}

}  // namespace

void ShowWelcomeCard(const AppState& state, const Platform& platform) {
  const WelcomeCard& card = platform.frmMain.welcomeCard;
  if (IsWanted(state, platform)) {
    (state.IsWaiting ? ShowWait : ShowIdle)(state, card);
    card.fraCard.SetVisible(true);
  } else if (card.fraCard.Visible()) {
    if (card.fraCard.HasFocus()) platform.frmMain.rtbCommands.SetFocus();
    card.fraCard.SetVisible(false);
  }
}

std::vector<FixedText> WelcomeCardTexts(const WelcomeCard& card) {
  const auto caption = [](auto& element) {
    return [&element](std::u16string_view text) { element.SetCaption(text); };
  };
  const auto toolTip = [](Control& element) {
    return [&element](std::u16string_view text) { element.SetToolTip(text); };
  };
  return {
      {[&panel = card.fraCard](std::u16string_view name) { panel.SetAccessibleName(name); },
       {u"First steps", u"Πρώτα βήματα"}},
      {caption(card.cmdCardWait), {u"Wait for a friend", u"Αναμονή για φίλο"}},
      {toolTip(card.cmdCardWait),
       {u"Wait until a friend calls this computer", u"Αναμονή μέχρι να σας καλέσει ένας φίλος"}},
      {caption(card.cmdCardCall), {u"Call a friend", u"Κλήση φίλου"}},
      {toolTip(card.cmdCardCall),
       {u"Call a friend's computer by its name or IP address",
        u"Κλήση του υπολογιστή ενός φίλου με το όνομα ή τη διεύθυνση IP του"}},
      {caption(card.cmdCardHelp), {u"Help", u"Βοήθεια"}},
      {toolTip(card.cmdCardHelp), {u"Open the help", u"Άνοιγμα της βοήθειας"}},
      {caption(card.cmdCardCopy), {u"Copy", u"Αντιγραφή"}},
      {toolTip(card.cmdCardCopy), {u"Copy the address", u"Αντιγραφή της διεύθυνσης"}},
  };
}

}  // namespace verlume
