// The road in clear: what comes is bytes, of which arrivals are assembled.
#pragma once

#include <QTimer>
#include <chrono>
#include <string>

#include "platform_qt/net/tcp_road.h"
#include "stream/arrival_assembler.h"

namespace verlume::qt {

class ClearRoad : public TcpRoad {
 public:
  // `heard` is what has been read already. `timeout` is how long an incomplete text waits for its
  // next byte.
  ClearRoad(QTcpSocket* socket, Sender* sender, Events events, std::chrono::milliseconds timeout,
            std::string heard);

  void Start() override;
  void ResumeReading() override;
  void Close() override;

 private:
  void Read() override;
  void OnDisconnected() override;
  void DeliverOverdue();
  void Deliver();
  void Raise(std::string_view arrival);

  std::string heard_;
  stream::ArrivalAssembler assembler_;
  QTimer timeout_{this};  // of an incomplete text
};

}  // namespace verlume::qt
