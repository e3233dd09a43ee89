#include "flood.h"

#include <QElapsedTimer>
#include <QFile>
#include <future>
#include <iostream>

namespace verlume::e2e {

std::string Repeat(std::string_view piece, std::size_t size) {
  std::string text;
  text.reserve(size + piece.size());
  while (text.size() < size) text += piece;
  return text;
}

std::string Line(int number) {
  return R"({\rtf1\ansi\ansicpg1253\deff0{\fonttbl{\f0\fnil\fcharset161 Tahoma;}}{\colortbl ;)"
         R"(\red0\green0\blue255;}\viewkind4\uc1\pard\cf1\f0\fs17 <)" +
         std::to_string(number) + R"(> \'ea\'e1\'eb\'e7\'ec\'dd\'f1\'e1, hello there\par})";
}

QString TextOfLine(int number) {
  return QString(u"<%1> \u03BA\u03B1\u03BB\u03B7\u03BC\u03AD\u03C1\u03B1, hello there"_qs)
      .arg(number);
}

void Flood::SetUp() {
  ASSERT_TRUE(WaitUntil([&] {
    copy.Activate();
    return copy.IsActive();
  }));
  Call();
  memoryBefore = ProcessValue("VmRSS");
}

void Flood::Call() {
  const auto active = copy.Log("Eve").count("Active connection.");
  copy.TypeLine("/CALL 127.0.0.1 " + peer.Port());
  ASSERT_TRUE(peer.TakeCall("Eve"));
  ASSERT_TRUE(WaitUntil([&] { return copy.Log("Eve").count("Active connection.") > active; }));
}

void Flood::SendAndWatch(const std::string& bytes) {
  const int last = --lastNumber;
  Watch([&] {
    auto sent =
        std::async(std::launch::async, [&] { return peer.Send(bytes) && peer.Send(Line(last)); });
    EXPECT_TRUE(WaitUntil([&] { return IsShown(last); }, kLimit));
    EXPECT_TRUE(sent.get());
  });
}

void Flood::Watch(const std::function<void()>& action) {
  AnswerWatch watch(copy.Window().toUInt(), static_cast<pid_t>(copy.Process()));
  const double busyBefore = BusyTime();
  action();
  WaitUntil([&] { return IsAtRest(); }, kLimit);
  const AnswerWatch::Answers answers = watch.Stop();
  std::cout << "worst answer " << answers.worst << " ms, of its own " << answers.worstOfItsOwn
            << " ms, of " << answers.count << "; busy " << BusyTime() - busyBefore << " ms; memory "
            << Growth() / kMebibyte << " MiB more, " << ProcessValue("VmHWM") / kMebibyte
            << " MiB at most\n";
  EXPECT_GT(answers.count, 10);
  EXPECT_LT(answers.worstOfItsOwn, kLongestAnswer);
}

bool Flood::IsShown(int line) const {
  return copy.EndOfLog("Eve").contains('<' + QString::number(line) + '>');
}

bool Flood::IsAtRest() const {
  const double before = BusyTime();
  QElapsedTimer timer;
  timer.start();
  WaitUntil([&] { return timer.elapsed() > 300; });
  return BusyTime() - before < 60;
}

double Flood::ProcessValue(const QByteArray& name) const {
  QFile file(QString("/proc/%1/status").arg(copy.Process()));
  if (!file.open(QIODevice::ReadOnly)) return 0;
  for (const QByteArray& line : file.readAll().split('\n')) {
    if (line.startsWith(name)) return line.simplified().split(' ').at(1).toDouble() * 1024;
  }
  return 0;
}

double Flood::BusyTime() const {
  QFile file(QString("/proc/%1/task/%1/schedstat").arg(copy.Process()));
  if (!file.open(QIODevice::ReadOnly)) return 0;
  const QList<QByteArray> times = file.readAll().split(' ');
  return (times.at(0).toDouble() + times.at(1).toDouble()) / 1e6;
}

}  // namespace verlume::e2e
