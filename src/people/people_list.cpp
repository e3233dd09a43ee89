#include "people/people_list.h"

#include <algorithm>

#include "people/fingerprint_text.h"
#include "shell/nickname.h"
#include "shell/private_texts.h"
#include "shell/scoped_flag.h"
#include "shell/text_pair.h"

namespace verlume {
namespace {

constexpr TextPair kForgetTitle = {u"Forget", u"Διαγραφή"};
// %1 a name, or the beginning of a key
constexpr TextPair kForgetQuestion = {
    u"Do you want to forget %1? The next time, the key will be one that you see for the first "
    u"time.",
    u"Θέλετε να διαγραφεί: %1; Την επόμενη φορά το κλειδί θα είναι σαν να το βλέπετε για πρώτη "
    u"φορά."};
constexpr TextPair kIsVerified = {u"Verified", u"Επαληθευμένο"};
constexpr TextPair kIsInvited = {u"By invitation", u"Με πρόσκληση"};

constexpr std::size_t kDigitsOfGroup = 8;

// In groups, so that the text can wrap and be compared.
std::u16string GroupedKey(const KeyFingerprint& key) {
  std::u16string text = HexText(key);
  for (std::size_t at = text.size() - kDigitsOfGroup; at > 0; at -= kDigitsOfGroup) {
    text.insert(at, u" ");
  }
  return text;
}

}  // namespace

void PeopleList::mnuCommPeople_Click() {
  errors_.Guard(Procedure::PeopleWindow, [this] {
    {
      const ScopedFlag shown(isShown_);
      FillTable();
      platform_.frmPeople.lstPeople.Select(keys_.empty() ? -1 : 0);
      ShowSelected();
      platform_.frmPeople.window.ShowModal();
    }
    KeepName();
  });
  platform_.frmMain.rtbCommands.SetFocus();
}

TableBox::Row PeopleList::RowOf(const KnownPeer& peer) const {
  const bool isGreek = state_.IsGreek;
  const std::u16string_view trust = peer.isVerified  ? kIsVerified.In(isGreek)
                                    : peer.isInvited ? kIsInvited.In(isGreek)
                                                     : std::u16string_view();
  TableBox::Row row(5);
  const auto set = [&row](PeopleColumn column, std::u16string_view text) {
    row[static_cast<std::size_t>(column)] = text;
  };
  set(PeopleColumn::Name, peer.givenName);
  set(PeopleColumn::CallsItself, peer.names.empty() ? std::u16string() : peer.names.front());
  set(PeopleColumn::Since, DayInWords(peer.first, isGreek));
  set(PeopleColumn::Last, DayInWords(peer.last, isGreek));
  set(PeopleColumn::Verified, trust);
  return row;
}

// Whom the user met last comes first.
void PeopleList::FillTable() {
  keys_.clear();
  std::vector<TableBox::Row> rows;
  const std::vector<KnownPeer>& peers = people_.Book().Peers();
  for (auto peer = peers.rbegin(); peer != peers.rend(); ++peer) {
    keys_.push_back(peer->key);
    rows.push_back(RowOf(*peer));
  }
  platform_.frmPeople.lstPeople.SetRows(rows);
  platform_.frmPeople.lblPeopleNone.SetCaption(keys_.empty() ? kNobodyYet.In(state_.IsGreek)
                                                             : std::u16string_view());
}

const KnownPeer* PeopleList::Selected() const {
  const auto row = static_cast<std::size_t>(platform_.frmPeople.lstPeople.SelectedIndex());
  return row < keys_.size() ? people_.Book().Find(keys_[row]) : nullptr;
}

void PeopleList::ShowSelected() {
  const ScopedFlag filling(isFilling_);
  const PeopleWindow& frmPeople = platform_.frmPeople;
  const KnownPeer* peer = Selected();
  frmPeople.fraPerson.SetVisible(peer != nullptr);
  frmPeople.txtPeopleName.SetText(peer ? peer->givenName : std::u16string());
  frmPeople.chkPeopleVerified.SetValue(peer && peer->isVerified ? 1 : 0);
  frmPeople.lblPeopleKey.SetCaption(peer ? GroupedKey(peer->key) : std::u16string());
  if (peer) selected_ = peer->key;
  isNameTyped_ = false;
}

void PeopleList::lstPeople_Click() {
  errors_.Guard(Procedure::PeopleWindow, [this] {
    KeepName();
    ShowSelected();
  });
}

void PeopleList::txtPeopleName_Change() {
  errors_.Guard(Procedure::PeopleWindow, [this] {
    const KnownPeer* peer = Selected();
    if (!peer) return;
    isNameTyped_ = true;
    KnownPeer named = *peer;
    named.givenName = ShowableNickname(platform_.frmPeople.txtPeopleName.Text());
    platform_.frmPeople.lstPeople.SetRow(platform_.frmPeople.lstPeople.SelectedIndex(),
                                         RowOf(named));
  });
}

void PeopleList::KeepName() {
  if (!isNameTyped_) return;
  isNameTyped_ = false;
  const std::u16string name = platform_.frmPeople.txtPeopleName.Text();
  people_.Change([&](PeerBook& book) { book.SetGivenName(selected_, name); });
}

void PeopleList::chkPeopleVerified_Click() {
  if (isFilling_) return;
  errors_.Guard(Procedure::PeopleWindow, [this] {
    KeepName();
    const KnownPeer* peer = Selected();
    if (!peer) return;
    const bool isVerified = platform_.frmPeople.chkPeopleVerified.Value() == 1;
    people_.Change([&, key = peer->key](PeerBook& book) { book.SetVerified(key, isVerified); });
  });
}

void PeopleList::cmdPeopleForget_Click() {
  errors_.Guard(Procedure::PeopleWindow, [this] {
    KeepName();
    const KnownPeer* peer = Selected();
    if (!peer) return;
    const KeyFingerprint key = peer->key;
    const std::u16string& name = NameOf(*peer);
    const Message question = Question(
        kForgetQuestion.Fill(state_.IsGreek,
                             {name.empty() ? HexText(key).substr(0, kDigitsOfGroup) : name}),
        kForgetTitle.In(state_.IsGreek), Answer::No);
    if (platform_.dialogs.ShowMessage(question) != Answer::Yes) return;
    people_.Change([&key](PeerBook& book) { book.Forget(key); });
  });
}

void PeopleList::cmdPeopleClose_Click() {
  platform_.frmPeople.window.Unload();
}

void PeopleList::Refresh() {
  if (!isShown_) return;
  const KnownPeer* peer = Selected();
  const std::u16string typed = platform_.frmPeople.txtPeopleName.Text();
  const bool wasTyped = isNameTyped_;
  const KeyFingerprint key = peer ? peer->key : KeyFingerprint();
  FillTable();
  if (peer) {
    const auto row = std::ranges::find(keys_, key) - keys_.begin();
    platform_.frmPeople.lstPeople.Select(static_cast<int>(row));
  }
  ShowSelected();
  if (!peer || !wasTyped) return;
  platform_.frmPeople.txtPeopleName.SetText(typed);
  txtPeopleName_Change();
}

}  // namespace verlume
