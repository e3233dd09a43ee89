#include "platform_qt/help/help_window.h"

#include <QHBoxLayout>
#include <QLineEdit>
#include <QListWidget>
#include <QScreen>
#include <QScrollBar>
#include <QShortcut>
#include <QSplitter>
#include <QTreeWidget>

#include "platform_qt/controls/control.h"
#include "platform_qt/help/help_texts.h"

namespace verlume::qt {
namespace {

constexpr QSize kUsualSize(860, 600);
// The size of a window manager's frame.
constexpr QSize kFrame(20, 50);

QString WithKeys(const HelpText& text, bool isGreek, QKeySequence::StandardKey key) {
  return text.In(isGreek) + " (" + QKeySequence(key).toString(QKeySequence::NativeText) + ')';
}

}  // namespace

HelpForm::HelpForm(const HelpBook& book)
    : book_(book),
      cmdBack_(new QToolButton(this)),
      cmdForward_(new QToolButton(this)),
      sidebar_(new HelpSidebar(this)),
      txtTopic_(new HelpTopicView(this)) {
  setObjectName(QStringLiteral("frmHelp"));
  setAttribute(Qt::WA_DeleteOnClose);
  txtTopic_->setObjectName(QStringLiteral("txtTopic"));
  BuildButtons();
  BuildLayout();
  BindKeys();
  ExplainOnRightClick(cmdBack_);
  ExplainOnRightClick(cmdForward_);
  ExplainOnRightClick(sidebar_->tvwContents());
  ExplainOnRightClick(sidebar_->lstResults());
  sidebar_->onChosen = [this](const QString& id) { GoTo(id); };
  txtTopic_->onLink = [this](const QString& id) { GoTo(id); };
  BookChanged();
  resize(kUsualSize.boundedTo(screen()->availableSize() - kFrame));
  sidebar_->tvwContents()->setFocus();
}

void HelpForm::BuildButtons() {
  cmdBack_->setObjectName(QStringLiteral("cmdBack"));
  cmdBack_->setArrowType(Qt::LeftArrow);
  cmdForward_->setObjectName(QStringLiteral("cmdForward"));
  cmdForward_->setArrowType(Qt::RightArrow);
  for (QToolButton* button : {cmdBack_, cmdForward_}) button->setFocusPolicy(Qt::StrongFocus);
  connect(cmdBack_, &QToolButton::clicked, this, [this] { Turn(&HelpHistory::GoBack); });
  connect(cmdForward_, &QToolButton::clicked, this, [this] { Turn(&HelpHistory::GoForward); });
}

void HelpForm::BuildLayout() {
  auto* left = new QWidget;
  auto* column = new QVBoxLayout(left);
  column->setContentsMargins(0, 0, 0, 0);
  auto* buttons = new QHBoxLayout;
  buttons->addWidget(cmdBack_);
  buttons->addWidget(cmdForward_);
  buttons->addStretch();
  column->addLayout(buttons);
  column->addWidget(sidebar_);
  auto* splitter = new QSplitter;
  splitter->setChildrenCollapsible(false);
  splitter->addWidget(left);
  splitter->addWidget(txtTopic_);
  splitter->setStretchFactor(1, 1);
  splitter->setSizes({kUsualSize.width() * 3 / 10, kUsualSize.width() * 7 / 10});
  auto* all = new QHBoxLayout(this);
  all->addWidget(splitter);
}

void HelpForm::BindKeys() {
  const auto bind = [this](const QKeySequence& keys, auto act) {
    connect(new QShortcut(keys, this), &QShortcut::activated, this, act);
  };
  bind(QKeySequence::Back, [this] { cmdBack_->click(); });
  bind(QKeySequence::Forward, [this] { cmdForward_->click(); });
  bind(QKeySequence::Find, [this] { sidebar_->FocusSearch(); });
  bind(QKeySequence(Qt::Key_Slash), [this] { sidebar_->FocusSearch(); });
  bind(QKeySequence::HelpContents, [this] { GoTo(txtTopic_->objectName()); });
  bind(QKeySequence(Qt::Key_Escape), [this] {
    if (!sidebar_->ClearSearch()) close();
  });
}

template <class Widget>
void HelpForm::ExplainOnRightClick(Widget* widget) {
  auto control = std::make_unique<QtControl<Control, Widget>>(widget);
  control->onMouseUp = [shown = control.get()](MouseButton button) {
    if (button != MouseButton::Left) shown->ShowContextHelp();
  };
  controls_.push_back(std::move(control));
}

void HelpForm::SetTexts() {
  const bool isGreek = book_.IsGreek();
  setWindowTitle(kHelpTitle.In(isGreek));
  cmdBack_->setToolTip(WithKeys(kHelpBack, isGreek, QKeySequence::Back));
  cmdBack_->setAccessibleName(kHelpBack.In(isGreek));
  cmdForward_->setToolTip(WithKeys(kHelpForward, isGreek, QKeySequence::Forward));
  cmdForward_->setAccessibleName(kHelpForward.In(isGreek));
  sidebar_->txtSearch()->setPlaceholderText(WithKeys(kHelpSearch, isGreek, QKeySequence::Find));
  sidebar_->txtSearch()->setAccessibleName(kHelpSearch.In(isGreek));
  sidebar_->tvwContents()->setAccessibleName(kHelpContents.In(isGreek));
  sidebar_->lstResults()->setAccessibleName(kHelpResults.In(isGreek));
  txtTopic_->setAccessibleName(kHelpTopic.In(isGreek));
}

void HelpForm::BookChanged() {
  SetTexts();
  KeepScroll();
  sidebar_->SetBook(book_);
  const bool hasBegun = history_.Now() != nullptr;
  if (!hasBegun && !book_.Chapters().empty()) {
    history_.Go(book_.Chapters().front().topics.front().id);
  }
  ShowVisit();
}

void HelpForm::GoTo(const QString& id) {
  const HelpPlace place = book_.Find(id);
  if (place.topicId.isEmpty()) return;
  const HelpHistory::Visit* now = history_.Now();
  if (!now || now->topicId != place.topicId) {
    KeepScroll();
    history_.Go(place.topicId);
  }
  ShowVisit();
  if (!sidebar_->Query().isEmpty()) txtTopic_->Mark(sidebar_->Query());
  if (!place.anchor.isEmpty()) txtTopic_->scrollToAnchor(place.anchor);
}

void HelpForm::Turn(void (HelpHistory::*step)()) {
  KeepScroll();
  (history_.*step)();
  ShowVisit();
}

void HelpForm::ShowVisit() {
  const HelpHistory::Visit* visit = history_.Now();
  const HelpTopic* topic = visit ? book_.Topic(visit->topicId) : nullptr;
  if (topic) {
    txtTopic_->ShowTopic(topic->html);
    txtTopic_->verticalScrollBar()->setValue(visit->scroll);
    sidebar_->Select(topic->id);
  } else {
    txtTopic_->ShowTopic(book_.ProblemText().toHtmlEscaped().replace(u'\n', "<br>"));
  }
  cmdBack_->setEnabled(history_.CanGoBack());
  cmdForward_->setEnabled(history_.CanGoForward());
}

void HelpForm::KeepScroll() {
  if (HelpHistory::Visit* visit = history_.Now()) {
    visit->scroll = txtTopic_->verticalScrollBar()->value();
  }
}

}  // namespace verlume::qt
