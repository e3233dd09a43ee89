// Counts the texts that the program has taken in, of which one may be several arrivals or none.
// Standard C++ only.
#pragma once

#include <cstdint>
#include <deque>

namespace verlume::stream {

class TextCount {
 public:
  // So many arrivals may wait for the program: short ones take more memory than their characters.
  static constexpr std::uint64_t kMostWaiting = 64 << 10;

  // An arrival is handed on to the program.
  void AddArrival() { ++arrivals_; }
  // The text of the last arrivals is over. Without an arrival since the text before it is empty.
  void EndText();
  // The program has taken in so many arrivals, of all.
  void TakeIn(std::uint64_t arrivals);
  // All texts that are over count as taken in.
  void TakeInAll() { TakeIn(arrivals_); }

  // Of all since the beginning.
  std::uint64_t TextsTakenIn() const { return textsTakenIn_; }
  bool IsFull() const { return arrivals_ - arrivalsTakenIn_ >= kMostWaiting; }

 private:
  // Texts that are over when so many arrivals are taken in.
  struct Ends {
    std::uint64_t arrivals;
    std::uint64_t texts;
  };

  std::deque<Ends> ends_;
  std::uint64_t arrivals_ = 0;
  std::uint64_t arrivalsTakenIn_ = 0;
  std::uint64_t textsTakenIn_ = 0;
};

}  // namespace verlume::stream
