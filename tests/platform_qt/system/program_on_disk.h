// A whole program with files on a real disk; its windows are in memory, if the test has no others.
#pragma once

#include <QDir>
#include <QFile>
#include <QString>
#include <string>

#include "platform_fake/fake_attention.h"
#include "platform_fake/fake_platform.h"
#include "platform_qt/convert/text.h"
#include "platform_qt/system/file_system.h"
#include "shell/program/program.h"

namespace verlume::qt {

// A real disk behind the file system that the in-memory windows use.
class RealDisk : public fake::FakeFileSystem {
 public:
  bool IsFolder(std::u16string_view path) const noexcept override { return real_.IsFolder(path); }
  bool IsFile(std::u16string_view path) const noexcept override { return real_.IsFile(path); }
  std::vector<std::u16string> ListFiles(std::u16string_view folder,
                                        std::u16string_view extension) const override {
    return real_.ListFiles(folder, extension);
  }
  std::uint64_t SizeOf(std::u16string_view path) const override { return real_.SizeOf(path); }
  std::u16string ReadText(std::u16string_view path) const override { return real_.ReadText(path); }
  std::string ReadBytes(std::u16string_view path) const override { return real_.ReadBytes(path); }
  std::string ReadStart(std::u16string_view path, std::size_t limit) const override {
    return real_.ReadStart(path, limit);
  }
  using FileSystem::ReplaceBytes;
  using FileSystem::ReplaceText;
  void ReplaceText(std::u16string_view path, std::u16string_view text, Readers readers) override {
    real_.ReplaceText(path, text, readers);
  }
  void ReplaceBytes(std::u16string_view path, std::string_view bytes, Readers readers) override {
    real_.ReplaceBytes(path, bytes, readers);
  }
  void AppendText(std::u16string_view path, std::u16string_view text) override {
    real_.AppendText(path, text);
  }
  void Delete(std::u16string_view path) override { real_.Delete(path); }

 private:
  QtFileSystem real_;
};

struct ApplicationIn : fake::FakeApplication {
  explicit ApplicationIn(std::u16string path) : folder(std::move(path)) {}
  std::u16string ProgramFolder() const override { return folder; }
  std::u16string SettingsFolder() const override { return folder; }
  std::u16string HelpFolder() const override { return folder; }

  std::u16string folder;
};

// A program in `folder`, with the settings file that is there, and with its logs and macros in the
// folders "logs" and "macros" below. Logging is on, and lines have no stamps.
template <class Window = fake::FakeMainWindow>
class BasicProgramOnDisk {
 public:
  BasicProgramOnDisk(fake::FakeNetwork& network, const QString& folder)
      : folder_(folder), socket(network), application(FromQt(folder)), program(platform) {
    for (const char* name : {"logs", "macros"}) QDir(folder).mkpath(name);
    const std::u16string settings = Path(u"Verlume.ini");
    if (!disk.IsFile(settings)) disk.ReplaceText(settings, FirstSettings());
    program.Start();
    window.freeSizer1.onPostLayout();
  }

  std::u16string Path(std::u16string_view name) const {
    return FromQt(folder_) + u"/" + std::u16string(name);
  }
  // The content of a file; "none" if there is no such file.
  std::string Content(std::u16string_view name) const {
    QFile file(ToQt(Path(name)));
    return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : "none";
  }
  void Enter(std::u16string_view line) {
    window.rtbCommands.SetText(line);
    window.rtbCommands.Type(u"\r");
  }
  void SaveDialogueAs(std::u16string_view name) {
    dialogs.answers.push_back(Answer::No);  // plain text
    FileChoice choice;
    choice.fileName = Path(name);
    commonDialog.files.push_back(choice);
    window.mnuFileLogSaveAs.Click();
  }

 private:
  std::u16string FirstSettings() const {
    return u"[General]\r\nDateStamp=False\r\nTimeStamp=False\r\nNickname=Ann\r\nMacrosfolder=" +
           Path(u"macros/") + u"\r\n[Logging]\r\nLogdialogue=True\r\nLogfolder=" + Path(u"logs/") +
           u"\r\n";
  }

  QString folder_;

 public:
  RealDisk disk;
  Window window{disk};
  fake::FakeAboutWindow about;
  fake::FakeMacroWindow macros{disk};
  fake::FakePeopleWindow people;
  fake::FakeVerifyWindow verify;
  fake::FakeReachWindow reach;
  fake::FakeSocket socket;
  fake::FakeRouter router;
  fake::FakeAddresses addresses;
  fake::FakeDialogs dialogs;
  fake::FakeCommonDialog commonDialog;
  fake::FakeClock clock;
  fake::FakeLocale locale;
  ApplicationIn application;
  fake::FakeHelpViewer help;
  fake::FakeSystemTools tools;
  fake::FakeClipboard clipboard;
  fake::FakeLinkOpener links;
  fake::FakeAttention attention;
  Platform platform = {window.frmMain,
                       about.frmAbout,
                       macros.frmMacros,
                       people.frmPeople,
                       verify.frmVerify,
                       reach.frmReach,
                       socket,
                       socket.privacy,
                       router,
                       addresses,
                       dialogs,
                       commonDialog,
                       disk,
                       clock,
                       locale,
                       application,
                       help,
                       tools,
                       clipboard,
                       links,
                       attention};
  Program program;
};

using ProgramOnDisk = BasicProgramOnDisk<>;

}  // namespace verlume::qt
