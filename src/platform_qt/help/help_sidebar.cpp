#include "platform_qt/help/help_sidebar.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QStackedWidget>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>
#include <QVBoxLayout>

#include "platform_qt/help/help_search.h"
#include "platform_qt/help/help_texts.h"

namespace verlume::qt {
namespace {

constexpr int kIdRole = Qt::UserRole;

// A line of the contents. Its tool tip shows the full title, which may be cut in the line.
QTreeWidgetItem* Line(const QString& id, const QString& title) {
  auto* line = new QTreeWidgetItem({title});
  line->setData(0, kIdRole, id);
  line->setToolTip(0, title.toHtmlEscaped());
  return line;
}

}  // namespace

HelpSidebar::HelpSidebar(QWidget* parent)
    : QWidget(parent),
      txtSearch_(new QLineEdit(this)),
      pages_(new QStackedWidget(this)),
      tvwContents_(new QTreeWidget),
      lstResults_(new QListWidget) {
  txtSearch_->setObjectName(QStringLiteral("txtSearch"));
  txtSearch_->setClearButtonEnabled(true);
  tvwContents_->setObjectName(QStringLiteral("tvwContents"));
  tvwContents_->setHeaderHidden(true);
  lstResults_->setObjectName(QStringLiteral("lstResults"));
  lstResults_->setWordWrap(true);
  lstResults_->setAlternatingRowColors(true);
  pages_->addWidget(tvwContents_);
  pages_->addWidget(lstResults_);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->addWidget(txtSearch_);
  column->addWidget(pages_);

  connect(txtSearch_, &QLineEdit::textChanged, this, [this] { ListResults(); });
  connect(txtSearch_, &QLineEdit::returnPressed, this, [this] { ChooseFirst(); });
  const auto chooseLine = [this](const QTreeWidgetItem* line) {
    Choose(line->data(0, kIdRole).toString());
  };
  connect(tvwContents_, &QTreeWidget::itemClicked, this, chooseLine);
  connect(tvwContents_, &QTreeWidget::itemActivated, this, chooseLine);
  const auto chooseFinding = [this](const QListWidgetItem* finding) {
    Choose(finding->data(kIdRole).toString());
  };
  connect(lstResults_, &QListWidget::itemClicked, this, chooseFinding);
  connect(lstResults_, &QListWidget::itemActivated, this, chooseFinding);
}

void HelpSidebar::SetBook(const HelpBook& book) {
  book_ = &book;
  tvwContents_->clear();
  for (const HelpChapter& chapter : book.Chapters()) {
    QTreeWidgetItem* chapterLine = Line(chapter.id, chapter.title);
    tvwContents_->addTopLevelItem(chapterLine);
    for (const HelpTopic& topic : chapter.topics) {
      chapterLine->addChild(Line(topic.id, topic.title));
    }
  }
  ListResults();
}

bool HelpSidebar::ClearSearch() {
  if (txtSearch_->text().isEmpty()) return false;
  txtSearch_->clear();
  return true;
}

void HelpSidebar::Select(const QString& topicId) {
  for (int row = 0; row < lstResults_->count(); ++row) {
    const bool isShown = lstResults_->item(row)->data(kIdRole) == topicId;
    lstResults_->item(row)->setSelected(isShown);
  }
  for (QTreeWidgetItemIterator line(tvwContents_); *line; ++line) {
    if (!(*line)->parent() || (*line)->data(0, kIdRole) != topicId) continue;
    tvwContents_->setCurrentItem(*line);
    tvwContents_->scrollToItem(*line);
    return;
  }
}

QString HelpSidebar::Query() const {
  return txtSearch_->text();
}

void HelpSidebar::FocusSearch() {
  txtSearch_->setFocus(Qt::ShortcutFocusReason);
  txtSearch_->selectAll();
}

void HelpSidebar::ListResults() {
  lstResults_->clear();
  const bool isSearching = !Query().trimmed().isEmpty();
  pages_->setCurrentWidget(isSearching ? static_cast<QWidget*>(lstResults_) : tvwContents_);
  if (!isSearching || !book_) return;
  for (const HelpFinding& finding : SearchHelp(*book_, Query())) {
    auto* line = new QListWidgetItem(finding.topic->title + u'\n' + finding.snippet, lstResults_);
    line->setData(kIdRole, finding.topic->id);
  }
  if (lstResults_->count() > 0) return lstResults_->setCurrentRow(0);
  auto* nothing = new QListWidgetItem(kNothingFound.In(book_->IsGreek()), lstResults_);
  nothing->setFlags(Qt::NoItemFlags);
}

void HelpSidebar::ChooseFirst() {
  if (pages_->currentWidget() != lstResults_ || !lstResults_->item(0)) return;
  Choose(lstResults_->item(0)->data(kIdRole).toString());
}

void HelpSidebar::Choose(const QString& id) {
  if (onChosen && !id.isEmpty()) onChosen(id);
}

// The Down key moves from the search field into the list below it.
void HelpSidebar::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Down && txtSearch_->hasFocus()) {
    pages_->currentWidget()->setFocus(Qt::TabFocusReason);
    return;
  }
  QWidget::keyPressEvent(event);
}

}  // namespace verlume::qt
