#include "platform_qt/system/file_system.h"

#include <fcntl.h>
#include <unistd.h>

#include <QStringDecoder>
#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <optional>

#include "platform/run_time_failure.h"
#include "platform_qt/convert/text.h"
#include "platform_qt/system/file_replacement.h"
#include "platform_qt/system/file_system_posix.h"
#include "richtext/code_pages.h"

namespace verlume::qt {
namespace {

constexpr mode_t kPermissionBits = 07777;

// A lone surrogate becomes '?'. Converts in parts, so that a long text is not in memory three
// times.
std::string Utf8(std::u16string_view text) {
  constexpr std::size_t kPiece = 16 * 1024;
  std::string bytes;
  bytes.reserve(text.size());
  while (!text.empty()) {
    std::size_t length = std::min(kPiece, text.size());
    if (length < text.size() && QChar::isHighSurrogate(text[length - 1])) ++length;
    const QByteArray piece = ToQt(text.substr(0, length)).toUtf8();
    bytes.append(piece.data(), static_cast<std::size_t>(piece.size()));
    text.remove_prefix(length);
  }
  return bytes;
}

std::string NameOf(std::u16string_view path) {
  const QString name = ToQt(path);
  if (!name.isValidUtf16() || name.contains(QChar(0))) {
    throw RunTimeFailure(FailureNumber::PathFileAccessError);
  }
  return name.toUtf8().toStdString();
}

// The file name as text, unless it is not UTF-8.
std::optional<QString> TextOf(const std::string& name) {
  QStringDecoder decode(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
  const QString text = decode(name);
  if (decode.hasError()) return std::nullopt;
  return text;
}

bool IsOfType(std::u16string_view path, mode_t type) noexcept try {
  struct stat found;
  return Find(NameOf(path), found) && (found.st_mode & S_IFMT) == type;
} catch (const RunTimeFailure&) {
  return false;  // no file can have such a name
}

// The path of the actual file: the path itself or, if it is a link, the end of the links, which
// need not exist.
std::string FollowLinks(std::string path) {
  constexpr int kMostLinks = 40;
  for (int links = 0; links < kMostLinks; ++links) {
    std::error_code error;
    const std::filesystem::path target = std::filesystem::read_symlink(path, error);
    if (error) return path;
    path = std::filesystem::path(FolderOf(path)) / target;
  }
  throw RunTimeFailure(FailureNumber::PathFileAccessError);
}

// Throws if what is there may not be replaced by a file; returns the permissions to keep.
std::optional<mode_t> CheckReplaceable(const std::string& path) {
  struct stat found;
  if (!Find(path, found)) return std::nullopt;
  if (!S_ISREG(found.st_mode)) throw RunTimeFailure(FailureNumber::PathFileAccessError);
  if (::faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) != 0) ThrowErrno(path);
  return found.st_mode & kPermissionBits;
}

}  // namespace

bool QtFileSystem::IsFolder(std::u16string_view path) const noexcept {
  return IsOfType(path, S_IFDIR);
}

bool QtFileSystem::IsFile(std::u16string_view path) const noexcept {
  return IsOfType(path, S_IFREG);
}

std::vector<std::u16string> QtFileSystem::ListFiles(std::u16string_view folder,
                                                    std::u16string_view extension) const {
  if (!IsFolder(folder)) throw RunTimeFailure(FailureNumber::PathNotFound);
  const std::string path = NameOf(folder);
  std::error_code error;
  std::vector<std::u16string> names;
  auto entry = std::filesystem::directory_iterator(path, error);
  for (; !error && entry != std::filesystem::directory_iterator(); entry.increment(error)) {
    const std::optional<QString> name = TextOf(entry->path().filename().string());
    if (!name || !name->endsWith(ToQt(extension), Qt::CaseInsensitive)) continue;
    std::error_code ignored;
    if (entry->is_regular_file(ignored)) names.push_back(FromQt(*name));
  }
  if (!error) return names;
  errno = error.value();
  ThrowErrno(path);
}

std::uint64_t QtFileSystem::SizeOf(std::u16string_view path) const {
  const std::string name = NameOf(path);
  struct stat found;
  if (!Find(name, found)) ThrowErrno(name);
  if (!S_ISREG(found.st_mode)) throw RunTimeFailure(FailureNumber::PathFileAccessError);
  return static_cast<std::uint64_t>(found.st_size);
}

std::u16string QtFileSystem::ReadText(std::u16string_view path) const {
  return richtext::DecodeUtf8OrGreek(ReadBytes(path));
}

std::string QtFileSystem::ReadBytes(std::u16string_view path) const {
  return OpenFile(NameOf(path), O_RDONLY).ReadAll();
}

std::string QtFileSystem::ReadStart(std::u16string_view path, std::size_t limit) const {
  return OpenFile(NameOf(path), O_RDONLY).ReadStart(limit);
}

void QtFileSystem::ReplaceText(std::u16string_view path, std::u16string_view text,
                               Readers readers) {
  ReplaceBytes(path, Utf8(text), readers);
}

void QtFileSystem::ReplaceBytes(std::u16string_view path, std::string_view bytes, Readers readers) {
  const std::string target = FollowLinks(NameOf(path));
  const std::optional<mode_t> permissions = CheckReplaceable(target);
  FileReplacement fresh(FolderOf(target), readers == Readers::OwnerOnly ? kOwnerOnly : kUsual);
  // Before anything is written, so that nobody can read it meanwhile who may not read the file.
  if (permissions) fresh.File().SetPermissions(*permissions);
  fresh.File().Write(bytes);
  fresh.TakePlaceOf(target);
}

void QtFileSystem::AppendText(std::u16string_view path, std::u16string_view text) {
  OpenFile file(NameOf(path), O_WRONLY | O_CREAT | O_APPEND, kOwnerOnly);
  file.Append(Utf8(text));
  file.Close();
}

void QtFileSystem::Delete(std::u16string_view path) {
  const std::string name = NameOf(path);
  if (::unlink(name.c_str()) != 0) ThrowErrno(name);
}

}  // namespace verlume::qt
