#include "platform_qt/privacy/own_key.h"

#include <openssl/crypto.h>

#include <QSslSocket>

#include "platform/run_time_failure.h"
#include "platform_qt/os/files.h"
#include "platform_qt/os/open_file.h"
#include "platform_qt/system/file_replacement.h"

namespace verlume::qt {
namespace {

// A key takes some 250 bytes.
constexpr std::size_t kLongestFile = 64 << 10;
constexpr int kMostSetAside = 100;

// Keeps secrets out of memory that is given away.
class Secret {
 public:
  explicit Secret(std::string text) : text_(std::move(text)) {}
  ~Secret() { OPENSSL_cleanse(text_.data(), text_.size()); }
  Secret(const Secret&) = delete;
  Secret& operator=(const Secret&) = delete;
  const std::string& Text() const { return text_; }

 private:
  std::string text_;
};

}  // namespace

OwnKey OwnKeyFile::Prepare() {
  if (pair_) return OwnKey::Ready;
  if (!QSslSocket::supportsSsl()) return OwnKey::Unavailable;
  if (path_.empty()) return OwnKey::Unwritable;
  return IsTaken(path_) ? Read() : Make();
}

OwnKey OwnKeyFile::Replace() {
  const OwnKey state = Prepare();
  if (state != OwnKey::Unreadable) return state;
  return SetAside() ? Make() : OwnKey::Unwritable;
}

OwnKey OwnKeyFile::Read() try {
  OpenFile file(path_, Opening::ToRead);
  file.LetOnlyOwnerIn();
  const Secret pem(file.ReadStart(kLongestFile));
  pair_ = ReadKeyPair(pem.Text());
  return pair_ ? OwnKey::Ready : OwnKey::Unreadable;
} catch (const RunTimeFailure&) {
  return OwnKey::Unreadable;
}

OwnKey OwnKeyFile::Make() try {
  const Secret pem(MakeSecretKey());
  auto pair = ReadKeyPair(pem.Text());
  if (!pair) return OwnKey::Unavailable;
  FileReplacement file(FolderOf(path_), Readers::OwnerOnly);
  file.File().Write(pem.Text());
  // Another copy that was started in the same moment may have made one.
  if (!file.TakeFreePlace(path_)) return Read();
  pair_ = std::move(pair);
  return OwnKey::Ready;
} catch (const RunTimeFailure&) {
  return OwnKey::Unwritable;
}

bool OwnKeyFile::SetAside() {
  for (int number = 1; number <= kMostSetAside; ++number) {
    const std::string name = path_ + ".bad" + (number > 1 ? std::to_string(number) : "");
    if (!IsTaken(name)) return TryToRename(path_, name);
  }
  return false;
}

}  // namespace verlume::qt
