#include "tests/system/NotificationServer.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QFile>
#include <QObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QVariantMap>

namespace
{

const QString Service = QStringLiteral("org.freedesktop.Notifications");
const QString Path = QStringLiteral("/org/freedesktop/Notifications");

// It starts no service by itself, whatever is installed.
constexpr char BusConfiguration[] =
    "<!DOCTYPE busconfig PUBLIC '-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN'"
    " 'http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd'>"
    "<busconfig><type>session</type><listen>unix:dir=%1</listen>"
    "<policy context='default'><allow send_destination='*' eavesdrop='true'/><allow eavesdrop='true'/>"
    "<allow own='*'/></policy></busconfig>";

/// The object on the bus.
class Notifying : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Notifications")

public:
    QStringList capabilities;
    QList<NotificationServer::Shown> shown;
    QList<unsigned> closed;

public slots:
    QStringList GetCapabilities() { return capabilities; }

    uint Notify(const QString& /*program*/, uint replaced, const QString& /*icon*/, const QString& title,
        const QString& text, const QStringList& actions, const QVariantMap& hints, int milliseconds)
    {
        const uint id = replaced != 0 ? replaced : ++m_last;
        shown.append({id, replaced, title, text, actions,
            hints.value(QStringLiteral("urgency")).value<uchar>(), milliseconds});
        return id;
    }

    void CloseNotification(uint id)
    {
        closed.append(id);
        emit NotificationClosed(id, 3);
    }

signals:
    void ActionInvoked(uint id, const QString& key);
    void ActivationToken(uint id, const QString& token);
    void NotificationClosed(uint id, uint reason);

private:
    uint m_last = 0;
};

} // namespace

struct NotificationServer::Private {
    QTemporaryDir folder;
    QProcess daemon;
    Notifying object;
    QString address;

    QDBusConnection bus() const { return QDBusConnection(QStringLiteral("server")); }
};

NotificationServer::NotificationServer() : m(std::make_unique<Private>())
{
    const QString path = m->folder.filePath(QStringLiteral("bus.conf"));
    QFile configuration(path);
    if (configuration.open(QIODevice::WriteOnly)) {
        configuration.write(QString::fromLatin1(BusConfiguration).arg(m->folder.path()).toUtf8());
        configuration.close();
    }
    m->daemon.start(QStringLiteral("dbus-daemon"),
        {QStringLiteral("--config-file=") + path, QStringLiteral("--nofork"), QStringLiteral("--nopidfile"),
            QStringLiteral("--print-address")});
    m->daemon.waitForReadyRead();
    m->address = QString::fromUtf8(m->daemon.readLine()).trimmed();
    qputenv("DBUS_SESSION_BUS_ADDRESS", m->address.toUtf8());
    QDBusConnection::connectToBus(m->address, QStringLiteral("server"));
    m->bus().registerObject(
        Path, &m->object, QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllSignals);
}

NotificationServer::~NotificationServer()
{
    QDBusConnection::disconnectFromBus(QStringLiteral("server"));
    m->daemon.terminate();
    m->daemon.waitForFinished();
}

void NotificationServer::serve(const QStringList& capabilities)
{
    m->object.capabilities = capabilities;
    m->object.shown.clear();
    m->object.closed.clear();
    m->bus().registerService(Service);
}

void NotificationServer::leave()
{
    m->bus().unregisterService(Service);
}

QList<NotificationServer::Shown> NotificationServer::shown() const
{
    return m->object.shown;
}

QList<unsigned> NotificationServer::closed() const
{
    return m->object.closed;
}

void NotificationServer::choose(unsigned id, const QString& key) const
{
    emit m->object.ActionInvoked(id, key);
}

void NotificationServer::giveToken(unsigned id, const QString& token) const
{
    emit m->object.ActivationToken(id, token);
}

void NotificationServer::close(unsigned id) const
{
    emit m->object.NotificationClosed(id, 2);
}

#include "NotificationServer.moc"
