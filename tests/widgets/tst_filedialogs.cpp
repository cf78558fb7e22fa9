#include "support/TestMain.h"
#include "widgets/FileDialogs.h"

#include <QApplication>
#include <QDeadlineTimer>
#include <QFile>
#include <QFileDialog>
#include <QHeaderView>
#include <QHelpEvent>
#include <QListView>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QToolTip>
#include <QTreeView>

class FileDialogsTest : public TestCase
{
    Q_OBJECT

private slots:
    void aFilterBecomesNameFilters_data()
    {
        QTest::addColumn<QString>("filter");
        QTest::addColumn<bool>("executables");
        QTest::addColumn<bool>("anyName");
        QTest::addColumn<QString>("nameFilters");
        const auto row = [](const char* name, const char* filter, bool executables, bool anyName,
                             const char* expected) {
            QTest::newRow(name) << QString::fromLatin1(filter) << executables << anyName
                                << QString::fromLatin1(expected);
        };
        row("one pattern", "Wave Files (*.wav)|*.wav", false, false, "Wave Files (*.wav)");
        row("several patterns", "Image Files (*.gif;*.jpg;*.jpeg)|*.gif;*.jpg;*.jpeg", false, false,
            "Image Files (*.gif *.jpg *.jpeg)");
        row("programs carry no extension", "Executable Files (*.exe;*.bat;)|*.exe;*.bat", true, false,
            "Executable Files (*.exe *.bat)+All Files (*)");
        row("files without the extension too", "Backup Files (*.abk)|*.abk", false, true,
            "Backup Files (*.abk)+All Files (*)");
    }

    void aFilterBecomesNameFilters()
    {
        QFETCH(const QString, filter);
        QFETCH(const bool, executables);
        QFETCH(const bool, anyName);
        FileDialogRequest request;
        request.filter = filter;
        request.executables = executables;
        request.anyName = anyName;
        QTEST(nameFilters(request).join(u'+'), "nameFilters");
    }

    void programsAreListedAtOnce()
    {
        const QTemporaryDir folder;
        QFile program(folder.filePath(QStringLiteral("backup-script")));
        QVERIFY(program.open(QIODevice::WriteOnly));
        FileDialogRequest request;
        request.filter = QStringLiteral("Executable Files (*.exe;*.bat;)|*.exe;*.bat");
        request.initialFolder = folder.path();
        request.executables = true;
        QString filter;
        QStringList listed;
        QTimer look;
        connect(&look, &QTimer::timeout, this, [&] {
            auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            if (dialog == nullptr) {
                return;
            }
            filter = dialog->selectedNameFilter();
            const auto* list = dialog->findChild<QListView*>(QStringLiteral("listView"));
            const int rows = list->model()->rowCount(list->rootIndex());
            for (int row = 0; row < rows; ++row) {
                listed.append(list->model()->index(row, 0, list->rootIndex()).data().toString());
            }
            if (rows > 0) {
                dialog->reject();
            }
        });
        look.start(10);
        ScreenFileDialogs().open(nullptr, request);
        QCOMPARE(filter, QStringLiteral("All Files (*)"));
        QCOMPARE(listed, QStringList(QStringLiteral("backup-script")));
    }

    void sizesAndDatesAreShownWhole()
    {
        const QTemporaryDir folder;
        QFile backup(
            folder.filePath(QStringLiteral("backup of a long, long, long, long, long, long, long day")));
        QVERIFY(backup.open(QIODevice::WriteOnly) && backup.resize(150 * 1024));
        FileDialogRequest request;
        request.filter = QStringLiteral("All (*)|*");
        request.initialFolder = folder.path();
        QList<int> missing;
        int beyond = 1;
        QTimer look;
        const QDeadlineTimer end(5000);
        connect(&look, &QTimer::timeout, this, [&] {
            auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            const auto* list =
                dialog == nullptr ? nullptr : dialog->findChild<QTreeView*>(QStringLiteral("treeView"));
            if (list == nullptr || list->model()->rowCount(list->rootIndex()) == 0) {
                return;
            }
            missing.clear();
            for (int column = 1; column < list->header()->count(); ++column) {
                const QModelIndex cell = list->model()->index(0, column, list->rootIndex());
                missing.append(std::max(0, list->sizeHintForIndex(cell).width() - list->columnWidth(column)));
            }
            beyond = std::max(0, list->header()->length() - list->viewport()->width());
            // The columns follow what was read a little later.
            if ((missing.count(0) == missing.size() && beyond == 0) || end.hasExpired()) {
                dialog->reject();
            }
        });
        look.start(10);
        ScreenFileDialogs().open(nullptr, request);
        QCOMPARE(missing, QList<int>({0, 0, 0}));
        QCOMPARE(beyond, 0);
    }

    void aFolderOfTheUserIsWhereADialogBeginsAndElseTheHome()
    {
        const QTemporaryDir home;
        const QByteArray homeBefore = qgetenv("HOME");
        qputenv("HOME", QFile::encodeName(home.path()));
        const QString without = userFolder(QStandardPaths::PicturesLocation);
        const QString pictures = QStandardPaths::writableLocation(QStandardPaths::PicturesLocation);
        QVERIFY(QDir().mkpath(pictures));
        const QString with = userFolder(QStandardPaths::PicturesLocation);
        qputenv("HOME", homeBefore);
        QCOMPARE(without, home.path());
        QCOMPARE(with, pictures);
        QVERIFY(pictures.startsWith(home.path()));
    }

