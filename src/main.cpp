// Verlume: typed conversation between two computers over one direct TCP connection.
#include <QApplication>
#include <cstdlib>

#include "platform_qt/copies/first_copy.h"
#include "platform_qt/copies/hand_over.h"
#include "platform_qt/os/console.h"
#include "platform_qt/platform.h"
#include "platform_qt/system/arguments.h"
#include "platform_qt/system/own_folder.h"
#include "shell/program/program.h"
#include "shell/start/command_line.h"
#include "shell/start/hand_over.h"
#include "stream/utf8_text.h"

namespace verlume {
namespace {

// Reads the arguments and makes the folder that they name; needs no display.
CommandLine ReadArguments(int argc, char* argv[]) {
  const bool isGreek = SpeaksGreek([](const char* name) { return std::getenv(name); });
  CommandLine line = ReadCommandLine(TextsOf(qt::OwnArguments(argc, argv)), isGreek);
  if (line.status || line.folder.empty()) return line;
  if (const auto folder = qt::OwnFolder(line.folder)) {
    line.folder = folder->toStdU16String();
  } else {
    line.status = kWrongUsage;
    line.text = FolderRefusal(line.folder, isGreek);
  }
  return line;
}

int Print(const CommandLine& line) {
  const bool isError = *line.status != 0;
  return qt::PrintText(stream::EncodeUtf8(line.text), isError) ? *line.status : EXIT_FAILURE;
}

// Does the task, or has the copy that runs already do it. Returns the exit status.
int Run(const CommandLine& line, const QByteArray& token) {
  const QString folder = QString::fromStdU16String(line.folder);
  const qt::MeetingPlace place = qt::MeetingPlaceOf(qt::SettingsFolderFor(folder));
  int status = 0;
  bool isLookingUp = false;
  {
    qt::FirstCopy copy(place);
    const std::string task = HandOverText(line.task);
    if (!task.empty() && copy.IsOtherFirst() && qt::HandOver(place, task, token)) return 0;
    qt::QtPlatform platform(folder);
    Program program(platform.View());
    copy.Serve({.understands = [](std::string_view text) { return HandedOver(text).has_value(); },
                .comeToFront = [&](const QByteArray& given) { platform.ComeToFront(given); },
                .isInFront = [&] { return platform.IsInFront(); },
                .isFree = [&] { return platform.IsFree(); },
                .perform = [&](std::string_view text) { program.Do(*HandedOver(text)); }});
    program.Start(line.task);
    status = platform.Run();
    isLookingUp = platform.IsLookingUp();
  }
  // The system may take another half a minute to look up a host name: an orderly end would wait for
  // it, although the answer is no longer needed.
  if (isLookingUp) std::_Exit(status);
  return status;
}

}  // namespace
}  // namespace verlume

int main(int argc, char* argv[]) {
  const verlume::CommandLine line = verlume::ReadArguments(argc, argv);
  if (line.status) return verlume::Print(line);
  verlume::qt::PrepareApplication();
  const QByteArray token = verlume::qt::ActivationToken();
  QApplication application(argc, argv);
  return verlume::Run(line, token);
}
