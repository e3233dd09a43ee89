#include "platform_qt/system/file_system.h"

#include <QStringDecoder>
#include <optional>

#include "platform/run_time_failure.h"
#include "platform_qt/convert/text.h"
#include "platform_qt/os/files.h"
#include "platform_qt/os/local_text.h"
#include "platform_qt/os/machine.h"
#include "platform_qt/os/open_file.h"
#include "platform_qt/system/file_replacement.h"

namespace verlume::qt {
namespace {

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

bool IsOfKind(std::u16string_view path, FileKind kind) noexcept try {
  return KindOf(NameOf(path)) == kind;
} catch (const RunTimeFailure&) {
  return false;  // no file can have such a name
}

// True if there is a file to replace; throws if what is there may not be replaced by a file.
bool IsReplaceable(const std::string& path) {
  const FileKind kind = KindOf(path);
  if (kind == FileKind::Nothing) return false;
  if (kind != FileKind::File) throw RunTimeFailure(FailureNumber::PathFileAccessError);
  CheckWritable(path);
  return true;
}

}  // namespace

bool QtFileSystem::IsFolder(std::u16string_view path) const noexcept {
  return IsOfKind(path, FileKind::Folder);
}

bool QtFileSystem::IsFile(std::u16string_view path) const noexcept {
  return IsOfKind(path, FileKind::File);
}

bool QtFileSystem::IsNameOfDevice(std::u16string_view name) const noexcept {
  return qt::IsNameOfDevice(name);
}

std::vector<std::u16string> QtFileSystem::ListFiles(std::u16string_view folder,
                                                    std::u16string_view extension) const {
  if (!IsFolder(folder)) throw RunTimeFailure(FailureNumber::PathNotFound);
  std::vector<std::u16string> names;
  for (const std::string& file : FilesIn(NameOf(folder))) {
    const std::optional<QString> name = TextOf(file);
    if (name && name->endsWith(ToQt(extension), Qt::CaseInsensitive))
      names.push_back(FromQt(*name));
  }
  return names;
}

std::uint64_t QtFileSystem::SizeOf(std::u16string_view path) const {
  return FileSize(NameOf(path));
}

std::u16string QtFileSystem::ReadText(std::u16string_view path) const {
  return DecodeLocal(ReadBytes(path));
}

std::string QtFileSystem::ReadBytes(std::u16string_view path) const {
  return OpenFile(NameOf(path), Opening::ToRead).ReadAll();
}

std::string QtFileSystem::ReadStart(std::u16string_view path, std::size_t limit) const {
  return OpenFile(NameOf(path), Opening::ToRead).ReadStart(limit);
}

void QtFileSystem::ReplaceText(std::u16string_view path, std::u16string_view text,
                               Readers readers) {
  ReplaceBytes(path, EncodeLocal(text), readers);
}

void QtFileSystem::ReplaceBytes(std::u16string_view path, std::string_view bytes, Readers readers) {
  const std::string target = EndOfLinks(NameOf(path));
  const bool isThere = IsReplaceable(target);
  FileReplacement fresh(FolderOf(target), readers);
  // Before anything is written, so that nobody can read it meanwhile who may not read the file.
  if (isThere) fresh.File().TakePermissionsOf(target);
  fresh.File().Write(bytes);
  fresh.TakePlaceOf(target);
}

void QtFileSystem::AppendText(std::u16string_view path, std::u16string_view text) {
  OpenFile file(NameOf(path), Opening::ToAppend, Readers::OwnerOnly);
  file.Append(EncodeLocal(text));
  file.Close();
}

void QtFileSystem::Delete(std::u16string_view path) {
  RemoveFile(NameOf(path));
}

char16_t QtFileSystem::Separator() const {
  return PathSeparator();
}

}  // namespace verlume::qt
