#include "shell/who_is_who.h"

#include "richtext/characters.h"
#include "shell/language_texts.h"
#include "shell/look_alikes.h"
#include "shell/nickname.h"
#include "shell/text_pair.h"

namespace verlume {
namespace {

struct AuthorText {
  Author author;
  TextPair words;
};

constexpr AuthorText kAuthorTexts[] = {
    {Author::User, {u"You wrote this.", u"Το γράψατε εσείς."}},
    {Author::UserNotSent,
     {u"You wrote this. It was not sent: there was no connection.",
      u"Το γράψατε εσείς. Δεν στάλθηκε: δεν υπήρχε σύνδεση."}},
    {Author::UserNotDelivered,
     {u"You wrote this. It was not delivered.", u"Το γράψατε εσείς. Δεν παραδόθηκε."}},
    {Author::Peer, {u"The other side wrote this.", u"Το έγραψε η άλλη πλευρά."}},
    {Author::PeerReadingAlike,
     {u"The other side wrote this. Its nickname reads like yours.",
      u"Το έγραψε η άλλη πλευρά. Το ψευδώνυμό της διαβάζεται όπως το δικό σας."}},
    {Author::PeerWithBrackets,
     {u"The other side wrote this. Its nickname holds angle brackets.",
      u"Το έγραψε η άλλη πλευρά. Το ψευδώνυμό της περιέχει γωνιακές αγκύλες."}},
    {Author::File, {u"This was loaded from a file.", u"Φορτώθηκε από αρχείο."}},
};

constexpr TextPair kReadsAlike = {u"%1. It reads like yours.", u"%1. Διαβάζεται όπως το δικό σας."};
constexpr TextPair kHoldsBrackets = {u"%1. It holds angle brackets.",
                                     u"%1. Περιέχει γωνιακές αγκύλες."};

// %1 the user's nickname, %2 the peer's
constexpr TextPair kAlike = {
    u"The two nicknames read alike. Yours: %1. The other side's: %2.",
    u"Τα δύο ψευδώνυμα διαβάζονται το ίδιο. Το δικό σας: %1. Της άλλης πλευράς: %2."};
// %1 the nickname of both
constexpr TextPair kSame = {
    u"Both sides have the nickname %1. This log does not tell their lines apart.",
    u"Και οι δύο πλευρές έχουν το ψευδώνυμο %1. Αυτή η καταγραφή δεν ξεχωρίζει τις γραμμές τους."};

Author AuthorNamed(std::u16string_view peer, std::u16string_view user) {
  if (ReadAlike(peer, user)) return Author::PeerReadingAlike;
  return peer.find_first_of(u"<>") == peer.npos ? Author::Peer : Author::PeerWithBrackets;
}

std::u16string WithOwnLettersEscaped(std::u16string_view nickname, std::u16string_view other) {
  std::u16string text;
  for (const char16_t c : nickname) {
    const bool isShared =
        richtext::IsAscii(c) || richtext::IsSurrogate(c) || other.find(c) != other.npos;
    text += isShared ? std::u16string(1, c) : EscapeOf(c);
  }
  return text;
}

}  // namespace

Author PeerAsAuthor(const AppState& state) {
  return AuthorNamed(state.RemoteNickname, ShowableNickname(state.Nickname));
}

void SetAuthorWords(RichTextBox& rtbData, bool isGreek) {
  for (const auto& [author, words] : kAuthorTexts)
    rtbData.SetAuthorWords(author, words.In(isGreek));
}

void ExplainRemoteNickname(const AppState& state, const MainWindow& frmMain) {
  Label& label = frmMain.lblRemoteNickname;
  const std::u16string_view name = kRemoteNicknameToolTip.In(state.IsGreek);
  switch (AuthorNamed(label.Caption(), ShowableNickname(state.Nickname))) {
    case Author::PeerReadingAlike:
      return label.SetToolTip(kReadsAlike.Fill(state.IsGreek, {name}));
    case Author::PeerWithBrackets:
      return label.SetToolTip(kHoldsBrackets.Fill(state.IsGreek, {name}));
    default:
      return label.SetToolTip(name);
  }
}

std::u16string WhoIsWho(const AppState& state) {
  if (PeerAsAuthor(state) != Author::PeerReadingAlike) return {};
  const std::u16string user = ShowableNickname(state.Nickname);
  const std::u16string& peer = state.RemoteNickname;
  if (user == peer) return kSame.Fill(state.IsGreek, {user});
  return kAlike.Fill(state.IsGreek,
                     {WithOwnLettersEscaped(user, peer), WithOwnLettersEscaped(peer, user)});
}

}  // namespace verlume
