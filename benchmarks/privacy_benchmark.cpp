// What privacy costs: two sockets of this machine, in clear and in private.
#include <benchmark/benchmark.h>

#include <QCoreApplication>
#include <QTemporaryDir>
#include <optional>
#include <string>

#include "platform_qt/net/socket.h"
#include "richtext/code_pages.h"
#include "stream/tail.h"

namespace verlume::qt {
namespace {

class Side {
 public:
  explicit Side(PrivacyOffer offer)
      : socket(stream::ArrivalAssembler::kTimeout, folder_.filePath("Verlume.key").toStdString()) {
    socket.ConnectionPrivacy().SetOffer(offer);
    socket.ConnectionPrivacy().PrepareOwnKey();
    socket.onConnectionRequest = [this](std::int64_t id) { request = id; };
    socket.onDataArrival = [this](std::int32_t) {
      socket.GetData();
      ++texts;
    };
  }

 private:
  QTemporaryDir folder_;

 public:
  QtSocket socket;
  std::int64_t request = 0;
  std::size_t texts = 0;
};

template <class Condition>
void WaitUntil(Condition condition) {
  while (!condition()) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

class Call {
 public:
  explicit Call(PrivacyOffer offer) : callee(offer), caller(offer) {
    callee.socket.SetLocalPort(0);
    callee.socket.Listen();
    caller.socket.SetRemoteHost(u"127.0.0.1");
    caller.socket.SetRemotePort(callee.socket.LocalPort());
    caller.socket.Connect();
    WaitUntil(
        [this] { return callee.request > 0 && caller.socket.State() == SocketState::Connected; });
    callee.socket.Close();
  }
  void Accept() {
    callee.socket.Accept(callee.request);
    callee.socket.SendData(
        richtext::DecodeGreek(stream::WriteGreeting(stream::Greeting::Start, "Bob", false)),
        TextKind::Signal);
    WaitUntil([this] { return caller.texts == 1; });
  }

  Side callee;
  Side caller;
};

PrivacyOffer OfferOf(const benchmark::State& state) {
  return state.range(0) == 1 ? PrivacyOffer::Only : PrivacyOffer::Never;
}

// From the acceptance to the first text, which is the start of the conversation.
void BM_FirstText(benchmark::State& state) {
  for (auto _ : state) {
    state.PauseTiming();
    std::optional<Call> call(std::in_place, OfferOf(state));
    state.ResumeTiming();
    call->Accept();
    state.PauseTiming();
    call.reset();
    state.ResumeTiming();
  }
}
BENCHMARK(BM_FirstText)->ArgName("private")->Arg(0)->Arg(1)->UseRealTime()->Iterations(40);

// Texts of so many characters, one after the other.
void BM_Texts(benchmark::State& state) {
  constexpr std::size_t kTexts = 100;
  Call call(OfferOf(state));
  call.Accept();
  const std::u16string text(static_cast<std::size_t>(state.range(1)), u'x');
  for (auto _ : state) {
    const std::size_t wanted = call.caller.texts + kTexts;
    for (std::size_t i = 0; i < kTexts; ++i) call.callee.socket.SendData(text, TextKind::Line);
    WaitUntil([&] { return call.caller.texts >= wanted; });
  }
  state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(kTexts));
}
BENCHMARK(BM_Texts)
    ->ArgNames({"private", "characters"})
    ->Args({0, 200})
    ->Args({1, 200})
    ->Args({1, 64 << 10})
    ->UseRealTime()
    ->Iterations(5);

}  // namespace
}  // namespace verlume::qt
