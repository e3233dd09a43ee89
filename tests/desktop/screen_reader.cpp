#include "desktop/screen_reader.h"

#include <QDBusArgument>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>

#include "platform_qt/world.h"

namespace verlume::qt {
namespace {

const QString kConnection = QStringLiteral("screen reader");
const QString kAccessible = QStringLiteral("org.a11y.atspi.Accessible");
const QString kProperties = QStringLiteral("org.freedesktop.DBus.Properties");
const QString kRegistry = QStringLiteral("org.a11y.atspi.Registry");
const QString kRootPath = QStringLiteral("/org/a11y/atspi/accessible/root");

// As AT-SPI numbers them.
constexpr uint kLabelRole = 29;
constexpr uint kNotificationRole = 101;
constexpr int kShowingState = 25;

}  // namespace

ScreenReader::ScreenReader() = default;

ScreenReader::~ScreenReader() {
  bus_.reset();
  QDBusConnection::disconnectFromBus(kConnection);
}

bool ScreenReader::Start() {
  const QDBusMessage address = QDBusConnection::sessionBus().call(QDBusMessage::createMethodCall(
      QStringLiteral("org.a11y.Bus"), QStringLiteral("/org/a11y/bus"),
      QStringLiteral("org.a11y.Bus"), QStringLiteral("GetAddress")));
  if (address.type() != QDBusMessage::ReplyMessage) return false;
  bus_ = QDBusConnection::connectToBus(address.arguments().constFirst().toString(), kConnection);
  if (!bus_->isConnected()) return false;
  bus_->connect(QString(), QString(), QStringLiteral("org.a11y.atspi.Event.Object"),
                QStringLiteral("StateChanged"), this, SLOT(OnStateChanged(QDBusMessage)));
  const QDBusMessage registered =
      Ask({kRegistry, QStringLiteral("/org/a11y/atspi/registry")}, kRegistry,
          QStringLiteral("RegisterEvent"), {QStringLiteral("object:state-changed:showing")});
  return registered.type() == QDBusMessage::ReplyMessage;
}

QStringList ScreenReader::Heard() const {
  QStringList names;
  for (const std::optional<QString>& name : heard_) {
    if (name && !name->isEmpty()) names.append(*name);
  }
  return names;
}

void ScreenReader::OnStateChanged(const QDBusMessage& event) {
  const QVariantList details = event.arguments();
  if (details.value(0).toString() != QStringLiteral("showing") || details.value(1).toInt() != 1) {
    return;
  }
  const Accessible object{event.service(), event.path()};
  const auto place = static_cast<int>(heard_.size());
  heard_.emplace_back();
  const QDBusMessage call = QDBusMessage::createMethodCall(object.service, object.path, kAccessible,
                                                           QStringLiteral("GetRole"));
  auto* answer = new QDBusPendingCallWatcher(bus_->asyncCall(call), this);
  connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer, object, place] {
    answer->deleteLater();
    const QDBusPendingReply<uint> role = *answer;
    if (role.isValid() && role.value() == kNotificationRole) AskForName(object, place);
  });
}

void ScreenReader::AskForName(const Accessible& object, int place) {
  QDBusMessage call = QDBusMessage::createMethodCall(object.service, object.path, kProperties,
                                                     QStringLiteral("Get"));
  call << kAccessible << QStringLiteral("Name");
  auto* answer = new QDBusPendingCallWatcher(bus_->asyncCall(call), this);
  connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer, place] {
    answer->deleteLater();
    const QDBusPendingReply<QDBusVariant> name = *answer;
    if (name.isValid()) {
      heard_[static_cast<std::size_t>(place)] = name.value().variant().toString();
    }
  });
}

QStringList ScreenReader::VisibleLabels() {
  QStringList names;
  for (const Accessible& program : ChildrenOf({kRegistry, kRootPath})) {
    CollectLabels(program, names);
  }
  return names;
}

void ScreenReader::CollectLabels(const Accessible& object, QStringList& names) {
  if (RoleOf(object) == kLabelRole && IsShowing(object)) {
    const QString name = NameOf(object);
    if (!name.isEmpty()) names.append(name);
  }
  for (const Accessible& child : ChildrenOf(object)) CollectLabels(child, names);
}

QDBusMessage ScreenReader::Ask(const Accessible& object, const QString& interface,
                               const QString& method, const QVariantList& arguments) {
  QDBusMessage call =
      QDBusMessage::createMethodCall(object.service, object.path, interface, method);
  call.setArguments(arguments);
  // The program that answers is this process, so nothing may wait without handling events.
  const QDBusPendingCall answer = bus_->asyncCall(call);
  if (!WaitFor([&] { return answer.isFinished(); })) return {};
  return answer.reply();
}

std::vector<ScreenReader::Accessible> ScreenReader::ChildrenOf(const Accessible& object) {
  std::vector<Accessible> children;
  const QDBusMessage reply = Ask(object, kAccessible, QStringLiteral("GetChildren"));
  if (reply.type() != QDBusMessage::ReplyMessage) return children;
  const auto list = reply.arguments().constFirst().value<QDBusArgument>();
  list.beginArray();
  while (!list.atEnd()) {
    Accessible child;
    QDBusObjectPath path;
    list.beginStructure();
    list >> child.service >> path;
    list.endStructure();
    child.path = path.path();
    children.push_back(child);
  }
  list.endArray();
  return children;
}

QString ScreenReader::NameOf(const Accessible& object) {
  const QDBusMessage reply =
      Ask(object, kProperties, QStringLiteral("Get"), {kAccessible, QStringLiteral("Name")});
  if (reply.type() != QDBusMessage::ReplyMessage) return {};
  return reply.arguments().constFirst().value<QDBusVariant>().variant().toString();
}

uint ScreenReader::RoleOf(const Accessible& object) {
  const QDBusMessage reply = Ask(object, kAccessible, QStringLiteral("GetRole"));
  return reply.arguments().value(0).toUInt();
}

bool ScreenReader::IsShowing(const Accessible& object) {
  const QDBusMessage reply = Ask(object, kAccessible, QStringLiteral("GetState"));
  if (reply.type() != QDBusMessage::ReplyMessage) return false;
  const auto states = qdbus_cast<QList<uint>>(reply.arguments().constFirst());
  return ((states.value(0) >> kShowingState) & 1) != 0;
}

}  // namespace verlume::qt
