// txtTopic: shows a topic of the help. It opens nothing itself: links are passed on, and pictures
// and other resources are never loaded.
#pragma once

#include <QTextBrowser>
#include <functional>

namespace verlume::qt {

class HelpTopicView : public QTextBrowser {
 public:
  explicit HelpTopicView(QWidget* parent);

  // Shows the markup, scrolled to its start.
  void ShowTopic(const QString& html);
  // Marks the words of a query and goes to the first one.
  void Mark(const QString& query);

  // The id to which a link of the book leads.
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
