// What a peer's nickname can do to the files in the log folder, on a real disk.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "platform_qt/system/program_on_disk.h"
#include "support/program_copy.h"

namespace verlume::qt {
namespace {

class LogsOnDiskTest : public testing::Test {
 protected:
  // The peer, under this nickname, is called and answers.
  void ConnectTo(const std::u16string& nickname) {
    peer.Enter(u"/NICK " + nickname);
    peer.Enter(u"/WAIT 4000");
    ann.Enter(u"/CALL bob 4000");
    peer.platform.dialogs.answers = {Answer::Yes};
    network.RunUntilIdle();
    ASSERT_TRUE(ann.program.State().IsConnected);
  }
  void Write(const QString& name, const QByteArray& bytes) const {
    QFile file(folder.filePath(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_EQ(file.write(bytes), bytes.size());
  }
  QStringList Logs() const { return QDir(folder.filePath("logs")).entryList(QDir::Files); }

  QTemporaryDir folder;
  fake::FakeNetwork network;
  fake::ProgramCopy peer{network, u"Bob"};
  ProgramOnDisk ann{network, folder.path()};
};

TEST_F(LogsOnDiskTest, ANicknameDoesNotReachAFileOfTheUsers) {
  Write("logs/todo.txt", "buy milk\n");
  ASSERT_NO_FATAL_FAILURE(ConnectTo(u"todo"));
  peer.Enter(u"buy nothing");
  network.RunUntilIdle();
  EXPECT_EQ(ann.Content(u"logs/todo.txt"), "buy milk\n");
  EXPECT_NE(ann.Content(u"logs/todo (2).txt").find("<todo>buy nothing\r\n"), std::string::npos);
  EXPECT_EQ(Logs(), (QStringList{"todo (2).txt", "todo.txt"}));
}

TEST_F(LogsOnDiskTest, TheNextConversationGoesOnInTheSameLog) {
  Write("logs/todo.txt", "buy milk\n");
  for (int conversation = 0; conversation < 2; ++conversation) {
    ASSERT_NO_FATAL_FAILURE(ConnectTo(u"todo"));
    peer.Enter(u"/CLOSE");
    network.RunUntilIdle();
  }
  const QString log = QString::fromStdString(ann.Content(u"logs/todo (2).txt"));
  EXPECT_EQ(log.count("Disconnected."), 2);
  EXPECT_EQ(Logs(), (QStringList{"todo (2).txt", "todo.txt"}));
}

TEST_F(LogsOnDiskTest, LogIsItsOwnersAlone) {
  ASSERT_NO_FATAL_FAILURE(ConnectTo(u"Bob"));
  struct stat found;
  ASSERT_EQ(::stat(folder.filePath("logs/Bob.txt").toUtf8().constData(), &found), 0);
  EXPECT_EQ(found.st_mode & 07777, mode_t{0600});
}

}  // namespace
}  // namespace verlume::qt
