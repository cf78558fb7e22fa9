#include "support/TestMain.h"
#include "widgets/BoxText.h"
#include "widgets/WindowPlacement.h"

#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QScopeGuard>
#include <QScreen>
#include <QTest>

namespace
{

const QChar Ellipsis(0x2026);

/// What a box of that text shows, without the places where it may be broken. Fails the test when the box does
/// not fit the screen or does not show all its buttons.
QString shownIn(const QString& text)
{
    QMessageBox box(
        QMessageBox::Question, QStringLiteral("Ambertask"), {}, QMessageBox::Yes | QMessageBox::No);
    setBoxText(box, text);
    box.show();
    if (box.height() > roomFor(box).height() || box.width() > box.screen()->availableSize().width()) {
        QTest::qFail(
            qPrintable(QStringLiteral("%1 x %2").arg(box.width()).arg(box.height())), __FILE__, __LINE__);
    }
    for (const QPushButton* button : box.findChildren<QPushButton*>()) {
        const QRect place(button->mapTo(&box, QPoint()), button->size());
        if (!box.rect().contains(place)) {
            QTest::qFail("a button lies outside", __FILE__, __LINE__);
        }
    }
    return box.text().remove(QChar(0x200B));
}

} // namespace

class BoxTextTest : public TestCase
{
    Q_OBJECT

private slots:
    void aUsualTextStaysWhole_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("short") << QStringLiteral("Please enter the task name");
        QTest::newRow("empty") << QString();
        QTest::newRow("markup") << QStringLiteral("<b>bold</b> & <img src=x>");
        QTest::newRow("lines") << QStringLiteral("one\ntwo\nthree");
        QTest::newRow("a long path") << QStringLiteral("The file could not be read: /") + QString(250, u'w');
    }

    void aUsualTextStaysWhole()
    {
        QFETCH(const QString, text);
        QCOMPARE(shownIn(text), text);
    }

    void aTextThatIsHigherThanTheScreenLosesItsMiddle_data()
    {
        QTest::addColumn<QString>("middle");
        QTest::addColumn<int>("letters");
        const std::pair<const char*, int> sizes[] = {{"usual letters", 1}, {"letters twice the size", 2}};
        for (const auto& [name, letters] : sizes) {
            const auto row = [&](const char* of, const QString& middle) {
                QTest::addRow("%s, %s", of, name) << middle << letters;
            };
            row("a long word", QString(10'000, u'W'));
            row("long words", QString(500, u'w').append(u' ').repeated(200));
            row("many lines", QStringLiteral("a picture that cannot be read\n").repeated(300));
            row("letters in two halves", QString::fromUtf8("\U0001F600").repeated(5000));
            row("a megabyte", QString(1'000'000, u'x'));
        }
    }

    void aTextThatIsHigherThanTheScreenLosesItsMiddle()
    {
        QFETCH(const QString, middle);
        QFETCH(const int, letters);
        const QFont usual = QApplication::font();
        const auto restore = qScopeGuard([usual] { QApplication::setFont(usual); });
        QFont font = usual;
        font.setPointSizeF(usual.pointSizeF() * letters);
        QApplication::setFont(font);
        const QString begin = QStringLiteral("Delete '");
        const QString end = QStringLiteral("' with all its tasks?");
        const QString shown = shownIn(begin + middle + end);
        QVERIFY2(shown.startsWith(begin), qPrintable(shown.left(80)));
        QVERIFY2(shown.endsWith(end), qPrintable(shown.right(80)));
        QCOMPARE(shown.count(Ellipsis), 1);
        QVERIFY(shown.size() > 150);
        QVERIFY(shown.isValidUtf16());
    }
};

AMBERTASK_TEST_MAIN(BoxTextTest)
#include "tst_boxtext.moc"
