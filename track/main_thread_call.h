#pragma once

#include <functional>
#include <stop_token>

class QObject;

namespace velquon {

/// Has something performed by the event loop of an object's thread and waits until it is done.
/// \param receiver the object; it has to be there until this returns
/// \param given_up ends the waiting; what is still to be performed then stays in the event loop
void perform_on_main_thread(QObject* receiver, const std::function<void()>& call,
                            const std::stop_token& given_up);

}  // namespace velquon
