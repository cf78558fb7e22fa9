#pragma once

#include "data/DayCopy.h"
#include "data/KeptCopies.h"
#include "support/FileContent.h"
#include "support/TestDatabase.h"

/// A data file whose first change of a day is preceded by a copy.
struct CopiesUnderTest {
    CopiesUnderTest() { engine.copies = &day; }

    /// The engine of a process of its own on the same file.
    KeptCopies kept() const { return KeptCopies(engine); }
    QString folder() const { return database.folder() + QStringLiteral("/copies"); }
    /// The names of all that lies among the copies, hidden files included.
    QStringList names() const
    {
        return QDir(folder()).entryList(
            QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    }
    QByteArray content() const { return contentOf(database.dataFile()); }
    QByteArray contentOfCopy(const QString& name) const { return contentOf(folder() + u'/' + name); }
    /// One of the program's own changes.
    void change() const
    {
        ClsTask task(engine);
        task.setTaskName(QStringLiteral("new"));
        task.setCategoryId(1);
        task.Add();
    }

    TestDatabase database;
    DatabaseEngine engine = database.engine();
    QStringList failures;
    DayCopy day{engine, [this](const QString& why) {
                    failures.append(why);
                }};
};
