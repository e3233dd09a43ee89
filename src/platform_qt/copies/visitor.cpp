#include "platform_qt/copies/visitor.h"

#include "platform_qt/copies/hand_over.h"

namespace verlume::qt {

// A child of its socket, which is one of the server.
Visitor::Visitor(QLocalSocket& socket, VisitorHost& host)
    : QObject(&socket), socket_(socket), host_(host) {
  socket.setReadBufferSize(kLongestRequest);
  connect(&socket, &QLocalSocket::readyRead, this, &Visitor::Read);
  connect(&socket, &QLocalSocket::disconnected, this, &Visitor::Leave);
  patience_.setSingleShot(true);
  patience_.callOnTimeout(this, &Visitor::Leave);
  patience_.start(kPatience);
  Read();
}

void Visitor::Read() {
  if (hasLeft_ || socket_.bytesAvailable() == 0) return;
  if (!isAnswered_) return ReadRequest();
  const bool isMeant = socket_.readAll() == QByteArray(1, kYes);
  Leave();
  const qsizetype end = request_.indexOf('\0');
  const QByteArray task = request_.sliced(end + 1).chopped(1);
  if (isMeant) host_.Bring(request_.first(end), std::string_view(task.constData(), task.size()));
}

void Visitor::ReadRequest() {
  // A longer one never ends, and is left when the patience does.
  request_ += socket_.read(kLongestRequest - request_.size());
  const qsizetype end = request_.indexOf('\0');
  const qsizetype secondEnd = end < 0 ? end : request_.indexOf('\0', end + 1);
  if (secondEnd < 0) return;
  const QByteArray task = request_.mid(end + 1, secondEnd - end - 1);
  const bool isWhole = secondEnd == request_.size() - 1 && IsActivationToken(request_.first(end));
  if (!isWhole || !host_.MayBring(std::string_view(task.constData(), task.size()))) return Leave();
  isAnswered_ = true;
  socket_.write(&kYes, 1);
}

void Visitor::Leave() {
  if (hasLeft_) return;
  hasLeft_ = true;
  patience_.stop();
  socket_.abort();
  socket_.deleteLater();
}

}  // namespace verlume::qt
