// A folder that a dialog for folders offers beside its list of places, and that is only made when
// the user chooses it.
#pragma once

#include <QFileDialog>
#include <QString>

namespace verlume::qt {

// The folder of this name in the user's documents; "" when the name is, or nobody knows where the
// documents are.
QString FolderInDocuments(const QString& name);

// Offers `path` as the last of the dialog's places. A click on it, or Enter, makes the folder if it
// is missing, and opens it; when it cannot be made, a box says so. Does nothing for "".
void SuggestFolder(QFileDialog& dialog, const QString& path);

}  // namespace verlume::qt
