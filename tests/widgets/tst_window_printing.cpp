#include "support/TestMain.h"
#include "widgets/printing/WindowPrinting.h"

#include <QApplication>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFile>
#include <QLineEdit>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

class WindowPrintingTest : public TestCase
{
    Q_OBJECT

private slots:
    void aFileNameInAQuestionOfTheDialogIsPlainText()
    {
        const QTemporaryDir folder;
        const QString name = folder.filePath(QStringLiteral("<b>x<b>.pdf"));
        QFile file(name);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.close();

        QString question;
        Qt::TextFormat format = Qt::AutoText;
        QTimer look;
        connect(&look, &QTimer::timeout, this, [&] {
            QWidget* open = QApplication::activeModalWidget();
            if (auto* box = qobject_cast<QMessageBox*>(open)) {
                question = box->text();
                format = box->textFormat();
                box->button(QMessageBox::No)->click();
            } else if (auto* dialog = qobject_cast<QPrintDialog*>(open)) {
                if (question.isEmpty()) {
                    auto* printers = dialog->findChild<QComboBox*>(QStringLiteral("printers"));
                    const int toFile = printers->count() - 1;
                    printers->setCurrentIndex(toFile);
                    dialog->findChild<QLineEdit*>(QStringLiteral("filename"))->setText(name);
                    // Not from within: no timer runs again while its own slot does.
                    auto* buttons = dialog->findChild<QDialogButtonBox*>();
                    QMetaObject::invokeMethod(
                        buttons->button(QDialogButtonBox::Ok), "click", Qt::QueuedConnection);
                } else {
                    dialog->reject();
                }
            }
        });
        look.start(10);
        QWidget window;
        const PrintResult result =
            printThroughDialog(window, {QStringLiteral("Tasks"), QPageLayout(), 3, 0, {}});
        QCOMPARE(result.kind, PrintResult::Kind::Cancelled);
        QVERIFY2(question.contains(name), qPrintable(question));
        QCOMPARE(format, Qt::PlainText);
    }
};

AMBERTASK_TEST_MAIN(WindowPrintingTest)
#include "tst_window_printing.moc"
