#include "platform/FileDialogs.h"
#include "support/TestMain.h"

#include <QApplication>
#include <QFile>
#include <QFileDialog>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

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
                question = box->text();
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
};

AMBERTASK_TEST_MAIN(FileDialogsTest)
#include "tst_filedialogs.moc"
