// Who owns a folder, and who is at the other end of a local connection.
#pragma once

#include <QString>

class QLocalSocket;

namespace verlume::qt {

// Whether the folder is the user's, and nobody else may write into it.
bool OnlyUserMayWrite(const QString& folder);

// Whether the process at the other end runs for the same user. True where the system does not tell:
// there only the user can open the connection.
bool IsSameUser(const QLocalSocket& socket);

}  // namespace verlume::qt
