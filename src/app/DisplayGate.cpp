#include "app/DisplayGate.h"

#include "system/Language.h"

#include <QByteArray>
#include <QList>
#include <QLocale>
#include <QTranslator>
#include <cstdio>
#include <cstdlib>
#include <utility>

namespace
{

struct Message {
    QtMsgType type;
    const char* category;
    QString text;
};

// Static, because a message handler can reach nothing else.
std::function<void()> leaveProcess;
QList<Message> gathered;

/// Before there is an application object no translator can be installed.
QString inTheUsersLanguage(const char* text)
{
    QTranslator catalogue;
    const QString name = catalogueFor(QLocale::system().uiLanguages(), Language::shipped());
    const QString translated = !name.isEmpty() && catalogue.load(Language::fileOf(name))
        ? catalogue.translate("DisplayGate", text)
        : QString();
    return translated.isEmpty() ? QString::fromUtf8(text) : translated;
}

void gather(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    if (type != QtFatalMsg) {
        gathered.append({type, context.category, text});
        return;
    }
    const QString sentence = inTheUsersLanguage(QT_TRANSLATE_NOOP(
        "DisplayGate", "Ambertask needs a graphical desktop, and none could be reached from here."));
    std::fprintf(stderr, "%s\n", sentence.toLocal8Bit().constData());
    leaveProcess();
    std::_Exit(EXIT_FAILURE);
}

} // namespace

DisplayGate::DisplayGate(std::function<void()> leave)
{
    leaveProcess = std::move(leave);
    qInstallMessageHandler(gather);
}

DisplayGate::~DisplayGate()
{
    qInstallMessageHandler(nullptr);
    for (const Message& message : std::exchange(gathered, {})) {
        qt_message_output(
            message.type, QMessageLogContext(nullptr, 0, nullptr, message.category), message.text);
    }
}
