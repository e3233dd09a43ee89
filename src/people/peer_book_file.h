// The file of the book of keys: "Verlume.peers", beside the settings.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "people/peer_book.h"
#include "platform/dialogs.h"
#include "platform/file_system.h"
#include "shell/app_state.h"

namespace verlume {

// A file larger than this, in bytes, was not made by this program and is not read.
inline constexpr std::uint64_t kLargestPeerBook = 16 << 20;

enum class PeerBookTrouble {
  None,        // the file is whole, or missing
  NotWhole,    // some of it was not understood, and is not in the book; the file was copied
  Unreadable,  // the file cannot be read; it stays as it is, and nothing is written
  CopyFailed,  // some of it was not understood, and it was not copied; nothing is written
};

class PeerBookFile {
 public:
  PeerBookFile(const AppState& state, FileSystem& files) : state_(state), files_(files) {}

  // Fills the book from the file, at start-up. Never throws: it calls `logFailure` while it handles
  // the exception that made the file unreadable or the copy fail.
  PeerBookTrouble Read(PeerBook& book, const std::function<void()>& logFailure);
  // Replaces the file in one step; readable by its owner alone. Does nothing while the file on the
  // disk must stay as it is. Never throws, as Read.
  void Write(const PeerBook& book, const std::function<void()>& logFailure);

  // The message that tells the user. Not for None.
  Message TroubleNote(PeerBookTrouble trouble) const;

 private:
  std::u16string Path() const;
  // The path of the copy: ".bad" appended.
  std::u16string CopyPath() const { return Path() + u".bad"; }
  PeerBookTrouble Take(const std::u16string& text, PeerBook& book);

  const AppState& state_;
  FileSystem& files_;
  bool writes_ = true;
};

}  // namespace verlume
