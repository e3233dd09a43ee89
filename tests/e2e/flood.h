// What the tests of floods share: the built program in conversation with a peer that sends whatever
// a test hands it, and a watch over how long its window takes to answer.
#pragma once

#include <gtest/gtest.h>

#include <QString>
#include <functional>
#include <string>
#include <string_view>

#include "answer_watch.h"
#include "copy.h"
#include "raw_peer.h"

namespace verlume::e2e {

inline constexpr double kMebibyte = 1 << 20;

// The window has to answer within 100 ms, in a build without sanitizers, which slow it down.
#if defined(__SANITIZE_ADDRESS__)
inline constexpr double kSlowness = 10;
inline constexpr int kLimit = 120'000;
inline constexpr std::size_t kShare = 32;  // divides the sizes that are sent
#else
inline constexpr double kSlowness = 1;
inline constexpr int kLimit = 240'000;
inline constexpr std::size_t kShare = 1;
#endif
inline constexpr double kLongestAnswer = 100 * kSlowness;

// The piece again and again, until that many bytes are there.
std::string Repeat(std::string_view piece, std::size_t size);

// A numbered line of rich text, and what is shown of it.
std::string Line(int number);
QString TextOfLine(int number);

class Flood : public testing::Test {
 protected:
  void SetUp() override;

  // Calls the peer, again after a conversation has ended.
  void Call();
  // Sends the bytes and watches the window until all of them are shown.
  void SendAndWatch(const std::string& bytes);
  // Watches the window while `action` runs, and until the program is at rest.
  void Watch(const std::function<void()>& action);

  // Whether the main thread does next to nothing for a while.
  bool IsAtRest() const;
  // Bytes of memory more than before the conversation.
  double Growth() const { return ProcessValue("VmRSS") - memoryBefore; }
  double ProcessValue(const QByteArray& name) const;
  // How long the main thread has run or been ready to run, in milliseconds.
  double BusyTime() const;
  bool IsShown(int line) const;

  Copy copy{"Ann", false};
  RawPeer peer;
  double memoryBefore = 0;
  int lastNumber = 0;  // of the last line sent, which marks the end
};

}  // namespace verlume::e2e
