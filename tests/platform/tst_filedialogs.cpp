#include "platform/FileDialogs.h"
#include "support/TestMain.h"

#include <QTest>

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
};

AMBERTASK_TEST_MAIN(FileDialogsTest)
#include "tst_filedialogs.moc"
