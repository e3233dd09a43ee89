// What a screen reader perceives of this process, asked for over the accessibility bus (AT-SPI).
#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>
#include <QStringList>
#include <optional>
#include <vector>

namespace verlume::qt {

class ScreenReader : public QObject {
  Q_OBJECT

 public:
  ScreenReader();
  ~ScreenReader() override;

  // Connects to the accessibility bus and asks for the events that announcements are. False if no
  // such bus can be started.
  bool Start();

  // The notifications that have appeared, by the names that they had when they were asked for it,
  // in their order.
  QStringList Heard() const;

  // The names of all labels of the program that are visible to the reader, without the empty ones.
  QStringList VisibleLabels();

 private slots:
  void OnStateChanged(const QDBusMessage& event);

 private:
  struct Accessible {
    QString service;
    QString path;
  };

  // The reply to a call, while events are handled; none if there is none in time.
  QDBusMessage Ask(const Accessible& object, const QString& interface, const QString& method,
                   const QVariantList& arguments = {});
  std::vector<Accessible> ChildrenOf(const Accessible& object);
  QString NameOf(const Accessible& object);
  uint RoleOf(const Accessible& object);
  bool IsShowing(const Accessible& object);
  void CollectLabels(const Accessible& object, QStringList& names);
  void AskForName(const Accessible& object, int place);

  std::optional<QDBusConnection> bus_;
  std::vector<std::optional<QString>> heard_;
};

}  // namespace verlume::qt
