#pragma once

#include "platform/Installation.h"
#include "platform/ProgramFolderTemplate.h"

#include <QCryptographicHash>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QMap>
#include <QTemporaryDir>
#include <QTest>

/// A program below a prefix of its own, what it ships, and the home of a user.
class InstalledProgram
{
public:
    InstalledProgram()
    {
        QDir().mkpath(filePath("usr/share/ambertask/custom icons"));
        write(filePath("usr/bin/Ambertask"), "the program");
        write(filePath("usr/share/ambertask/data.dat"), "the data as shipped");
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

    /// From now on the installed version ships this.
    void ship(const char* name, const QByteArray& content)
    {
        m_shipped[QByteArray(name)] = content;
        write(filePath("usr/share/ambertask/") + QString::fromUtf8(name), content);
        writeList();
    }
    /// From now on the installed version ships no such file.
    void drop(const char* name)
    {
        m_shipped.remove(QByteArray(name));
        QFile::remove(filePath("usr/share/ambertask/") + QString::fromUtf8(name));
        writeList();
    }

    /// What a start of the program does with its folder.
    void start() const
    {
        makeProgramFolder(installation(), folder());
        refreshProgramFolder(installation(), folder());
    }

    void write(const QString& path, const QByteArray& content) const
    {
        QVERIFY(QDir().mkpath(QFileInfo(path).absolutePath()));
        QFile file(path);
        QVERIFY2(file.open(QIODevice::WriteOnly), qPrintable(path));
        QCOMPARE(file.write(content), content.size());
    }
    QByteArray read(const char* name) const
    {
        QFile file(inFolder(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("not there");
    }
    QStringList namesIn(const QString& path) const
    {
        return QDir(path).entryList(
            QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
    }

private:
    void writeList() const
    {
        QByteArray list;
        for (auto file = m_shipped.cbegin(); file != m_shipped.cend(); ++file) {
            list += QCryptographicHash::hash(file.value(), QCryptographicHash::Sha256).toHex() + "  "
                + file.key() + '\n';
        }
        write(filePath("usr/share/ambertask/shipped.sha256"), list);
    }

    QTemporaryDir m_place;
    QMap<QByteArray, QByteArray> m_shipped;
};
