#include "support/TestMain.h"

#include <QProcess>
#include <QTest>

/// The sanitizers of this build end a process with a failure, with the options that every test runs with.
class TestSanitizers : public TestCase
{
    Q_OBJECT

private slots:
    void aMistakeFailsAndIsNamed_data()
    {
        QTest::addColumn<QString>("mistake");
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<QByteArray>("where");
        QTest::newRow("leak") << "leak" << QByteArray("LeakSanitizer: detected memory leaks")
                              << QByteArray("loseMemory");
        QTest::newRow("beyond") << "beyond" << QByteArray("AddressSanitizer: heap-buffer-overflow")
                                << QByteArray("readBeyond");
        QTest::newRow("overflow") << "overflow" << QByteArray("runtime error: signed integer overflow")
                                  << QByteArray("wrong_on_purpose.cpp");
    }

    void aMistakeFailsAndIsNamed()
    {
        QFETCH(const QString, mistake);
        QFETCH(const QByteArray, name);
        QFETCH(const QByteArray, where);
        QProcess process;
        process.start(QStringLiteral(AMBERTASK_WRONG_ON_PURPOSE), {mistake});
        QVERIFY(process.waitForFinished());
        const QByteArray said = process.readAllStandardError();
        QVERIFY2(process.exitStatus() == QProcess::CrashExit || process.exitCode() != 0, said.constData());
        QVERIFY2(said.contains(name), said.constData());
        QVERIFY2(said.contains(where), said.constData());
    }

    void noMistakeIsNoFailure()
    {
        QProcess process;
        process.start(QStringLiteral(AMBERTASK_WRONG_ON_PURPOSE), {});
        QVERIFY(process.waitForFinished());
        QCOMPARE(process.exitCode(), 0);
        QCOMPARE(process.readAllStandardError(), QByteArray());
    }
};

AMBERTASK_TEST_MAIN(TestSanitizers)
#include "tst_sanitizers.moc"
