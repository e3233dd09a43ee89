// The key of this folder of the program, in its file.
#pragma once

#include <optional>
#include <string>

#include "platform/privacy.h"
#include "platform_qt/privacy/key_pair.h"

namespace verlume::qt {

class OwnKeyFile {
 public:
  // The file is neither read nor made before Prepare. "" for a program that has no folder: its key
  // is Unwritable.
  explicit OwnKeyFile(std::string path) : path_(std::move(path)) {}

  // Reads the key, or makes one if there is no file. A file that others may read is made its
  // owner's alone. Does nothing once the key is Ready.
  OwnKey Prepare();
  // Makes a new key in the place of one that is Unreadable. The old file is kept beside it, under
  // the first free name of `.bad`, `.bad2` and so on.
  OwnKey Replace();

  // The key, if it is Ready.
  const std::optional<KeyPair>& Pair() const { return pair_; }

 private:
  OwnKey Read();
  OwnKey Make();
  bool SetAside();

  std::string path_;
  std::optional<KeyPair> pair_;
};

}  // namespace verlume::qt
