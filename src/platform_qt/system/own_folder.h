// A folder that the user names, or that is the program's own.
#pragma once

#include <QString>
#include <optional>
#include <string_view>

namespace verlume::qt {

// Makes the folder, and those that it lies in, if it is missing; then nobody else may look into it.
// False if it cannot be made or written to.
bool MakeOwnFolder(const QString& path);

// The same for a path as the user wrote it; it may be relative. The absolute path, none on failure.
std::optional<QString> OwnFolder(std::u16string_view path);

}  // namespace verlume::qt
