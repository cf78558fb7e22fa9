// Preloaded into a program (LD_PRELOAD): ends it as soon as its window "frmMain" has been painted and
// writes to the file descriptor AMBERTASK_FIRST_PAINT what that took: CPU time in seconds, proportional and
// peak resident memory in kB, number of loaded libraries for sound, printing, help and network.
#include <QCoreApplication>
#include <QEvent>
#include <QFile>
#include <QSet>
#include <QWidget>
#include <ctime>
#include <unistd.h>

namespace
{

QByteArray lineOf(const QString& path, const QByteArray& name)
{
    QFile file(path);
    if (file.open(QIODevice::ReadOnly)) {
        for (const QByteArray& line : file.readAll().split('\n')) {
            if (line.startsWith(name)) {
                return line.mid(name.size()).replace("kB", "").trimmed();
            }
        }
    }
    return "0";
}

int needlessLibraries()
{
    QSet<QByteArray> found;
    QFile maps(QStringLiteral("/proc/self/maps"));
    if (maps.open(QIODevice::ReadOnly)) {
        for (const QByteArray& line : maps.readAll().split('\n')) {
            const QByteArray library = line.mid(line.lastIndexOf('/') + 1);
            for (const char* name : {"Multimedia", "PrintSupport", "mspack", "Qt6Network", "ambertask_"}) {
                if (library.contains(name)) {
                    found.insert(library);
                }
            }
        }
    }
    return static_cast<int>(found.size());
}

class Probe final : public QObject
{
public:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Paint && watched->objectName() == QLatin1String("frmMain")) {
            qApp->removeEventFilter(this);
            // The whole window is painted and sent to the screen at once; nothing happens between that and
            // this.
            QCoreApplication::postEvent(this, new QEvent(QEvent::User), Qt::HighEventPriority);
        }
        return false;
    }
    bool event(QEvent* event) override
    {
        if (event->type() == QEvent::User) {
            tell();
        }
        return QObject::event(event);
    }

private:
    void tell()
    {
        timespec cpu{};
        clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &cpu);
        const double seconds = static_cast<double>(cpu.tv_sec) + static_cast<double>(cpu.tv_nsec) * 1e-9;
        const QByteArray told = QByteArray::number(seconds, 'f', 6) + ' '
            + lineOf(QStringLiteral("/proc/self/smaps_rollup"), "Pss:") + ' '
            + lineOf(QStringLiteral("/proc/self/status"), "VmHWM:") + ' '
            + QByteArray::number(needlessLibraries()) + '\n';
        const int descriptor = qEnvironmentVariableIntValue("AMBERTASK_FIRST_PAINT");
        _exit(write(descriptor, told.constData(), static_cast<std::size_t>(told.size())) == told.size() ? 0
                                                                                                        : 1);
    }
};

void watch()
{
    static Probe probe;
    qApp->installEventFilter(&probe);
}

[[maybe_unused]] const bool watching = [] {
    qAddPreRoutine(watch);
    return true;
}();

} // namespace
