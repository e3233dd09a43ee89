#include "platform_qt/text/open_direction.h"

#include <QTextBlock>
#include <QTextDocument>
#include <QTextOption>
#include <algorithm>
#include <vector>

#include "platform_qt/text/seams.h"

namespace verlume::qt {
namespace {

enum class Opened { Embedding, Isolate };

// An isolate that ends also ends the embeddings inside it.
void EndIsolate(std::vector<Opened>& open) {
  const auto last = std::find(open.rbegin(), open.rend(), Opened::Isolate);
  if (last != open.rend()) open.erase(std::prev(last.base()), open.end());
}

}  // namespace

bool LeavesDirectionOpen(QStringView text) {
  std::vector<Opened> open;
  for (const QChar c : text) {
    switch (c.direction()) {
      case QChar::DirLRE:
      case QChar::DirLRO:
      case QChar::DirRLE:
      case QChar::DirRLO:
        open.push_back(Opened::Embedding);
        break;
      case QChar::DirLRI:
      case QChar::DirRLI:
      case QChar::DirFSI:
        open.push_back(Opened::Isolate);
        break;
      case QChar::DirPDF:
        if (!open.empty() && open.back() == Opened::Embedding) open.pop_back();
        break;
      case QChar::DirPDI:
        EndIsolate(open);
        break;
      default:
        break;
    }
  }
  return !open.empty();
}

void EndDirection(QTextCursor& cursor) {
  const QString text = cursor.block().text();
  if (!LeavesDirectionOpen(QStringView(text).first(cursor.positionInBlock()))) return;
  cursor.beginEditBlock();
  cursor.insertBlock(cursor.blockFormat(), cursor.charFormat());
  MarkSeam(cursor.block());
  cursor.endEditBlock();
}

void BeginLinesAtTheLeft(QTextDocument& document) {
  QTextOption option = document.defaultTextOption();
  option.setTextDirection(Qt::LeftToRight);
  document.setDefaultTextOption(option);
}

}  // namespace verlume::qt
