#pragma once

#include "widgets/HeldKeys.h"

#include <QApplication>

class QKeyEvent;

/// The application object. A request of the session to end the program becomes a signal, no exception of a
/// handler reaches Qt's event loop, and presses that a held key repeats are told as such.
class Application : public QApplication
{
    Q_OBJECT

public:
    using QApplication::QApplication;

    bool notify(QObject* receiver, QEvent* event) override;
    bool event(QEvent* event) override;

signals:
    /// The session or the system asks the program to end.
    void endRequested();
    /// An exception left an event handler that had no guard of its own.
    void handlerFailed(const QString& text);

private:
    /// Delivers `press` as the repetition that it is.
    bool notifyRepeated(QObject* receiver, QKeyEvent& press);

    HeldKeys m_heldKeys;
};
