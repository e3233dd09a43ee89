#include "platform_qt/windows/window_memory.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QScreen>
#include <QTemporaryDir>
#include <QTest>

#include "platform_fake/fake_file_system.h"
#include "platform_fake/fake_main_window.h"

namespace verlume::qt {
namespace {

class WindowMemoryTest : public testing::Test {
 protected:
  // One run of the program: a form with memory, from its creation until it is hidden.
  struct Run {
    explicit Run(const QString& file) : memory(&form, window.frmMain, file) {}
    void Show() {
      form.show();
      ASSERT_TRUE(QTest::qWaitForWindowExposed(&form));
    }
    void MoveTo(const QRect& place) {
      form.setGeometry(place);
      ASSERT_TRUE(QTest::qWaitFor([&] { return form.geometry() == place; }, 10000));
    }
    fake::FakeFileSystem files;
    fake::FakeMainWindow window{files};
    QWidget form;
    QtWindowMemory memory;
  };

  void Write(const QByteArray& bytes) {
    QFile out(file);
    ASSERT_TRUE(out.open(QIODevice::WriteOnly));
    out.write(bytes);
  }
  QByteArray Kept() {
    QFile in(file);
    return in.open(QIODevice::ReadOnly) ? in.readAll() : QByteArray();
  }

  QTemporaryDir folder;
  QString file = folder.filePath("Verlume.window");
};

TEST_F(WindowMemoryTest, WindowComesBackWhereItWas) {
  const QRect place(210, 160, 700, 520);
  {
    Run run(file);
    run.Show();
    run.MoveTo(place);
    EXPECT_FALSE(QFile::exists(file)) << "written at the end alone";
    run.form.close();
  }
  Run next(file);
  next.Show();
  EXPECT_TRUE(QTest::qWaitFor([&] { return next.form.geometry() == place; }, 10000))
      << next.form.geometry().x() << ", " << next.form.geometry().y();
}

TEST_F(WindowMemoryTest, HidingKeepsThePlaceToo) {
  Run run(file);
  run.Show();
  run.form.hide();
  EXPECT_EQ(Kept().chopped(3), run.form.saveGeometry());
}

TEST_F(WindowMemoryTest, StatusPanelAndZoomComeBack) {
  {
    Run run(file);
    run.Show();
    run.window.fraPanel.visible = false;
    run.window.rtbData.zoom = 300;
    run.form.close();
  }
  {
    Run next(file);
    EXPECT_FALSE(next.window.fraPanel.visible);
    EXPECT_EQ(next.window.rtbData.zoom, 300);
    EXPECT_EQ(next.window.rtbCommands.zoom, 300);
    next.Show();
    next.window.fraPanel.visible = true;
    next.form.close();
  }
  EXPECT_TRUE(Run(file).window.fraPanel.visible);
}

TEST_F(WindowMemoryTest, ZoomThatNobodyCanChooseIsNotTaken) {
  QWidget form;
  for (const int zoom : {0, 49, 301, 0xFFFF}) {
    Write(form.saveGeometry().append(1).append(char(zoom & 0xFF)).append(char(zoom >> 8)));
    EXPECT_EQ(Run(file).window.rtbData.zoom, kUsualZoom) << zoom;
  }
}

TEST_F(WindowMemoryTest, FileOfAnEarlierVersionHasThePlaceAlone) {
  QWidget moved;
  moved.setGeometry(210, 160, 700, 520);
  Write(moved.saveGeometry());
  Run run(file);
  EXPECT_EQ(run.form.size(), QSize(700, 520));
  EXPECT_TRUE(run.window.fraPanel.visible);
}

TEST_F(WindowMemoryTest, MaximisedWindowComesBackMaximisedAndKnowsItsOtherSize) {
  const QRect place(210, 160, 700, 520);
  {
    Run run(file);
    run.Show();
    run.MoveTo(place);
    run.form.showMaximized();
    ASSERT_TRUE(QTest::qWaitFor([&] { return run.form.width() > place.width(); }, 10000));
    run.form.close();
  }
  Run next(file);
  EXPECT_TRUE(next.form.isMaximized());
  EXPECT_EQ(next.form.normalGeometry().size(), place.size());
}

TEST_F(WindowMemoryTest, WindowThatLiesOutsideEveryScreenComesBackOntoOne) {
  QWidget far;
  far.setGeometry(50000, 40000, 700, 520);
  Write(far.saveGeometry());
  Run run(file);
  EXPECT_TRUE(run.form.screen()->availableGeometry().contains(run.form.geometry()))
      << run.form.x() << ", " << run.form.y();
}

TEST_F(WindowMemoryTest, FileThatIsNoSuchFileChangesNothing) {
  QWidget moved;
  moved.setGeometry(210, 160, 700, 520);
  const QByteArray good = moved.saveGeometry();
  QByteArray bad = good;
  bad[0] = 'x';
  for (const QByteArray& bytes : {QByteArray(), QByteArray("x"), good.chopped(1), good + "x", bad,
                                  QByteArray(good.size(), 0), QByteArray(1'000'000, 'x')}) {
    Write(bytes);
    Run run(file);
    run.form.resize(300, 200);
    Run fresh(folder.filePath("none"));
    fresh.form.resize(300, 200);
    EXPECT_EQ(run.form.geometry(), fresh.form.geometry()) << bytes.left(80).toHex().toStdString();
  }
}

TEST_F(WindowMemoryTest, FolderInThePlaceOfTheFileIsNoMatter) {
  ASSERT_TRUE(QDir().mkdir(file));
  Run run(file);
  run.Show();
  run.form.close();
  EXPECT_TRUE(QFileInfo(file).isDir());
}

TEST_F(WindowMemoryTest, FolderThatIsGoneIsNoMatter) {
  Run run(folder.filePath("gone/Verlume.window"));
  run.Show();
  run.form.close();
  EXPECT_FALSE(QFile::exists(folder.filePath("gone")));
}

}  // namespace
}  // namespace verlume::qt
