// One question to a router's web server, and its answer.
#pragma once

#include <optional>
#include <string>

#include "platform_qt/router/http_answer.h"
#include "platform_qt/router/http_url.h"
#include "platform_qt/router/wait_limit.h"

namespace verlume::qt {

struct HttpQuestion {
  std::string method;  // "GET"
  HttpUrl url;
  std::string fields;  // further lines of the head, each with its line end
  std::string body;
};

struct HttpExchange {
  bool hasAnswered = false;          // it has said something
  std::optional<HttpAnswer> answer;  // nothing if that was none, too long or too slow
};

// Asks, and reads until the answer is complete or the limit is over. Nothing is redirected, and no
// name is looked up.
HttpExchange AskHttp(const HttpQuestion& question, const WaitLimit& limit);

}  // namespace verlume::qt
