// Reads the answer of a web server, as it comes, up to a limit.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace verlume::qt {

struct HttpAnswer {
  int status = 0;  // 200
  std::string body;
};

class HttpReader {
 public:
  // No router needs more to describe itself.
  static constexpr std::size_t kLongestAnswer = std::size_t{64} << 10;  // bytes, head and body

  // False when nothing more has to be read: the answer is complete, or none that can be read.
  bool Add(std::string_view bytes);
  // The server has closed the connection: an answer that does not tell its length ends here.
  void End();
  // The answer, once it is complete.
  std::optional<HttpAnswer> Answer() const;

 private:
  enum class State { Head, Body, Whole, Broken };
  void ReadHead();
  void ReadBody();
  bool TakeChunk();

  State state_ = State::Head;
  std::string bytes_;          // all that came
  std::size_t bodyStart_ = 0;  // of the next chunk, once some are taken
  bool isChunked_ = false;
  std::optional<std::size_t> length_;
  HttpAnswer answer_;
};

// The value of a field of a head ("LOCATION: ..."), without the blanks around it; the name in any
// case. Nothing if there is none.
std::optional<std::string_view> HeadField(std::string_view head, std::string_view name);
// The number in the first line, "HTTP/1.1 200 OK"; 0 if that is none.
int HeadStatus(std::string_view head);

}  // namespace verlume::qt
