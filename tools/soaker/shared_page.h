// Memory that both copies have mapped, through which they exchange their progress: each knows how
// many of its lines the other has shown, and limits what it sends accordingly.
#pragma once

#include <atomic>
#include <cstdint>

namespace verlume::soak {

struct SharedPage {
  struct Side {
    std::atomic<std::uint64_t> linesSent;
    std::atomic<std::uint64_t> peersLinesShown;
    std::atomic<std::uint64_t> peersNicknameShown;  // the number in it
    std::atomic<bool> isQuiet;                      // has seen that the conversation closes
  };
  Side sides[2];
  // No new line may be begun: the conversation is about to be closed, or the soak is over.
  std::atomic<bool> isClosing;
  std::atomic<bool> isOver;
};

}  // namespace verlume::soak
