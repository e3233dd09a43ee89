#include "people/peer_book_file.h"

#include "people/peer_book_text.h"
#include "platform/run_time_failure.h"
#include "shell/text_pair.h"

namespace verlume {
namespace {

constexpr TextPair kPeerBookTitle = {u"People", u"Άτομα"};
// %1 is the copy.
constexpr TextPair kPeerBookNotWhole = {
    u"Not all of the people you know could be understood. The file about them has been kept, as it "
    u"was, under the name:\r\n\r\n%1\r\n\r\n"
    u"Whoever is missing now will be met as if for the first time.",
    u"Δεν έγιναν κατανοητά όλα τα άτομα που γνωρίζετε. Το αρχείο τους φυλάχθηκε, όπως ήταν, με "
    u"το όνομα:\r\n\r\n%1\r\n\r\n"
    u"Όποιος λείπει τώρα θα θεωρηθεί ότι εμφανίζεται για πρώτη φορά."};
// %1 is the file.
constexpr TextPair kPeerBookUnreadable = {
    u"The file about the people you know could not be read:\r\n\r\n%1\r\n\r\n"
    u"It is left as it is. Until the program ends everybody is met as if for the first time, and "
    u"nobody is remembered.",
    u"Δεν ήταν δυνατόν να διαβαστεί το αρχείο με τα άτομα που γνωρίζετε:\r\n\r\n%1\r\n\r\n"
    u"Το αρχείο μένει όπως είναι. Μέχρι να τερματιστεί η εφαρμογή όλοι θα θεωρούνται ότι "
    u"εμφανίζονται για πρώτη φορά και κανείς δεν θα απομνημονεύεται."};
// %1 is the file, %2 the copy.
constexpr TextPair kPeerBookNotCopied = {
    u"Not all of the people you know could be understood. The file about them could not be kept "
    u"under another name either:\r\n\r\n%1\r\n%2\r\n\r\n"
    u"So it is left as it is, and whom you meet now will be forgotten when the program ends.",
    u"Δεν έγιναν κατανοητά όλα τα άτομα που γνωρίζετε. Δεν ήταν δυνατόν ούτε να φυλαχθεί το "
    u"αρχείο τους με άλλο όνομα:\r\n\r\n%1\r\n%2\r\n\r\n"
    u"Γι' αυτό μένει όπως είναι και όσους συναντήσετε τώρα θα ξεχαστούν όταν τερματιστεί η "
    u"εφαρμογή."};

constexpr std::u16string_view kSettingsExtension = u".ini";
constexpr std::u16string_view kPeersExtension = u".peers";

}  // namespace

std::u16string PeerBookFile::Path() const {
  std::u16string path = state_.IniFile;
  if (path.ends_with(kSettingsExtension)) path.resize(path.size() - kSettingsExtension.size());
  return path.append(kPeersExtension);
}

PeerBookTrouble PeerBookFile::Read(PeerBook& book, const std::function<void()>& logFailure) {
  if (!files_.IsFile(Path()) && !files_.IsFolder(Path())) return PeerBookTrouble::None;
  try {
    if (files_.SizeOf(Path()) > kLargestPeerBook) {
      throw RunTimeFailure(FailureNumber::PathFileAccessError);
    }
    const std::u16string text = files_.ReadText(Path());
    return Take(text, book);
  } catch (const RunTimeFailure&) {
    logFailure();
    writes_ = false;
    return PeerBookTrouble::Unreadable;
  }
}

PeerBookTrouble PeerBookFile::Take(const std::u16string& text, PeerBook& book) {
  PeerBookParse parse = ParsePeerBook(text);
  book = std::move(parse.book);
  if (parse.isWhole) return PeerBookTrouble::None;
  try {
    files_.ReplaceBytes(CopyPath(), files_.ReadBytes(Path()), Readers::OwnerOnly);
    files_.ReplaceText(Path(), PeerBookText(book), Readers::OwnerOnly);
    return PeerBookTrouble::NotWhole;
  } catch (const RunTimeFailure&) {
    writes_ = false;
    return PeerBookTrouble::CopyFailed;
  }
}

void PeerBookFile::Write(const PeerBook& book, const std::function<void()>& logFailure) {
  if (!writes_) return;
  try {
    files_.ReplaceText(Path(), PeerBookText(book), Readers::OwnerOnly);
  } catch (const RunTimeFailure&) {
    logFailure();
  }
}

Message PeerBookFile::TroubleNote(PeerBookTrouble trouble) const {
  const bool isGreek = state_.IsGreek;
  const auto note = [isGreek](const std::u16string& text) {
    return Note(text, kPeerBookTitle.In(isGreek));
  };
  switch (trouble) {
    case PeerBookTrouble::Unreadable:
      return note(kPeerBookUnreadable.Fill(isGreek, {Path()}));
    case PeerBookTrouble::CopyFailed:
      return note(kPeerBookNotCopied.Fill(isGreek, {Path(), CopyPath()}));
    default:
      return note(kPeerBookNotWhole.Fill(isGreek, {CopyPath()}));
  }
}

}  // namespace verlume
