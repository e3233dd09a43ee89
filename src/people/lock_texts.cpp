#include "people/lock_texts.h"

#include "shell/text_pair.h"

namespace verlume {
namespace {

constexpr TextPair kBecoming = {u"Becoming private...", u"Γίνεται ιδιωτική..."};
constexpr TextPair kPrivateFirst = {u"Private, first time with this key",
                                    u"Ιδιωτική, πρώτη φορά με αυτό το κλειδί"};
// %1 a day
constexpr TextPair kPrivateKnown = {u"Private, known since %1", u"Ιδιωτική, γνωστό κλειδί από %1"};
constexpr TextPair kPrivateInvited = {u"Private, by invitation", u"Ιδιωτική, με πρόσκληση"};
constexpr TextPair kPrivateVerified = {u"Private, verified", u"Ιδιωτική, επαληθευμένη"};
// %1 a name, %2 what the peer calls itself
constexpr TextPair kVerifiedName = {u"Private, verified: %1", u"Ιδιωτική, επαληθευμένη: %1"};
constexpr TextPair kVerifiedOtherName = {u"Private, verified: %1 (calls itself %2)",
                                         u"Ιδιωτική, επαληθευμένη: %1 (ονομάζεται %2)"};
constexpr TextPair kPeerCannot = {u"Not private: the other program cannot",
                                  u"Όχι ιδιωτική: το άλλο πρόγραμμα δεν μπορεί"};
constexpr TextPair kNoOwnKey = {u"Not private: this program has no key",
                                u"Όχι ιδιωτική: αυτό το πρόγραμμα δεν έχει κλειδί"};
constexpr TextPair kTurnedOff = {u"Not private: you have turned private conversations off",
                                 u"Όχι ιδιωτική: έχετε απενεργοποιήσει τις ιδιωτικές συνομιλίες"};
// %1 a name
constexpr TextPair kAnotherKnown = {u". Another %1 is known",
                                    u". Είναι γνωστό και άλλο άτομο με το όνομα %1"};

// The article of a date: only the first of a month is an ordinal.
std::u16string SinceDay(const Day& day, bool isGreek) {
  const std::u16string words = DayInWords(day, isGreek);
  if (!isGreek) return words;
  return day.day == 1 ? u"την 1η" + words.substr(1) : u"τις " + words;
}

std::u16string VerifiedWords(const LockState& state, bool isGreek) {
  if (state.name.empty()) return std::u16string(kPrivateVerified.In(isGreek));
  const bool isSame = state.callsSelf.empty() || state.callsSelf == state.name;
  return (isSame ? kVerifiedName : kVerifiedOtherName).Fill(isGreek, {state.name, state.callsSelf});
}

std::u16string PrivateWords(const LockState& state, bool isGreek) {
  switch (state.acquaintance) {
    case Acquaintance::Known:
      return kPrivateKnown.Fill(isGreek, {SinceDay(state.since, isGreek)});
    case Acquaintance::Invited:
      return std::u16string(kPrivateInvited.In(isGreek));
    case Acquaintance::Verified:
      return VerifiedWords(state, isGreek);
    default:
      return std::u16string(kPrivateFirst.In(isGreek));
  }
}

const TextPair& ClearWords(ClearReason reason) {
  if (reason == ClearReason::NoOwnKey) return kNoOwnKey;
  return reason == ClearReason::TurnedOff ? kTurnedOff : kPeerCannot;
}

}  // namespace

std::u16string WordsOfLock(const LockState& state, bool isGreek) {
  if (state.privacy == Privacy::None) return {};
  if (state.privacy == Privacy::Becoming) return std::u16string(kBecoming.In(isGreek));
  std::u16string words = state.privacy == Privacy::Private
                             ? PrivateWords(state, isGreek)
                             : std::u16string(ClearWords(state.clear).In(isGreek));
  if (state.isAnotherKnown) words += kAnotherKnown.Fill(isGreek, {state.callsSelf});
  return words;
}

LockPicture PictureOfLock(const LockState& state) {
  switch (state.privacy) {
    case Privacy::Private:
      if (state.acquaintance == Acquaintance::Verified) return LockPicture::Verified;
      return state.isAnotherKnown ? LockPicture::Doubtful : LockPicture::Closed;
    case Privacy::Clear:
      return state.isAnotherKnown ? LockPicture::Warning : LockPicture::Open;
    default:
      return LockPicture::Becoming;
  }
}

}  // namespace verlume