    void theEndingFollowsTheChosenFilter_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("chosen");
        QTest::addColumn<QString>("expected");
        const auto row = [](const char* what, const char* name, const char* chosen, const char* expected) {
            QTest::newRow(what) << QString::fromLatin1(name) << QString::fromLatin1(chosen)
                                << QString::fromLatin1(expected);
        };
        row("of another filter", "tasks.ics", "CSV Files (*.csv)", "tasks.csv");
        row("of this one", "tasks.csv", "CSV Files (*.csv)", "tasks.csv");
        row("in capitals", "tasks.ICS", "CSV Files (*.csv)", "tasks.csv");
        row("the user's own", "tasks.backup", "CSV Files (*.csv)", "tasks.backup");
        row("none", "tasks", "CSV Files (*.csv)", "tasks");
        row("the first of several", "tasks.ics", "Text Files (*.txt *.text)", "tasks.txt");
    }

    void theEndingFollowsTheChosenFilter()
    {
        QFETCH(const QString, name);
        QFETCH(const QString, chosen);
        const QStringList filters{QStringLiteral("iCalendar Files (*.ics)"),
            QStringLiteral("CSV Files (*.csv)"), QStringLiteral("Text Files (*.txt *.text)")};
        QTEST(endingAsChosen(name, chosen, filters), "expected");
    }

    void aNameWithoutAnEndingGetsItBeforeTheDialogAsksAboutTheFile()
    {
        const QTemporaryDir folder;
        QFile file(folder.filePath(QStringLiteral("mine.pdf")));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.close();
        FileDialogRequest request;
        request.filter = QStringLiteral("PDF Files (*.pdf)|*.pdf");
        request.initialFolder = folder.path();
        request.fileName = QStringLiteral("mine");
        request.promptBeforeOverwriting = request.endsAsChosen = true;
        QString question;
        QTimer look;
        connect(&look, &QTimer::timeout, this, [&] {
            QWidget* open = QApplication::activeModalWidget();
            if (auto* box = qobject_cast<QMessageBox*>(open)) {
                question = box->text().remove(QChar(0x200B));
                box->button(QMessageBox::Yes)->click();
            } else if (auto* dialog = qobject_cast<QFileDialog*>(open)) {
                QMetaObject::invokeMethod(dialog, "accept", Qt::QueuedConnection);
            }
        });
        look.start(10);
        QCOMPARE(ScreenFileDialogs().save(nullptr, request), file.fileName());
        QVERIFY2(question.contains(QLatin1String("mine.pdf")), qPrintable(question));
    }

    void aFileNameInAQuestionOfTheDialogIsPlainText()
    {
        const QTemporaryDir folder;
        const QString name = QStringLiteral("<b>x<b>.abk");
        QFile file(folder.filePath(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.close();
        FileDialogRequest request;
        request.filter = QStringLiteral("All (*)|*");
        request.initialFolder = folder.path();
        request.fileName = name;
        request.promptBeforeOverwriting = true;

        QString question;
        Qt::TextFormat format = Qt::AutoText;
        QTimer look;
        connect(&look, &QTimer::timeout, this, [&] {
            QWidget* open = QApplication::activeModalWidget();
            if (auto* box = qobject_cast<QMessageBox*>(open)) {
                // A long path can be broken anywhere.
                question = box->text().remove(QChar(0x200B));
                format = box->textFormat();
                box->reject();
            } else if (auto* dialog = qobject_cast<QFileDialog*>(open)) {
                if (question.isEmpty()) {
                    // Not from within: no timer runs again while its own slot does.
                    QMetaObject::invokeMethod(dialog, "accept", Qt::QueuedConnection);
                } else {
                    dialog->reject();
                }
            }
        });
        look.start(10);
        QCOMPARE(ScreenFileDialogs().save(nullptr, request), QString());
        QVERIFY2(question.contains(name), qPrintable(question));
        QCOMPARE(format, Qt::PlainText);
    }

    void aFolderInAToolTipOfTheDialogIsPlainText()
    {
        const QTemporaryDir place;
        QVERIFY(QDir(place.path()).mkdir(QStringLiteral("<b>x<b>")));
        const QString folder = place.filePath(QStringLiteral("<b>x<b>"));
        FileDialogRequest request;
        request.filter = QStringLiteral("All (*)|*");

        QString tip;
        QTimer::singleShot(0, this, [&] {
            auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            QVERIFY(dialog != nullptr);
            dialog->setSidebarUrls({QUrl::fromLocalFile(folder)});
            auto* places = dialog->findChild<QListView*>(QStringLiteral("sidebar"));
            const QPoint first = places->visualRect(places->model()->index(0, 0)).center();
            QHelpEvent hovering(QEvent::ToolTip, first, places->viewport()->mapToGlobal(first));
            QApplication::sendEvent(places->viewport(), &hovering);
            tip = QToolTip::text().remove(QChar(0x200B));
            dialog->reject();
        });
        QCOMPARE(ScreenFileDialogs().open(nullptr, request), QString());
        QVERIFY2(tip.contains(QStringLiteral("/&lt;b&gt;x&lt;b&gt;")), qPrintable(tip));
    }
};

AMBERTASK_TEST_MAIN(FileDialogsTest)
#include "tst_filedialogs.moc"
