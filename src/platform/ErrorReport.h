#pragma once

#include "platform/RuntimeError.h"

#include <QObject>
#include <functional>
#include <type_traits>
#include <utility>

/// Where a failure goes that nothing handles: the run-time error report. Used on the interface thread.
class ErrorReport
{
public:
    ErrorReport() = default;
    virtual ~ErrorReport() = default;
    ErrorReport(const ErrorReport&) = delete;
    ErrorReport& operator=(const ErrorReport&) = delete;

    /// Tells the user what failed and why; returns when the user has answered.
    virtual void report(const QString& text) = 0;

    /// Runs `action`; a failure is reported. True when it ran to its end.
    template <typename Action> bool guard(Action&& action)
    {
        try {
            std::forward<Action>(action)();
            return true;
        } catch (const RuntimeError& error) {
            report(error.text());
        } catch (const std::exception& error) {
            report(QString::fromLocal8Bit(error.what()));
        }
        return false;
    }
};

/// Connects as QObject::connect does, but no exception leaves the handler for the event loop: it is reported
/// instead. `handler` is a member function of `receiver` that takes the signal's arguments or none.
template <typename Sender, typename Signal, typename Receiver, typename Handler>
QMetaObject::Connection connectGuarded(
    const Sender* sender, Signal signal, Receiver* receiver, Handler handler, ErrorReport& errors)
{
    return QObject::connect(
        sender, signal, receiver, [receiver, handler, &errors](auto&&... arguments) -> void {
            errors.guard([&] {
                if constexpr (std::is_invocable_v<Handler, Receiver*, decltype(arguments)...>) {
                    std::invoke(handler, receiver, arguments...);
                } else {
                    std::invoke(handler, receiver);
                }
            });
        });
}
