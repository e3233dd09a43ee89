// The state of the connection, stored as three flags of AppState.
#pragma once

#include "platform/platform.h"
#include "shell/app_state.h"

namespace verlume {

enum class ConnectionState { Idle, Waiting, Calling, Connected };

ConnectionState StateOf(const AppState& state);

// Sets the flags. Leaving a state needs nothing else.
void EnterState(AppState& state, ConnectionState entered);

// Goes back to Idle from any state: clears the flags, lblLocalPort, lblRemoteIP, lblRemotePort and
// lblWaiting, turns the lamp red and closes the socket, which still sends what waits. What the peer
// has said and the dialogue pane does not show yet is dropped. The router gets its port back.
void ResetConnection(AppState& state, Platform& platform);

// The bar no longer asks whether to go on with the peer. Does nothing if it does not.
void EndStop(AppState& state, Platform& platform);

}  // namespace verlume
