// Joins the parts of texts that come in private. Standard C++ only.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "stream/arrival_assembler.h"

namespace verlume::stream {

class TextJoiner {
 public:
  // Adds a part of a text, or its end.
  void Add(std::string_view part, bool isEnd);

  // What can be handed on: a text that is whole; of one of which 4 MiB have come, a piece (a
  // document's pieces are documents). Nothing when all is taken, or more has to come.
  std::optional<std::u16string> Take();

 private:
  std::optional<std::string> TakeBytes();

  std::string text_;
  bool isWhole_ = false;
  // Of a text that is handed on in pieces.
  std::optional<ArrivalAssembler> pieces_;
};

}  // namespace verlume::stream
