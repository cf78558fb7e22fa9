#include "support/TestMain.h"
#include "system/Language.h"

#include <QDir>
#include <QProcess>
#include <QScopeGuard>
#include <QTest>

class LanguageTest : public TestCase
{
    Q_OBJECT

private slots:
    void theCatalogueFollowsWhatTheUserReads_data()
    {
        QTest::addColumn<QStringList>("uiLanguages");
        QTest::addColumn<QString>("catalogue");
        QTest::newRow("German") << QStringList{"de-DE", "de"} << "de";
        QTest::newRow("of another country") << QStringList{"es-MX"} << "es";
        QTest::newRow("with its script") << QStringList{"ar-Arab-EG"} << "ar";
        QTest::newRow("simplified Chinese") << QStringList{"zh-Hans-SG"} << "zh_CN";
        QTest::newRow("Chinese of China") << QStringList{"zh-CN"} << "zh_CN";
        QTest::newRow("traditional Chinese") << QStringList{"zh-TW", "zh-Hant-TW"} << "";
        QTest::newRow("no language") << QStringList{"C"} << "";
        QTest::newRow("nothing known") << QStringList{} << "";
        QTest::newRow("one that does not ship") << QStringList{"ja-JP"} << "";
        QTest::newRow("the second best ships") << QStringList{"ja-JP", "fr-FR"} << "fr";
        QTest::newRow("English before German") << QStringList{"en-GB", "de-DE"} << "";
    }

    void theCatalogueFollowsWhatTheUserReads()
    {
        QFETCH(const QStringList, uiLanguages);
        const QStringList shipped{QStringLiteral("ar"), QStringLiteral("de"), QStringLiteral("es"),
            QStringLiteral("fr"), QStringLiteral("zh_CN")};
        QTEST(catalogueFor(uiLanguages, shipped), "catalogue");
    }

    void arabicIsReadFromRightToLeftAndEnglishAsTheCommandLineSays_data()
    {
        QTest::addColumn<Qt::LayoutDirection>("usual");
        QTest::newRow("as usual") << Qt::LeftToRight;
        QTest::newRow("turned round") << Qt::RightToLeft;
    }

    void arabicIsReadFromRightToLeftAndEnglishAsTheCommandLineSays()
    {
        QFETCH(const Qt::LayoutDirection, usual);
        const auto restore =
            qScopeGuard([] { QGuiApplication::setLayoutDirection(Qt::LayoutDirectionAuto); });
        QGuiApplication::setLayoutDirection(usual);
        Language language;
        language.speak(QStringLiteral("ar"));
        QCOMPARE(QGuiApplication::layoutDirection(), Qt::RightToLeft);
        language.speak(QStringLiteral("de"));
        QCOMPARE(QGuiApplication::layoutDirection(), usual);
        language.speak({});
        QCOMPARE(QGuiApplication::layoutDirection(), usual);
    }

    void textsOfQtItselfMayLieBesideTheProgram()
    {
        const QDir folder(QCoreApplication::applicationDirPath() + QStringLiteral("/translations"));
        QVERIFY(QDir().mkpath(folder.path()));
        const auto clean = qScopeGuard([folder] { QDir(folder).removeRecursively(); });
        // A language that no system brings.
        QFile source(folder.filePath(QStringLiteral("qtbase_eo.ts")));
        QVERIFY(source.open(QIODevice::WriteOnly));
        source.write(
            "<!DOCTYPE TS><TS version=\"2.1\" language=\"eo\"><context><name>QFileDialog</name><message>"
            "<source>Open</source><translation>Malfermi</translation></message></context></TS>");
        source.close();
        QCOMPARE(QProcess::execute(
                     QStringLiteral(AMBERTASK_LRELEASE), {QStringLiteral("-silent"), source.fileName()}),
            0);

        Language language;
        language.speak(QStringLiteral("eo"));
        QCOMPARE(QCoreApplication::translate("QFileDialog", "Open"), QStringLiteral("Malfermi"));
        language.speak({});
        QCOMPARE(QCoreApplication::translate("QFileDialog", "Open"), QStringLiteral("Open"));
    }
};

AMBERTASK_TEST_MAIN(LanguageTest)
#include "tst_language.moc"
