#pragma once

#include "support/FileContent.h"
#include "system/FormerCopies.h"
#include "system/Installation.h"
#include "system/ProgramFiles.h"
#include "system/ProgramFolder.h"

#include <QCryptographicHash>
#include <QTemporaryDir>

/// A program below a prefix of its own, what it ships, and the home of a user.
class InstalledProgram
{
public:
    InstalledProgram()
    {
        writeText(filePath("usr/bin/Ambertask"), "the program");
        ship("data.dat", "the data as shipped");
        ship("Skins/Aqua.skf", "aqua 1");
        ship("sounds/bell.wav", "bell 1");
        ship("help.chm", "help 1");
    }

    QString root() const { return m_place.path(); }
    QString filePath(const char* name) const { return m_place.filePath(QString::fromUtf8(name)); }
    QString userData() const { return filePath("home/.local/share"); }
    QString folder() const { return userData() + QStringLiteral("/Ambertask"); }
    QString inFolder(const char* name) const { return folder() + u'/' + QString::fromUtf8(name); }

    Installation installation() const
    {
        return {
            filePath("usr/bin/Ambertask"), filePath("usr/lib"), filePath("usr/share/ambertask"), QString()};
    }
    ProgramFiles files() const { return ProgramFiles(folder(), installation().shippedFolder); }

    /// From now on the installed version ships this.
    void ship(const char* name, const QByteArray& content) const { writeText(shippedPath(name), content); }
    /// From now on the installed version ships no such file.
    void drop(const char* name) const { QVERIFY(QFile::remove(shippedPath(name))); }
    QString shippedPath(const char* name) const
    {
        return filePath("usr/share/ambertask/") + QString::fromUtf8(name);
    }

    /// What a start of the program does with its folder.
    void start() const
    {
        makeProgramFolder(installation(), folder());
        pointToExecutable(installation(), folder());
        removeFormerCopies(installation(), folder());
    }
    /// The folder as version 1.1.0 made it: with copies of what is shipped now, and a list of them.
    void startAsBefore() const
    {
        start();
        QVERIFY(QDir().mkpath(inFolder("custom icons")));
        QByteArray list;
        for (const char* name : {"Skins/Aqua.skf", "help.chm", "sounds/bell.wav"}) {
            writeText(inFolder(name), contentOf(shippedPath(name)));
            list += sumOf(contentOf(shippedPath(name))) + "  " + name + '\n';
        }
        writeText(inFolder("shipped.sha256"), list);
    }

    static QByteArray sumOf(const QByteArray& content)
    {
        return QCryptographicHash::hash(content, QCryptographicHash::Sha256).toHex();
    }
    void writeOwn(const char* name, const QByteArray& content) const { writeText(inFolder(name), content); }
    QByteArray read(const char* name) const { return contentOf(inFolder(name)); }
    static QStringList namesIn(const QString& path)
    {
        return QDir(path).entryList(
            QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
    }
    /// Sorted and with a blank between them.
    QString namesInFolder() const { return namesIn(folder()).join(u' '); }

private:
    QTemporaryDir m_place;
};
