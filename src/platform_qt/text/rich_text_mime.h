// Rich text on the clipboard and in drag and drop: as RTF and as plain text, never as HTML.
#pragma once

#include <QMimeData>
#include <QTextCursor>

#include "platform_qt/text/rich_text.h"

namespace verlume::qt {

// Offers the text in both formats. Each is made only when it is asked for, since selecting with the
// mouse already creates this object: writing the RTF of a long dialogue each time would be slow.
class RichTextMimeData : public QMimeData {
 public:
  explicit RichTextMimeData(richtext::Document document) : document_(std::move(document)) {}

  QStringList formats() const override;
  bool hasFormat(const QString& type) const override { return formats().contains(type); }

 protected:
  QVariant retrieveData(const QString& type, QMetaType preferred) const override;

 private:
  richtext::Document document_;
};

// Whether InsertMimeData has something to insert.
bool HoldsText(const QMimeData& source);

// Replaces the cursor's selection by the RTF if there is any, else by the plain text in the format
// of the selection. A text that is too long to handle is cut.
void InsertMimeData(QTextCursor& cursor, const QMimeData& source, Lines lines);

}  // namespace verlume::qt
