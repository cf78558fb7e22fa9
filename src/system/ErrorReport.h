#pragma once

#include "system/Progress.h"

#include <QObject>
#include <functional>
#include <type_traits>
#include <utility>

/// The run-time error report, which shows failures that nothing else handles. Interface thread only.
class ErrorReport
{
public:
    ErrorReport() = default;
    virtual ~ErrorReport() = default;
    ErrorReport(const ErrorReport&) = delete;
    ErrorReport& operator=(const ErrorReport&) = delete;

    /// Tells the user what failed and why; returns when the user has answered.
    virtual void report(const QString& text) = 0;

    /// Runs `action` and reports a failure; Cancelled is not a failure. True when `action` ran to its end.
    template <typename Action> bool guard(Action&& action)
    {
        try {
            std::forward<Action>(action)();
            return true;
        } catch (const Cancelled&) {
            return false;
        } catch (const RuntimeError& error) {
            report(error.text());
        } catch (const std::exception& error) {
            report(QString::fromLocal8Bit(error.what()));
        }
        return false;
    }
};

/// Calls a member function of `receiver` with the arguments, or with none when it takes none.
template <typename Receiver, typename Handler, typename... Arguments>
void callHandler(Receiver* receiver, Handler handler, Arguments&&... arguments)
{
    if constexpr (std::is_invocable_v<Handler, Receiver*, Arguments...>) {
        std::invoke(handler, receiver, std::forward<Arguments>(arguments)...);
    } else {
        std::invoke(handler, receiver);
    }
}

/// Connects as QObject::connect does, but reports an exception instead of letting it reach the event loop.
/// `handler` is a member function of `receiver` that takes the signal's arguments or none.
template <typename Sender, typename Signal, typename Receiver, typename Handler>
QMetaObject::Connection connectGuarded(
    const Sender* sender, Signal signal, Receiver* receiver, Handler handler, ErrorReport& errors)
{
    return QObject::connect(
        sender, signal, receiver, [receiver, handler, &errors](auto&&... arguments) -> void {
            errors.guard([&] { callHandler(receiver, handler, arguments...); });
        });
}
