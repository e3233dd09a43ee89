// What the program does on each event of its socket.
#pragma once

#include <cstdint>

#include "connection/wire_protocol.h"
#include "platform/platform.h"
#include "records/dialogue_log.h"
#include "shell/app_state.h"
#include "shell/error_report.h"

namespace verlume {

class SocketEvents {
 public:
  SocketEvents(AppState& state, Platform& platform, ErrorReport& errors, WireProtocol& wire,
               DialogueLog& log)
      : state_(state), platform_(platform), errors_(errors), wire_(wire), log_(log) {}

  void sckControl_ConnectionRequest(std::int64_t requestId);
  void sckControl_Connect();
  void sckControl_DataArrival(std::int32_t bytesTotal);
  void sckControl_Close();

 private:
  AppState& state_;
  Platform& platform_;
  ErrorReport& errors_;
  WireProtocol& wire_;
  DialogueLog& log_;
};

}  // namespace verlume
