// What the bar says when a peer is not as it was. %1 is who has the other key: a name, or host and
// port.
#pragma once

#include "people/peer_verdict.h"
#include "shell/text_pair.h"

namespace verlume::peer_gate_texts {

inline constexpr TextPair kOtherKeyAtAddress = {
    u"%1 answered here before, with another key. It may be a new computer, or somebody between "
    u"you. Ask before you go on, but not over this connection.",
    u"Εδώ απαντούσε ως τώρα: %1, με άλλο κλειδί. Ίσως πρόκειται για νέο υπολογιστή, ίσως για "
    u"κάποιον ανάμεσά σας. Ρωτήστε πριν συνεχίσετε, αλλά όχι μέσα από αυτή τη σύνδεση."};
inline constexpr TextPair kOtherKeyForName = {
    u"The other side says it is %1, but its key is not the one you know. It may be a new computer, "
    u"or somebody else. Ask before you go on, but not over this connection.",
    u"Η άλλη πλευρά λέει πως είναι: %1, αλλά το κλειδί της δεν είναι αυτό που γνωρίζετε. Ίσως "
    u"πρόκειται για νέο υπολογιστή, ίσως για κάποιον άλλον. Ρωτήστε πριν συνεχίσετε, αλλά όχι μέσα "
    u"από αυτή τη σύνδεση."};
inline constexpr TextPair kClearAtAddress = {
    u"%1 has talked to you in private here; this connection is not private. It may be another "
    u"program, or somebody between you who wants to read along. Ask before you go on, but not over "
    u"this connection.",
    u"Εδώ μιλούσατε ιδιωτικά: %1. Αυτή η σύνδεση δεν είναι ιδιωτική. Ίσως πρόκειται για άλλο "
    u"πρόγραμμα, ίσως για κάποιον ανάμεσά σας που θέλει να διαβάζει. Ρωτήστε πριν συνεχίσετε, αλλά "
    u"όχι μέσα από αυτή τη σύνδεση."};
inline constexpr TextPair kClearForName = {
    u"The other side says it is %1, with whom you have talked in private; this connection is not "
    u"private. It may be another program, or somebody else. Ask before you go on, but not over "
    u"this connection.",
    u"Η άλλη πλευρά λέει πως είναι: %1, με όνομα που έχετε συναντήσει ιδιωτικά. Αυτή η σύνδεση δεν "
    u"είναι ιδιωτική. Ίσως πρόκειται για άλλο πρόγραμμα, ίσως για κάποιον άλλον. Ρωτήστε πριν "
    u"συνεχίσετε, αλλά όχι μέσα από αυτή τη σύνδεση."};

inline constexpr TextPair kGoOnWithKey = {u"Go on with this key", u"Συνέχεια με αυτό το κλειδί"};
inline constexpr TextPair kGoOnInClear = {u"Go on, not private", u"Συνέχεια, όχι ιδιωτικά"};

inline const TextPair& BarText(StopReason reason) {
  switch (reason) {
    case StopReason::OtherKeyAtAddress:
      return kOtherKeyAtAddress;
    case StopReason::OtherKeyForName:
      return kOtherKeyForName;
    case StopReason::ClearAtAddress:
      return kClearAtAddress;
    default:
      return kClearForName;
  }
}

inline const TextPair& GoOnText(StopReason reason) {
  const bool inClear = reason == StopReason::ClearAtAddress || reason == StopReason::ClearForName;
  return inClear ? kGoOnInClear : kGoOnWithKey;
}

}  // namespace verlume::peer_gate_texts
