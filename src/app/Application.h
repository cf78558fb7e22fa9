#pragma once

#include <QApplication>

/// The application object. A request of the session to end the program becomes a signal, and no exception
/// of a handler reaches Qt's event loop.
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
};
