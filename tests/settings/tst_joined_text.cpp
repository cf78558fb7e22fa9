#include "settings/JoinedText.h"
#include "settings/SkinStyle.h"
#include "support/TestMain.h"

#include <QImage>
#include <QPainter>
#include <QPalette>
#include <QTest>

namespace
{

// "Help", with a mnemonic in the middle of its one joined word, and without.
const QString Marked = QStringLiteral("\u0645&\u0633\u0627\u0639\u062f\u0629");
const QString Plain = QStringLiteral("\u0645\u0633\u0627\u0639\u062f\u0629");

QImage drawn(const QString& text)
{
    QImage image(200, 40, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    SkinStyle().drawItemText(&painter, image.rect(), Qt::AlignCenter | Qt::TextShowMnemonic,
        QPalette(Qt::black, Qt::white), true, text, QPalette::WindowText);
    return image;
}

/// Where the pictures differ.
QRect difference(const QImage& left, const QImage& right)
{
    QRect found;
    for (int y = 0; y < left.height(); ++y) {
        for (int x = 0; x < left.width(); ++x) {
            if (left.pixel(x, y) != right.pixel(x, y)) {
                found |= QRect(x, y, 1, 1);
            }
        }
    }
    return found;
}

} // namespace

class JoinedTextTest : public TestCase
{
    Q_OBJECT

private slots:
    void arabicLettersJoinAndLatinOnesDoNot()
    {
        QVERIFY(hasJoinedLetters(Plain));
        QVERIFY(!hasJoinedLetters(u"Hilfe \u5e2e\u52a9"));
    }

    void theMnemonicAddsALineBelowItsLetterAndNothingElse()
    {
        const QRect line = difference(drawn(Plain), drawn(Marked));
        QVERIFY(!line.isEmpty());
        QVERIFY2(line.height() <= 2, qPrintable(QString::number(line.height())));
        // The second letter of five that run from the right end.
        const QRect word = difference(drawn(QString()), drawn(Plain));
        QVERIFY(line.width() < word.width() / 2);
        QVERIFY(line.center().x() > word.center().x());
        QVERIFY(line.top() > word.center().y());
    }

    void latinMnemonicsAreLeftToQt()
    {
        const QRect line = difference(drawn(QStringLiteral("Help")), drawn(QStringLiteral("H&elp")));
        QVERIFY(!line.isEmpty() && line.height() <= 2);
    }
};

AMBERTASK_TEST_MAIN(JoinedTextTest)
#include "tst_joined_text.moc"
