#include "people/peer_book_text.h"

#include <optional>
#include <utility>

#include "people/fingerprint_text.h"
#include "shell/trim.h"

namespace verlume {
namespace {

constexpr std::u16string_view kLineEnd = u"\r\n";
constexpr std::u16string_view kTrue = u"True";
constexpr std::u16string_view kFalse = u"False";

// A key that has one text.
struct BookText {
  std::u16string_view key;
  std::vector<std::u16string> KnownPeer::*texts;
};
constexpr BookText kBookTexts[] = {
    {u"Name", &KnownPeer::names},
    {u"Address", &KnownPeer::addresses},
    {u"Accepted", &KnownPeer::acceptedNames},
};
struct BookDay {
  std::u16string_view key;
  Day KnownPeer::*day;
};
constexpr BookDay kBookDays[] = {{u"First", &KnownPeer::first}, {u"Last", &KnownPeer::last}};
struct BookSwitch {
  std::u16string_view key;
  bool KnownPeer::*isSet;
};
constexpr BookSwitch kBookSwitches[] = {{u"Invited", &KnownPeer::isInvited},
                                        {u"Verified", &KnownPeer::isVerified}};
constexpr std::u16string_view kGiven = u"Given";

void AddLine(std::u16string& text, std::u16string_view key, std::u16string_view value) {
  text.append(key).append(u"=").append(value).append(kLineEnd);
}

// The quotes keep the blanks at both ends.
void AddQuoted(std::u16string& text, std::u16string_view key, std::u16string_view value) {
  text.append(key).append(u"=\"").append(value).append(u"\"").append(kLineEnd);
}

std::optional<std::u16string_view> Unquoted(std::u16string_view value) {
  if (value.size() < 2 || !value.starts_with(u'"') || !value.ends_with(u'"')) return std::nullopt;
  return value.substr(1, value.size() - 2);
}

// Takes the lines of one section after the other.
class PeerBookReader {
 public:
  void Take(std::u16string_view line) {
    line = Trim(line, u" \t\r\xFEFF");
    if (line.empty() || line.starts_with(u';')) return;
    if (line.starts_with(u'[')) return Begin(line);
    const std::size_t equals = line.find(u'=');
    const bool isTaken = peer_ && equals != line.npos &&
                         TakeValue(Trim(line.substr(0, equals)), Trim(line.substr(equals + 1)));
    if (!isTaken) parse_.isWhole = false;
  }

  PeerBookParse Finish() {
    EndSection();
    return std::move(parse_);
  }

 private:
  void Begin(std::u16string_view line) {
    EndSection();
    const bool isClosed = line.ends_with(u']');
    const auto key = FingerprintInHex(line.substr(1, line.size() - (isClosed ? 2 : 1)));
    if (!isClosed || !key) {
      parse_.isWhole = false;
      return;
    }
    peer_.emplace();
    peer_->key = *key;
  }

  void EndSection() {
    if (!peer_) return;
    const bool hasDays = peer_->first.year > 0 && peer_->last.year > 0;
    if (!hasDays || !parse_.book.Add(std::move(*peer_))) parse_.isWhole = false;
    peer_.reset();
  }

  bool TakeValue(std::u16string_view key, std::u16string_view value) {
    for (const auto& [name, texts] : kBookTexts) {
      if (key == name) return TakeText((*peer_).*texts, value);
    }
    for (const auto& [name, day] : kBookDays) {
      if (key == name) return TakeDay((*peer_).*day, value);
    }
    for (const auto& [name, isSet] : kBookSwitches) {
      if (key != name) continue;
      (*peer_).*isSet = value == kTrue;
      return value == kTrue || value == kFalse;
    }
    const auto text = Unquoted(value);
    if (key != kGiven || !text) return false;
    peer_->givenName = *text;
    return true;
  }

  static bool TakeText(std::vector<std::u16string>& texts, std::u16string_view value) {
    const auto text = Unquoted(value);
    if (!text || texts.size() >= kMostOfPeer) return false;
    texts.emplace_back(*text);
    return true;
  }

  static bool TakeDay(Day& day, std::u16string_view value) {
    const auto read = DayIn(value);
    if (read) day = *read;
    return read.has_value();
  }

  PeerBookParse parse_;
  std::optional<KnownPeer> peer_;
};

}  // namespace

std::u16string PeerBookText(const PeerBook& book) {
  std::u16string text;
  for (const KnownPeer& peer : book.Peers()) {
    text.append(u"[").append(HexText(peer.key)).append(u"]").append(kLineEnd);
    for (const auto& [key, day] : kBookDays) AddLine(text, key, DayText(peer.*day));
    for (const auto& [key, isSet] : kBookSwitches) AddLine(text, key, peer.*isSet ? kTrue : kFalse);
    if (!peer.givenName.empty()) AddQuoted(text, kGiven, peer.givenName);
    for (const auto& [key, texts] : kBookTexts) {
      for (const std::u16string& value : peer.*texts) AddQuoted(text, key, value);
    }
    text += kLineEnd;
  }
  return text;
}

PeerBookParse ParsePeerBook(std::u16string_view text) {
  PeerBookReader reader;
  while (!text.empty()) {
    const std::size_t end = text.find(u'\n');
    reader.Take(text.substr(0, end));
    text.remove_prefix(end == text.npos ? text.size() : end + 1);
  }
  return reader.Finish();
}

}  // namespace verlume
