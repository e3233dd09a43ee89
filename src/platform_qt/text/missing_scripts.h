// Keeps Qt from looking for fonts of scripts that no font of this computer shows. It would open
// every font for each family, size and style of such text, 20 ms and more each time, and a peer can
// send any number of them. Only what is painted changes: the document keeps its formats.
#pragma once

#include <QObject>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextLayout>
#include <QTimer>

#include "platform_qt/fonts/installed_scripts.h"

namespace verlume::qt {

// Until all fonts have been looked at, which begins with the first text that makes it necessary,
// that text is shown as if no font had its letters. Looking at fonts, and afterwards at the text
// again, takes no more than a turn at once.
class MissingScripts : public QObject {
 public:
  // The document must not be destroyed before this object, nor `installed`.
  explicit MissingScripts(QTextDocument& document,
                          InstalledScripts& installed = InstalledScripts::Instance());

 private:
  void NoteChange(int position, int removed, int added);
  void Mark(const QTextBlock& block);
  void NoteUnsure(const QTextBlock& block);
  void RunTurn();
  void MarkNext();

  QTextDocument& document_;
  InstalledScripts& installed_;
  // No text before this place was marked before all fonts had been looked at. No QTextCursor: one
  // that goes while a document is being cleared leaves the document with a pointer to it.
  int unsureFrom_ = 0;
  QTimer nextTurn_;
};

}  // namespace verlume::qt
