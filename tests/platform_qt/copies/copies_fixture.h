// A first copy in a run-time folder of its own, with handlers that note what they are told.
#pragma once

#include <gtest/gtest.h>

#include <QLocalSocket>
#include <QTemporaryDir>
#include <string>
#include <thread>
#include <vector>

#include "platform_qt/copies/first_copy.h"
#include "platform_qt/copies/hand_over.h"
#include "platform_qt/world.h"

namespace verlume::qt {

class CopiesFixture : public testing::Test {
 protected:
  CopiesFixture() : before_(qgetenv("XDG_RUNTIME_DIR")) {
    qputenv("XDG_RUNTIME_DIR", runtime.path().toUtf8());
  }
  ~CopiesFixture() override {
    if (before_.isNull()) {
      qunsetenv("XDG_RUNTIME_DIR");
    } else {
      qputenv("XDG_RUNTIME_DIR", before_);
    }
  }

  MeetingPlace Place() const { return MeetingPlaceOf(settings.path()); }
  void Serve(FirstCopy& copy) {
    copy.Serve({.understands = [](std::string_view text) { return text.starts_with("task"); },
                .comeToFront = [this](const QByteArray& token) { tokens.push_back(token); },
                .isInFront = [this] { return isInFront; },
                .isFree =
                    [this] {
                      ++timesAsked;
                      return isFree;
                    },
                .perform = [this](std::string_view text) { tasks.emplace_back(text); }});
  }
  // As another process would, which waits for the answer.
  bool HandOverFromElsewhere(const std::string& task, const QByteArray& token = {}) {
    bool isTaken = false;
    bool isOver = false;
    std::thread other([&, place = Place()] {
      isTaken = HandOver(place, task, token);
      QMetaObject::invokeMethod(
          qApp, [&isOver] { isOver = true; }, Qt::QueuedConnection);
    });
    EXPECT_TRUE(WaitFor([&] { return isOver; }));
    other.join();
    return isTaken;
  }

  QTemporaryDir runtime;
  QTemporaryDir settings;
  bool isFree = true;
  int timesAsked = 0;  // whether it is free
  bool isInFront = true;
  std::vector<std::string> tasks;
  std::vector<QByteArray> tokens;

 private:
  QByteArray before_;
};

}  // namespace verlume::qt
