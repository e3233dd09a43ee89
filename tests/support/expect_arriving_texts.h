// What tests expect of every text that could be mistaken for something else.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <string_view>

#include "support/arriving_texts.h"

namespace verlume {

// Gets a message, which is sent as it stands, and the text that it says.
using ExpectMessage = std::function<void(std::u16string_view message, std::u16string_view text)>;

// Has each text sent as rich text and, where that is possible, as it stands. Stops at the first
// failure; the trace then names the text.
inline void ExpectOfArrivingTexts(const ExpectMessage& expectShown) {
  ArrivingTexts texts;
  for (int number = 1; number <= ArrivingTexts::kCount && !testing::Test::HasFailure(); ++number) {
    const std::u16string text = texts.Next();
    SCOPED_TRACE("seed " + std::to_string(ArrivingTexts::kSeed) + ", text " +
                 std::to_string(number) + ": " + Printable(text));
    expectShown(SentAsRtf(text), text);
    if (CanBeSentPlain(text)) expectShown(text, OnTheWire(text));
  }
}

}  // namespace verlume
