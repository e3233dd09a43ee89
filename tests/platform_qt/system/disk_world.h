// The files of this machine, with a folder of the tests' own.
#pragma once

#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>
#include <string>

#include "platform_qt/convert/text.h"
#include "platform_qt/system/file_system.h"

namespace verlume::qt {

struct DiskWorld {
  std::u16string Folder() const { return PathFromQt(folder.path()); }
  void MakeFolder(std::u16string_view path) { ASSERT_TRUE(QDir().mkdir(ToQt(path))); }

  QTemporaryDir folder;
  QtFileSystem files;
};

}  // namespace verlume::qt
