// What the rules in the dialogue pane say about the connection (shell/dialogue_rule.h).
#pragma once

#include "shell/text_pair.h"

namespace verlume::rule_texts {

inline constexpr TextPair kConnected = {u"Connected", u"Συνδεθήκατε"};
// By the user.
inline constexpr TextPair kDisconnected = {u"Disconnected", u"Αποσυνδεθήκατε"};
// By the peer, who has said so in private.
inline constexpr TextPair kEndedByPeer = {u"The other side has ended the conversation",
                                          u"Η άλλη πλευρά τερμάτισε τη συνομιλία"};
// By the peer, or by a failure.
inline constexpr TextPair kConnectionLost = {u"Connection lost", u"Η σύνδεση χάθηκε"};

}  // namespace verlume::rule_texts
