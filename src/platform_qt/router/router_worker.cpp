#include "platform_qt/router/router_worker.h"

#include <algorithm>
#include <utility>

namespace verlume::qt {
namespace {

constexpr std::chrono::seconds kLongestAsking{15};
constexpr std::chrono::seconds kLongestGivingBack{2};

}  // namespace

RouterWorker::RouterWorker(std::unique_ptr<PortAsker> asker, const RouterTimes& times,
                           OnAnswer onAnswer)
    : asker_(std::move(asker)), times_(times), onAnswer_(std::move(onAnswer)) {}

RouterWorker::~RouterWorker() {
  if (!thread_.joinable()) return;
  BeginEnd();
  thread_.join();
}

void RouterWorker::BeginEnd() {
  RouterWish end;
  end.isEnd = true;
  Wish(end);
}

void RouterWorker::Wish(const RouterWish& wish) {
  const bool wantsAnswer = wish.port != 0 || wish.wantsAddress;
  if (!wake_.IsOpen()) {  // the system has no more to give
    RouterReport silence;
    silence.state = RouterState::Silent;
    if (wantsAnswer) onAnswer_(wish.number, silence);
    return;
  }
  {
    const std::lock_guard lock(mutex_);
    wish_ = wish;
    wake_.Ring();
  }
  if (wantsAnswer && !thread_.joinable()) thread_ = std::thread([this] { Run(); });
}

RouterWish RouterWorker::TakeWish() {
  while (!WaitForSocket(wake_.Number(), Readiness::Read, kNoSocket, kWithoutEnd).isReady) {
  }
  const std::lock_guard lock(mutex_);
  wake_.Clear();
  return wish_;
}

void RouterWorker::Run() {
  std::uint16_t port = 0;  // the last that was asked for
  while (true) {
    const RouterWish wish = TakeWish();
    // Not to be broken off: who gives a port back may ask for another at once.
    if (port != wish.port) asker_->GiveBack(WaitLimit(kLongestGivingBack));
    port = wish.port;
    if (wish.isEnd) return;
    if (wish.port != 0) KeepAsking(wish);
    if (wish.port == 0 && wish.wantsAddress) {
      const WaitLimit limit(kLongestAsking, wake_.Number());
      const RouterReport report = asker_->AskAddress(limit);
      if (!limit.IsInterrupted()) onAnswer_(wish.number, report);
    }
  }
}

// Until there is another wish.
void RouterWorker::KeepAsking(const RouterWish& wish) {
  while (true) {
    const WaitLimit limit(kLongestAsking, wake_.Number());
    const PortAnswer answer = asker_->Map(wish.port, times_.lease, limit);
    if (limit.IsInterrupted()) return;
    onAnswer_(wish.number, answer.report);
    const WaitLimit pause(TimeUntilNext(answer), wake_.Number());
    pause.AwaitEnd();
    if (pause.IsInterrupted()) return;
  }
}

std::chrono::milliseconds RouterWorker::TimeUntilNext(const PortAnswer& answer) const {
  if (answer.report.state != RouterState::Mapped) return times_.again;
  // However short a promise is: nobody is asked more often than that.
  const std::chrono::milliseconds shortest = times_.lease / 20;
  return std::max<std::chrono::milliseconds>(answer.validFor / 2, shortest);
}

}  // namespace verlume::qt
