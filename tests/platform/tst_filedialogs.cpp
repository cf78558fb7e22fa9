#include "platform/FileDialogs.h"
#include "support/TestMain.h"

#include <QApplication>
#include <QFile>
#include <QFileDialog>
#include <QHelpEvent>
#include <QListView>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QToolTip>

class FileDialogsTest : public TestCase
{
    Q_OBJECT

private slots:
    void aFilterEntryBecomesANameFilter()
    {
        FileDialogRequest request;
        request.filter = QStringLiteral("Wave Files (*.wav)|*.wav");
        QCOMPARE(nameFilters(request), QStringList{QStringLiteral("Wave Files (*.wav)")});
    }

    void patternsAreSeparatedBySemicolons()
    {
        FileDialogRequest request;
        request.filter = QStringLiteral("Image Files (*.gif;*.jpg;*.jpeg)|*.gif;*.jpg;*.jpeg");
        QCOMPARE(nameFilters(request), QStringList{QStringLiteral("Image Files (*.gif *.jpg *.jpeg)")});
    }

    void programsMayHaveAnyNameWhereTheyCarryNoExtension()
    {
        FileDialogRequest request;
        request.filter = QStringLiteral("Executable Files (*.exe;*.bat;)|*.exe;*.bat");
        request.executables = true;
        QCOMPARE(nameFilters(request),
            QStringList({QStringLiteral("Executable Files (*.exe *.bat)"), QStringLiteral("All Files (*)")}));
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
