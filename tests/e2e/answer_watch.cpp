#include "answer_watch.h"

#include <poll.h>
#include <sys/socket.h>
#include <xcb/xcb.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <memory>
#include <string>

namespace verlume::e2e {
namespace {

using Clock = std::chrono::steady_clock;

constexpr int kPause = 2;  // ms between an answer and the next question

template <class T>
using Owned = std::unique_ptr<T, decltype(&std::free)>;

double Milliseconds(Clock::duration duration) {
  return std::chrono::duration<double, std::milli>(duration).count();
}

// How long a thread has run, and how long it was ready but had to wait for a processor, in ms.
struct Times {
  double running = 0;
  double waiting = 0;
};
Times TimesOf(const std::string& thread) {
  std::ifstream file("/proc/" + thread + "/schedstat");
  Times times;
  file >> times.running >> times.waiting;
  return {times.running / 1e6, times.waiting / 1e6};
}

class Asker {
 public:
  explicit Asker(xcb_window_t window) : window_(window) {
    const std::uint32_t mask = XCB_EVENT_MASK_STRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
    xcb_change_window_attributes(connection_.get(), root_, XCB_CW_EVENT_MASK, &mask);
  }

  void Ask(std::uint32_t number) {
    xcb_client_message_event_t question{};
    question.response_type = XCB_CLIENT_MESSAGE;
    question.format = 32;
    question.window = window_;
    question.type = protocols_;
    question.data.data32[0] = ping_;
    question.data.data32[1] = number;
    question.data.data32[2] = window_;
    xcb_send_event(connection_.get(), false, window_, XCB_EVENT_MASK_NO_EVENT,
                   reinterpret_cast<const char*>(&question));
    xcb_flush(connection_.get());
  }

  pid_t Server() const {
    ucred server{};
    socklen_t size = sizeof server;
    ::getsockopt(xcb_get_file_descriptor(connection_.get()), SOL_SOCKET, SO_PEERCRED, &server,
                 &size);
    return server.pid;
  }

  // Waits a moment for the answer.
  bool IsAnswered(std::uint32_t number) {
    bool answered = false;
    while (
        const Owned<xcb_generic_event_t> event{xcb_poll_for_event(connection_.get()), &std::free}) {
      answered = answered || Answers(*event, number);
    }
    if (answered) return true;
    pollfd ready{xcb_get_file_descriptor(connection_.get()), POLLIN, 0};
    ::poll(&ready, 1, 50);
    return false;
  }

 private:
  bool Answers(const xcb_generic_event_t& event, std::uint32_t number) const {
    if ((event.response_type & 0x7F) != XCB_CLIENT_MESSAGE) return false;
    xcb_client_message_event_t message;
    std::memcpy(&message, &event, sizeof message);
    return message.type == protocols_ && message.data.data32[0] == ping_ &&
           message.data.data32[1] == number && message.data.data32[2] == window_;
  }

  xcb_atom_t Atom(const std::string& name) {
    const auto length = static_cast<std::uint16_t>(name.size());
    const auto cookie = xcb_intern_atom(connection_.get(), false, length, name.c_str());
    const Owned<xcb_intern_atom_reply_t> reply{
        xcb_intern_atom_reply(connection_.get(), cookie, nullptr), &std::free};
    return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
  }

  const xcb_window_t window_;
  std::unique_ptr<xcb_connection_t, decltype(&xcb_disconnect)> connection_{
      xcb_connect(nullptr, nullptr), &xcb_disconnect};
  const xcb_window_t root_ = xcb_setup_roots_iterator(xcb_get_setup(connection_.get())).data->root;
  const xcb_atom_t protocols_ = Atom("WM_PROTOCOLS");
  const xcb_atom_t ping_ = Atom("_NET_WM_PING");
};

}  // namespace

AnswerWatch::AnswerWatch(std::uint32_t window, pid_t program)
    : window_(window), program_(program), thread_([this] { Watch(); }) {}

AnswerWatch::~AnswerWatch() {
  Stop();
}

AnswerWatch::Answers AnswerWatch::Stop() {
  ends_ = true;
  if (thread_.joinable()) thread_.join();
  return answers_;
}

void AnswerWatch::Watch() {
  Asker asker(window_);
  const std::string program = std::to_string(program_);
  const std::string threads[] = {program + "/task/" + program, std::to_string(asker.Server()),
                                 "thread-self"};
  const auto waiting = [&] {
    double sum = 0;
    for (const std::string& thread : threads) sum += TimesOf(thread).waiting;
    return sum;
  };
  for (std::uint32_t number = 1; !ends_; ++number) {
    const double waitedBefore = waiting();
    const double ranBefore = TimesOf(threads[0]).running;
    const Clock::time_point before = Clock::now();
    asker.Ask(number);
    bool answered = false;
    while (!answered && !ends_) answered = asker.IsAnswered(number);
    const double time = Milliseconds(Clock::now() - before);
    const double own =
        std::max(time - (waiting() - waitedBefore), TimesOf(threads[0]).running - ranBefore);
    answers_.count += answered;
    answers_.worst = std::max(answers_.worst, time);
    answers_.worstOfItsOwn = std::max(answers_.worstOfItsOwn, own);
    std::this_thread::sleep_for(std::chrono::milliseconds(kPause));
  }
}

}  // namespace verlume::e2e
