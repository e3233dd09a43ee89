#include "platform_qt/os/firewalls_posix.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace verlume::qt {
namespace {

// A machine's files, in a folder.
class FirewallsTest : public testing::Test {
 protected:
  void Write(const QString& path, const QByteArray& content) {
    const QString whole = folder_.path() + path;
    QDir().mkpath(QFileInfo(whole).path());
    QFile file(whole);
    ASSERT_TRUE(file.open(QFile::WriteOnly));
    file.write(content);
  }
  std::vector<Firewall> Read() const { return ReadFirewalls(folder_.path().toStdString()); }
  // "ufw on, firewalld off"
  std::string Summary() const {
    std::string summary;
    for (const Firewall& each : Read()) {
      if (!summary.empty()) summary += ", ";
      summary += std::string(each.name.begin(), each.name.end()) + (each.isOn ? " on" : " off");
    }
    return summary;
  }

  QTemporaryDir folder_;
};

TEST_F(FirewallsTest, AMachineMayHaveNone) {
  EXPECT_EQ(Summary(), "");
}

TEST_F(FirewallsTest, UfwIsReadFromItsConfiguration) {
  Write("/etc/ufw/ufw.conf", "# /etc/ufw/ufw.conf\n#ENABLED=no\nENABLED=yes\nLOGLEVEL=low\n");
  EXPECT_EQ(Summary(), "ufw on");
  Write("/etc/ufw/ufw.conf", "ENABLED=no\n");
  EXPECT_EQ(Summary(), "ufw off");
}

TEST_F(FirewallsTest, FirewalldIsOnWhileItsServiceHasProcesses) {
  Write("/etc/firewalld/firewalld.conf", "");
  EXPECT_EQ(Summary(), "firewalld off");
  Write("/sys/fs/cgroup/system.slice/firewalld.service/cgroup.procs", "");
  EXPECT_EQ(Summary(), "firewalld off");
  Write("/sys/fs/cgroup/system.slice/firewalld.service/cgroup.procs", "812\n");
  EXPECT_EQ(Summary(), "firewalld on");
}

TEST_F(FirewallsTest, AMachineMayHaveBoth) {
  Write("/etc/ufw/ufw.conf", "ENABLED=yes");
  Write("/etc/firewalld/firewalld.conf", "");
  Write("/sys/fs/cgroup/systemd/system.slice/firewalld.service/cgroup.procs", "812\n");
  EXPECT_EQ(Summary(), "ufw on, firewalld on");
}

TEST_F(FirewallsTest, ShellsSpellingsAreUnderstood) {
  EXPECT_EQ(IsUfwOn("ENABLED=\"Yes\"\r\n"), true);
  EXPECT_EQ(IsUfwOn("ENABLED='no'"), false);
  EXPECT_EQ(IsUfwOn("ENABLED=yes\nENABLED=no"), false) << "the last one counts";
}

TEST_F(FirewallsTest, NonsenseIsNoFirewall) {
  for (const char* nonsense :
       {"", "ENABLED", "ENABLED=", "ENABLED=maybe", "XENABLED=yes", "ENABLED=yes\nENABLED=\xFF\xFE",
        "\x7F"
        "ELF"}) {
    EXPECT_EQ(IsUfwOn(nonsense), std::nullopt) << nonsense;
  }
  Write("/etc/ufw/ufw.conf", QByteArray(1 << 20, 'x') + "\nENABLED=yes\n");
  EXPECT_EQ(Summary(), "") << "a configuration is short";
}

TEST_F(FirewallsTest, WhatIsNoFileIsNotWaitedFor) {
  QDir().mkpath(folder_.path() + "/etc/ufw");
  const std::string pipe = folder_.path().toStdString() + "/etc/ufw/ufw.conf";
  ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
  EXPECT_EQ(Summary(), "");
}

}  // namespace
}  // namespace verlume::qt
