// The name of a conversation's log file.
#pragma once

#include <string>
#include <string_view>

#include "platform/file_system.h"
#include "shell/app_state.h"

namespace verlume {

// The nickname as a file name: each of \ / : * ? " < > | and each character that is not showable
// becomes "_", and so do "", "." and "..". The name of a device gets one: "CON_". At most
// kNicknameLimit characters and that one, so that the name with its extension stays far below the
// 255 bytes that file systems allow.
std::u16string LogFileStemOf(std::u16string_view nickname, const FileSystem& files);

// The path of the log file of the current conversation, or of the last one: AppState::LogFile or,
// before its first line, where to look for a place for it; "" without a log folder.
std::u16string LogPath(const AppState& state, const FileSystem& files);

// The path itself, which ends in ".txt", if a log can be appended there: the file does not exist,
// is empty, or is a log already. Otherwise the peer's nickname is the name of a file of the user's,
// and the path is the first like "name (2).txt" at which a log can be appended. A file that may not
// be read is taken for the user's; every other failure to read is thrown.
std::u16string FreeLogPath(const std::u16string& path, const FileSystem& files);

}  // namespace verlume
