#include "platform_fake/fake_file_system.h"

#include <algorithm>

#include "richtext/code_pages.h"

namespace verlume::fake {
namespace {

std::u16string_view WithoutSeparator(std::u16string_view path) {
  while (path.size() > 1 && path.back() == u'/') path.remove_suffix(1);
  return path;
}

std::u16string_view FolderOf(std::u16string_view path) {
  const std::size_t slash = path.rfind(u'/');
  return slash == 0 || slash == std::u16string_view::npos ? u"/" : path.substr(0, slash);
}

std::u16string_view NameOf(std::u16string_view path) {
  return path.substr(path.rfind(u'/') + 1);
}

char16_t Lower(char16_t c) {
  return c >= u'A' && c <= u'Z' ? char16_t(c + 32) : c;
}

bool IsSame(std::u16string_view one, std::u16string_view other) {
  return std::ranges::equal(one, other, {}, Lower, Lower);
}

bool EndsIn(std::u16string_view name, std::u16string_view extension) {
  return name.size() >= extension.size() &&
         IsSame(name.substr(name.size() - extension.size()), extension);
}

bool IsSurrogate(char16_t c) {
  return c >= 0xD800 && c < 0xE000;
}

bool IsPair(std::u16string_view text) {
  return text.size() > 1 && IsSurrogate(text[0]) && text[0] < 0xDC00 && IsSurrogate(text[1]) &&
         text[1] >= 0xDC00;
}

// Whether there may be a file with this path.
bool IsText(std::u16string_view path) {
  for (; !path.empty(); path.remove_prefix(1)) {
    if (path[0] == u'\0') return false;
    if (!IsSurrogate(path[0])) continue;
    if (!IsPair(path)) return false;
    path.remove_prefix(1);
  }
  return true;
}

std::string Utf8(std::u16string_view text) {
  std::string bytes;
  bytes.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    char32_t c = text[i];
    if (c < 0x80) {
      bytes += static_cast<char>(c);
      continue;
    }
    if (IsPair(text.substr(i))) {
      c = 0x10000 + ((c - 0xD800) << 10) + (text[++i] - 0xDC00);
    } else if (IsSurrogate(text[i])) {
      bytes += '?';
      continue;
    }
    const int tail = c < 0x800 ? 1 : c < 0x10000 ? 2 : 3;
    constexpr int kLead[] = {0, 0xC0, 0xE0, 0xF0};
    bytes += static_cast<char>(kLead[tail] | (c >> (6 * tail)));
    for (int n = tail - 1; n >= 0; --n) bytes += static_cast<char>(0x80 | ((c >> (6 * n)) & 0x3F));
  }
  return bytes;
}

}  // namespace

bool FakeFileSystem::IsFolder(std::u16string_view path) const noexcept {
  return !path.empty() && folders_.contains(WithoutSeparator(path));
}

bool FakeFileSystem::IsFile(std::u16string_view path) const noexcept {
  return !IsNameOfDevice(NameOf(path)) && files.contains(Stored(path));
}

bool FakeFileSystem::IsNameOfDevice(std::u16string_view name) const noexcept {
  const std::u16string_view stem = name.substr(0, name.find(u'.'));
  return hasDevices && (IsSame(stem, u"con") || IsSame(stem, u"nul"));
}

std::u16string_view FakeFileSystem::Stored(std::u16string_view path) const noexcept {
  if (!ignoresCase || files.contains(path)) return path;
  const auto same = std::find_if(files.begin(), files.end(),
                                 [&](const auto& file) { return IsSame(path, file.first); });
  return same != files.end() ? same->first : path;
}

std::vector<std::u16string> FakeFileSystem::ListFiles(std::u16string_view folder,
                                                      std::u16string_view extension) const {
  if (!IsFolder(folder)) throw RunTimeFailure(FailureNumber::PathNotFound);
  if (listingFails) throw RunTimeFailure(*listingFails);
  std::vector<std::u16string> names;
  for (const auto& [path, bytes] : files) {
    if (FolderOf(path) == WithoutSeparator(folder) && EndsIn(path, extension)) {
      names.emplace_back(NameOf(path));
    }
  }
  return names;
}

std::uint64_t FakeFileSystem::SizeOf(std::u16string_view path) const {
  return Find(path).size();
}

// A program that starts reads its settings file again and again.
std::u16string FakeFileSystem::ReadText(std::u16string_view path) const {
  const std::string& bytes = Find(path);
  if (bytes != lastBytes_) {
    lastBytes_ = bytes;
    lastText_ = richtext::DecodeUtf8OrGreek(bytes);
  }
  return lastText_;
}

std::string FakeFileSystem::ReadBytes(std::u16string_view path) const {
  return Find(path);
}

const std::string& FakeFileSystem::Find(std::u16string_view path) const {
  if (readsFail) throw RunTimeFailure(*readsFail);
  const auto file = files.find(Stored(path));
  if (file != files.end()) return file->second;
  CheckPath(path);
  throw RunTimeFailure(FailureNumber::FileNotFound);
}

std::string FakeFileSystem::ReadStart(std::u16string_view path, std::size_t limit) const {
  return Find(path).substr(0, limit);
}

void FakeFileSystem::ReplaceText(std::u16string_view path, std::u16string_view text,
                                 Readers readers) {
  ReplaceBytes(path, Utf8(text), readers);
}

void FakeFileSystem::ReplaceBytes(std::u16string_view path, std::string_view bytes, Readers) {
  CheckWrite(path);
  files[std::u16string(Stored(path))] = bytes;
}

void FakeFileSystem::AppendText(std::u16string_view path, std::u16string_view text) {
  CheckWrite(path);
  files[std::u16string(Stored(path))] += Utf8(text);
}

void FakeFileSystem::Delete(std::u16string_view path) {
  CheckWrite(path);
  if (!IsFile(path)) throw RunTimeFailure(FailureNumber::FileNotFound);
  files.erase(files.find(Stored(path)));
}

void FakeFileSystem::MakeFolder(std::u16string_view path) {
  for (path = WithoutSeparator(path); path != u"/"; path = FolderOf(path)) {
    folders_.insert(std::u16string(path));
  }
}

void FakeFileSystem::RemoveFolder(std::u16string_view path) {
  const std::u16string folder(WithoutSeparator(path));
  folders_.erase(folder);
  std::erase_if(files, [&](const auto& file) { return FolderOf(file.first) == folder; });
}

void FakeFileSystem::CheckWrite(std::u16string_view path) const {
  if (writesFail) throw RunTimeFailure(*writesFail);
  CheckPath(path);
}

// Throws if there may not be a file with this path.
void FakeFileSystem::CheckPath(std::u16string_view path) const {
  if (!IsText(path) || IsFolder(path) || IsNameOfDevice(NameOf(path)))
    throw RunTimeFailure(FailureNumber::PathFileAccessError);
  if (!IsFolder(FolderOf(path))) throw RunTimeFailure(FailureNumber::PathNotFound);
}

}  // namespace verlume::fake
