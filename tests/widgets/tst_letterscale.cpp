#include "support/TestMain.h"
#include "widgets/LetterScale.h"

#include <QTest>

class LetterScaleTest : public TestCase
{
    Q_OBJECT

private slots:
    void picturesGrowWithTheLettersInHalves_data()
    {
        QTest::addColumn<int>("pixels");
        QTest::addColumn<double>("scale");
        QTest::addRow("tiny") << 8 << 1.0;
        QTest::addRow("usual") << 12 << 1.0;
        QTest::addRow("a little larger") << 16 << 1.0;
        QTest::addRow("half as large again") << 18 << 1.5;
        QTest::addRow("double") << 24 << 2.0;
        QTest::addRow("more than double") << 29 << 2.0;
        QTest::addRow("three times") << 36 << 3.0;
    }
    void picturesGrowWithTheLettersInHalves()
    {
        QFETCH(const int, pixels);
        QFETCH(const double, scale);
        QFont font;
        font.setPixelSize(pixels);
        QCOMPARE(letterScale(font), scale);
        QCOMPARE(withLetters(16, font), qRound(16 * scale));
        QCOMPARE(withLetters(QSize(960, 640), font), QSize(960, 640) * scale);
    }
};

AMBERTASK_TEST_MAIN(LetterScaleTest)
#include "tst_letterscale.moc"
