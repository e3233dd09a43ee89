// Events of the platform and the procedures that handle them.
#pragma once

namespace verlume {

// Binds an event to a procedure. The procedures catch their own failures. The object must not be
// destroyed while the event can be raised.
template <class Event, class Object, class Method>
void On(Event& event, Object& object, Method procedure) {
  event = [&object, procedure](auto&&... arguments) { (object.*procedure)(arguments...); };
}

}  // namespace verlume
