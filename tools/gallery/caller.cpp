#include "caller.h"

#include "connection/wire_protocol.h"
#include "richtext/code_pages.h"

namespace verlume::gallery {

Caller::Caller() {
  // Answers the program's "S", which are the first bytes that arrive.
  QObject::connect(&socket_, &QTcpSocket::readyRead, &socket_, [this] {
    QObject::disconnect(&socket_, &QTcpSocket::readyRead, nullptr, nullptr);
    const std::string name = richtext::EncodeGreek(BuildProtocolMarker() + u"CΒασίλης" + u'\0');
    socket_.write(name.data(), static_cast<qint64>(name.size()));
  });
}

void Caller::Call(quint16 port) {
  socket_.bind(QHostAddress::LocalHost);
  socket_.setSocketOption(QAbstractSocket::ReceiveBufferSizeSocketOption,
                          1);  // becomes the smallest size possible
  socket_.setReadBufferSize(1);
  socket_.connectToHost(QHostAddress::LocalHost, port);
}

}  // namespace verlume::gallery
