#pragma once

#include "support/TestServices.h"
#include "system/ErrorReport.h"
#include "widgets/FileDialogs.h"
#include "widgets/MessageBoxes.h"

#include <QStringList>

/// A user who confirms every question, chooses the same file every time, and goes on after every error.
class AgreeableUser final : public MessageBoxes, public FileDialogs, public ErrorReport
{
public:
    void tell(QWidget* /*owner*/, Icon /*icon*/, const QString& text) override { told.append(text); }
    bool ask(QWidget* /*owner*/, const QString& question) override
    {
        asked.append(question);
        return true;
    }
    Unsaved askAboutUnsaved(QWidget* /*owner*/, const QString& text) override
    {
        asked.append(text);
        return Unsaved::Save;
    }
    Times askWhichTimes(QWidget* /*owner*/, const QString& question) override
    {
        asked.append(question);
        return Times::All;
    }
    QString open(QWidget* /*owner*/, const FileDialogRequest& /*request*/) override { return file; }
    QString save(QWidget* /*owner*/, const FileDialogRequest& /*request*/) override { return file; }
    void report(const QString& text) override { errors.append(text); }

    QString file;
    QStringList told;
    QStringList asked;
    QStringList errors;
};

/// Keeps away what the offscreen platform says of every window that is shown: thousands are.
class QuietPlatform
{
public:
    QuietPlatform() { s_others = qInstallMessageHandler(handle); }
    ~QuietPlatform() { qInstallMessageHandler(s_others); }
    QuietPlatform(const QuietPlatform&) = delete;
    QuietPlatform& operator=(const QuietPlatform&) = delete;

private:
    static void handle(QtMsgType type, const QMessageLogContext& context, const QString& text)
    {
        if (!text.startsWith(QLatin1String("This plugin does not support"))) {
            s_others(type, context, text);
        }
    }
    static inline QtMessageHandler s_others = nullptr;
};

/// What the forms ask of the program, with such a user before them.
struct AgreeableServices : TestServices {
    QuietPlatform quiet;
    AgreeableUser user;
    FormServices faced{database.engine(), database.clock(), user, user, user, shell, checkerTimer, images,
        [] { return false; }, files, undo};
};
