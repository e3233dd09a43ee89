// The book of keys as the text of its file: a section for each key.
//
//   [<fingerprint in 64 digits of base 16>]
//   First=2026-11-03
//   Last=2026-11-22
//   Invited=True
//   Verified=True
//   Given="Carol"
//   Name="Bob"            ; up to 8 of each of these, newest first
//   Address="bob.example 4000"
//   Accepted="Bob"
#pragma once

#include <string>
#include <string_view>

#include "people/peer_book.h"

namespace verlume {

std::u16string PeerBookText(const PeerBook& book);

struct PeerBookParse {
  PeerBook book;
  // Whether everything in the text was understood; else what was not is not in the book.
  bool isWhole = true;
};

// Any text is accepted, in time linear in it.
PeerBookParse ParsePeerBook(std::u16string_view text);

}  // namespace verlume
