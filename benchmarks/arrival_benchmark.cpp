// What a line costs from the socket to the pane: the processor time of the whole process without
// that of the peer's thread. Measured with and without painting, since in a flood the window is
// painted only once for many lines; for comparison, what Qt's bare widget takes to show a line.
#include <arpa/inet.h>
#include <benchmark/benchmark.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <QApplication>
#include <atomic>
#include <ctime>
#include <semaphore>
#include <string>
#include <thread>

#include "benchmarks/bare_pane.h"
#include "benchmarks/chat.h"

namespace verlume {
namespace {

constexpr std::int64_t kLines = 2'000;  // in the pane at first, and then arriving

double Seconds(clockid_t clock) {
  timespec time{};
  clock_gettime(clock, &time);
  return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

// Sends a line whenever it may, on a thread of its own.
class Peer {
 public:
  explicit Peer(std::int32_t port) : thread_([this, port] { Run(port); }) {}
  ~Peer() {
    isDone_ = true;
    next_.release();
    thread_.join();
  }

  void SendLine() { next_.release(); }
  double ProcessorSeconds() const { return used_; }

 private:
  void Run(std::int32_t port) {
    const int socket = ::socket(AF_INET, SOCK_STREAM, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(static_cast<std::uint16_t>(port));
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    ::connect(socket, reinterpret_cast<const sockaddr*>(&address), sizeof address);
    const std::string line(kMessage.begin(), kMessage.end());
    for (next_.acquire(); !isDone_; next_.acquire()) {
      ::send(socket, line.data(), line.size(), MSG_NOSIGNAL);
      used_ = Seconds(CLOCK_THREAD_CPUTIME_ID);
    }
    ::close(socket);
  }

  std::counting_semaphore<> next_{0};
  std::atomic<bool> isDone_ = false;
  std::atomic<double> used_ = 0;
  std::thread thread_;
};

void BM_ArrivingLine(benchmark::State& state) {
  Chat& chat = ChatOf(kLines);
  chat.SetPainted(state.range(0) != 0);
  Peer peer(chat.Listen());
  const auto sendLine = [&] {
    const std::int64_t before = chat.Arrivals();
    peer.SendLine();
    while (chat.Arrivals() == before) QApplication::processEvents(QEventLoop::WaitForMoreEvents);
  };
  sendLine();
  for (auto _ : state) {
    const double peerBefore = peer.ProcessorSeconds();
    const double before = Seconds(CLOCK_PROCESS_CPUTIME_ID);
    for (std::int64_t line = 0; line < kLines; ++line) sendLine();
    const double used = Seconds(CLOCK_PROCESS_CPUTIME_ID) - before;
    state.SetIterationTime((used - (peer.ProcessorSeconds() - peerBefore)) / kLines);
  }
}
BENCHMARK(BM_ArrivingLine)
    ->ArgName("painted")
    ->Arg(0)
    ->Arg(1)
    ->Iterations(3)
    ->UseManualTime()
    ->Unit(benchmark::kMicrosecond);

void BM_BareLineShown(benchmark::State& state) {
  BarePane& pane = BarePaneOf(kLines);
  for (auto _ : state) {
    pane.WriteLine();
    QApplication::processEvents();
  }
}
BENCHMARK(BM_BareLineShown)->Iterations(2'000)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace verlume
