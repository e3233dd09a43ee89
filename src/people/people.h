// The people that this program knows: the book of keys, and its file.
#pragma once

#include <functional>

#include "people/day.h"
#include "people/peer_book.h"
#include "people/peer_book_file.h"
#include "platform/platform.h"
#include "shell/app_state.h"
#include "shell/error_report.h"

namespace verlume {

class People {
 public:
  People(const AppState& state, Platform& platform, ErrorReport& errors);

  // Reads the file, at start-up, when AppState knows where the settings lie. Tells the user if it
  // could not be used.
  void Start();

  const PeerBook& Book() const { return book_; }
  // Changes the book, writes its file, and raises onChange.
  void Change(const std::function<void(PeerBook&)>& change);

  Day Today() const { return DayOf(platform_.clock.Now()); }

  // Who is known, or how well, is another.
  std::function<void()> onChange;

 private:
  Platform& platform_;
  ErrorReport& errors_;
  PeerBookFile file_;
  PeerBook book_;
};

}  // namespace verlume
