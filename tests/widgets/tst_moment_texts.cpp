#include "support/TestMain.h"
#include "widgets/MomentTexts.h"

#include <QLocale>
#include <QTest>

namespace
{

Moment afternoon()
{
    return toMoment(QDate(2026, 1, 31), QTime(13, 5, 9));
}

/// Later locale data puts a narrow no-break space before AM and PM.
QString withPlainSpaces(QString text)
{
    return text.replace(QChar(0x202F), u' ');
}

QString shortTime(Moment moment)
{
    return QLocale().toString(toQTime(moment), shortTimeFormat());
}

} // namespace

class TestMomentTexts : public TestCase
{
    Q_OBJECT

private slots:
    void cleanup();
    void momentsReadAsTheLocaleWritesThem_data();
    void momentsReadAsTheLocaleWritesThem();
    void everyLocaleShowsAFourDigitYear();
    void noLocaleNamesAZone();
    void shortTimesHaveTwentyFourHoursAndTwoDigits();
    void aComposedMomentHasNoSeconds();
    void aComposedMomentMayLieInTheHourThatSummerTimeSkips();
};

void TestMomentTexts::cleanup()
{
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
}

void TestMomentTexts::momentsReadAsTheLocaleWritesThem_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("date");
    QTest::addColumn<QString>("shortTimeText");
    QTest::addColumn<QString>("longTimeText");
    QTest::newRow("en_US") << "en_US"
                           << "1/31/2026"
                           << "13:05"
                           << "1:05:09 PM";
    QTest::newRow("de_DE") << "de_DE"
                           << "31.01.2026"
                           << "13:05"
                           << "13:05:09";
    QTest::newRow("ar") << "ar" << QStringLiteral("٣١\u200F/١\u200F/٢٠٢٦") << QStringLiteral("١٣:٠٥")
                        << QStringLiteral("١:٠٥:٠٩ م");
    // Words of the format are not mistaken for its parts, and the zone may stand first or in brackets.
    QTest::newRow("th_TH") << "th_TH"
                           << "31/1/2026"
                           << "13:05" << QStringLiteral("13 นาฬิกา 05 นาที 09 วินาที");
    QTest::newRow("zh_CN") << "zh_CN"
                           << "2026/1/31"
                           << "13:05"
                           << "13:05:09";
    QTest::newRow("fa_IR") << "fa_IR" << QStringLiteral("۲۰۲۶/۱/۳۱") << QStringLiteral("۱۳:۰۵")
                           << QStringLiteral("۱۳:۰۵:۰۹");
}

void TestMomentTexts::momentsReadAsTheLocaleWritesThem()
{
    QFETCH(QString, locale);
    QFETCH(QString, date);
    QFETCH(QString, shortTimeText);
    QFETCH(QString, longTimeText);
    QLocale::setDefault(QLocale(locale));
    QCOMPARE(shortDate(afternoon()), date);
    QCOMPARE(shortTime(afternoon()), shortTimeText);
    QCOMPARE(withPlainSpaces(longTime(afternoon())), longTimeText);
    QCOMPARE(withPlainSpaces(dateAndLongTime(afternoon())), date + u' ' + longTimeText);
}

void TestMomentTexts::everyLocaleShowsAFourDigitYear()
{
    const auto locales =
        QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyCountry);
    QVERIFY(locales.size() > 100);
    for (const QLocale& locale : locales) {
        QLocale::setDefault(locale);
        const QString year = locale.toString(QDate(2026, 1, 31), QStringLiteral("yyyy"));
        QVERIFY2(shortDate(afternoon()).contains(year), qPrintable(locale.name()));
    }
}

void TestMomentTexts::noLocaleNamesAZone()
{
    const auto locales =
        QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyCountry);
    for (const QLocale& locale : locales) {
        QLocale::setDefault(locale);
        const QString text = longTime(toMoment(QDate(2026, 1, 31), QTime(13, 5, 19)));
        const QString seconds = locale.toString(QTime(13, 5, 19), QStringLiteral("ss"));
        QVERIFY2(text.contains(seconds), qPrintable(locale.name()));
        QVERIFY2(!text.contains(QLatin1String("GMT")) && !text.contains(QLatin1String("()")),
            qPrintable(locale.name()));
    }
}

void TestMomentTexts::shortTimesHaveTwentyFourHoursAndTwoDigits()
{
    QCOMPARE(shortTime(toMoment(QDate(2026, 1, 31))), QStringLiteral("00:00"));
    QCOMPARE(shortTime(toMoment(QDate(2026, 1, 31), QTime(9, 5, 59))), QStringLiteral("09:05"));
    QCOMPARE(shortTime(toMoment(QDate(2026, 1, 31), QTime(23, 59, 59))), QStringLiteral("23:59"));
}

void TestMomentTexts::aComposedMomentHasNoSeconds()
{
    QCOMPARE(storedText(composeMoment(QDate(2026, 1, 31), QTime(9, 5, 59, 999))),
        std::string("2026-01-31 09:05:00"));
}

void TestMomentTexts::aComposedMomentMayLieInTheHourThatSummerTimeSkips()
{
    QCOMPARE(storedText(composeMoment(QDate(2026, 3, 29), QTime(1, 30))), std::string("2026-03-29 01:30:00"));
}

AMBERTASK_TEST_MAIN(TestMomentTexts)
#include "tst_moment_texts.moc"
