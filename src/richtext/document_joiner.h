// Joins documents into one, in linear time however many they are.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <utility>

#include "richtext/document.h"

namespace verlume::richtext {

class DocumentJoiner {
 public:
  // Appends the text behind what is there, in its own look. When there are limits::kMaxFonts fonts,
  // text in further ones gets the last of them.
  void Add(Document document);
  Document Take() { return std::move(joined_); }

 private:
  void Begin(Document document);
  std::uint16_t IndexOf(const Font& font);

  Document joined_;
  std::map<std::pair<std::u16string, int>, std::uint16_t> fonts_;  // by name and character set
};

}  // namespace verlume::richtext
