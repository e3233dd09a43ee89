// txtTopic: shows a topic of the help. It opens nothing: links are handed over, and pictures and
// the like are never fetched.
#pragma once

#include <QTextBrowser>
#include <functional>

namespace verlume::qt {

class HelpTopicView : public QTextBrowser {
 public:
  explicit HelpTopicView(QWidget* parent);

  // Shows the markup from its beginning.
  void ShowTopic(const QString& html);
  // Marks the words of a query, and goes to the first of them.
  void Mark(const QString& query);

  // The id that a link of the book leads to.
  std::function<void(const QString& id)> onLink;

 protected:
  QVariant loadResource(int type, const QUrl& name) override;
  void changeEvent(QEvent* event) override;

 private:
  void Render();

  QString html_;
  QString query_;
};

}  // namespace verlume::qt
