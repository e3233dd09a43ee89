#include "commands/dialogue_links.h"

#include <string>

#include "shell/link_text.h"
#include "shell/text_pair.h"

namespace verlume {
namespace {

constexpr TextPair kTitle = {u"Open link", u"Άνοιγμα συνδέσμου"};
// %1 the address
constexpr TextPair kAsk = {u"Open this address in another program?\r\n\r\n%1",
                           u"Να ανοιχτεί αυτή η διεύθυνση σε άλλο πρόγραμμα;\r\n\r\n%1"};
// %1 the host
constexpr TextPair kLeadsTo = {u"\r\n\r\nIt leads to: %1", u"\r\n\r\nΟδηγεί στο: %1"};
constexpr TextPair kCannotBeOpened = {u"This address cannot be opened.",
                                      u"Αυτή η διεύθυνση δεν μπορεί να ανοιχτεί."};

}  // namespace

void DialogueLinks::rtbData_Link(std::u16string_view address) {
  errors_.Guard(Procedure::OpenLink, [&] {
    if (!UserAgrees(address) || platform_.links.Open(address)) return;
    platform_.dialogs.ShowMessage(
        Refusal(kCannotBeOpened.In(state_.IsGreek), kTitle.In(state_.IsGreek)));
  });
  platform_.frmMain.rtbCommands.SetFocus();
}

bool DialogueLinks::UserAgrees(std::u16string_view address) {
  const bool isGreek = state_.IsGreek;
  const LinkHost host = platform_.links.HostOf(address);
  std::u16string text = kAsk.Fill(isGreek, {ShowableAddress(address, host)});
  if (!host.ascii.empty()) text += kLeadsTo.Fill(isGreek, {ShowableHost(host)});
  return platform_.dialogs.ShowMessage(Question(text, kTitle.In(isGreek), Answer::No)) ==
         Answer::Yes;
}

}  // namespace verlume
