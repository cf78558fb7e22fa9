#include "support/TestMain.h"
#include "widgets/PlainText.h"
#include "widgets/QuietLine.h"

#include <QAccessible>
#include <QBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTest>
#include <QTimer>

namespace
{

/// A page with a button, an edit and its line, and the page behind it.
struct Window : QTabWidget {
    Window()
    {
        addTab(page, QStringLiteral("One"));
        addTab(new QWidget, QStringLiteral("Two"));
        layout->addWidget(button);
        layout->addWidget(edit);
        layout->addWidget(line);
        resize(400, 300);
        show();
    }

    QWidget* page = new QWidget;
    QVBoxLayout* layout = new QVBoxLayout(page);
    QPushButton* button = new QPushButton(QStringLiteral("&Do"));
    QLineEdit* edit = new QLineEdit;
    QuietLine* line = new QuietLine(QStringLiteral("lblNote"), page);
};

const QString Long = QStringLiteral("Restored from \"") + QStringLiteral("/a/folder").repeated(40)
    + QStringLiteral("\"; the rest is elsewhere");

} // namespace

class QuietLineTest : public TestCase
{
    Q_OBJECT

private slots:
    void itSaysPlainTextAndTakesNoFocus()
    {
        Window window;
        window.line->say(QStringLiteral("<b>saved</b> & \"done\""));
        QCOMPARE(window.line->said(), QStringLiteral("<b>saved</b> & \"done\""));
        QCOMPARE(window.line->text(), window.line->said());
        QCOMPARE(window.line->textFormat(), Qt::PlainText);
        QCOMPARE(window.line->focusPolicy(), Qt::NoFocus);
        QCOMPARE(window.line->objectName(), QStringLiteral("lblNote"));
    }

    void nothingMovesWhenItBeginsToSpeak()
    {
        Window window;
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        const QRect empty = window.line->geometry();
        const QRect button = window.button->geometry();
        QVERIFY(empty.height() >= window.line->fontMetrics().height());
        window.line->say(Long);
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
        QCOMPARE(window.line->geometry(), empty);
        QCOMPARE(window.button->geometry(), button);
        QVERIFY(window.minimumSizeHint().width() < 400);
    }

    void aTextThatDoesNotFitKeepsItsEndsAndIsWholeInTheToolTip()
    {
        Window window;
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        window.line->say(Long);
        const QString shown = window.line->text();
        QVERIFY2(shown.startsWith(QLatin1String("Restored")) && shown.endsWith(QLatin1String("elsewhere")),
            qPrintable(shown));
        QVERIFY(window.line->fontMetrics().horizontalAdvance(shown) <= window.line->width());
        QCOMPARE(window.line->toolTip(), plainToolTip(Long));
        QCOMPARE(window.line->said(), Long);
        window.resize(8000, 300);
        QTRY_COMPARE(window.line->text(), Long);
        QCOMPARE(window.line->toolTip(), QString());
    }

    void aTextOfAnyLengthIsOneLine()
    {
        Window window;
        window.line->say(QString(10'000'000, u'w') + QStringLiteral("\nwas added"));
        QVERIFY(window.line->said().size() <= 1001);
        QVERIFY(window.line->said().endsWith(QStringLiteral(" was added")));
        QVERIFY(!window.line->text().contains(u'\n'));
    }

    void itBeginsWhereTheReaderBegins()
    {
        Window window;
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        window.line->say(QStringLiteral("MMM"));
        const auto firstInk = [&] {
            const QImage drawn = window.line->grab().toImage();
            for (int x = 0; x < drawn.width(); ++x) {
                for (int y = 0; y < drawn.height(); ++y) {
                    if (qGray(drawn.pixel(x, y)) < 100) {
                        return x;
                    }
                }
            }
            return drawn.width();
        };
        QVERIFY(firstInk() < 20);
        window.setLayoutDirection(Qt::RightToLeft);
        QVERIFY(firstInk() > window.line->width() / 2);
    }

    void theNextKeyOnThePageTakesItAway()
    {
        Window window;
        QVERIFY(QTest::qWaitForWindowActive(&window));
        window.edit->setFocus();
        window.line->say(QStringLiteral("done"));
        QTest::keyPress(window.edit, Qt::Key_Shift);
        QTest::keyClick(window.edit, Qt::Key_Alt);
        QCOMPARE(window.line->said(), QStringLiteral("done"));
        QTest::keyClick(window.edit, Qt::Key_A);
        QCOMPARE(window.line->said(), QString());
        QCOMPARE(window.line->text(), QString());
        QCOMPARE(window.edit->text(), QStringLiteral("a"));
    }

    void aMnemonicTakesItAwayAndItsActionMaySpeak()
    {
        Window window;
        QVERIFY(QTest::qWaitForWindowActive(&window));
        window.edit->setFocus();
        window.line->say(QStringLiteral("before"));
        QString found = QStringLiteral("not pressed");
        connect(window.button, &QPushButton::clicked, window.button, [&] {
            found = window.line->said();
            window.line->say(QStringLiteral("after"));
        });
        QTest::keyClick(window.edit, Qt::Key_D, Qt::AltModifier);
        QTRY_COMPARE(window.line->said(), QStringLiteral("after"));
        QCOMPARE(found, QString());
    }

    void aPressOnThePageTakesItAwayOneOnTheLineDoesNot()
    {
        Window window;
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        window.line->say(QStringLiteral("done"));
        QTest::mouseClick(window.line, Qt::LeftButton);
        QCOMPARE(window.line->said(), QStringLiteral("done"));
        QTest::mouseMove(window.button);
        QCOMPARE(window.line->said(), QStringLiteral("done"));
        QTest::mousePress(window.button, Qt::LeftButton);
        QCOMPARE(window.line->said(), QString());
    }

    void whatIsDoneInAnotherWindowLeavesIt()
    {
        Window window;
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        window.line->say(QStringLiteral("done"));
        QLineEdit other;
        other.show();
        QTest::mouseClick(&other, Qt::LeftButton);
        QTest::keyClick(&other, Qt::Key_A);
        QCOMPARE(window.line->said(), QStringLiteral("done"));
    }

    void anotherPageTakesItAway()
    {
        Window window;
        window.line->say(QStringLiteral("done"));
        window.setCurrentIndex(1);
        QCOMPARE(window.line->said(), QString());
    }

    void whatIsSaidWhileThePageIsHiddenWaits()
    {
        Window window;
        window.setCurrentIndex(1);
        window.line->say(QStringLiteral("done"));
        window.setCurrentIndex(0);
        QCOMPARE(window.line->said(), QStringLiteral("done"));
    }

    void assistiveTechnologyHasANotificationWhileThereIsSomethingToSay()
    {
        Window window;
        QAccessibleInterface* seen = QAccessible::queryAccessibleInterface(window.line);
        QVERIFY(seen != nullptr);
        QCOMPARE(seen->role(), QAccessible::Notification);
        QVERIFY(seen->state().invisible);
        window.line->say(Long);
        QCOMPARE(seen->text(QAccessible::Name), Long);
        QVERIFY(!seen->state().invisible);
        window.line->hush();
        QCOMPARE(seen->text(QAccessible::Name), QString());
        QVERIFY(seen->state().invisible);
    }

    void aStandingTextOutlastsKeysAndWhatIsSaid()
    {
        Window window;
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        window.line->setStanding(QStringLiteral("3 of 41 tasks"));
        QCOMPARE(window.line->text(), QStringLiteral("3 of 41 tasks"));
        QTest::keyClick(window.edit, Qt::Key_A);
        QCOMPARE(window.line->text(), QStringLiteral("3 of 41 tasks"));
        window.line->say(QStringLiteral("saved"));
        QCOMPARE(window.line->text(), QStringLiteral("saved"));
        QTest::keyClick(window.edit, Qt::Key_A);
        QCOMPARE(window.line->text(), QStringLiteral("3 of 41 tasks"));
        QCOMPARE(window.line->said(), QString());
        window.line->setStanding({});
        QCOMPARE(window.line->text(), QString());
    }

    void aStandingTextWaitsToBeReadOutUntilItRests()
    {
        Window window;
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        window.line->setStanding(QStringLiteral("9 of 41 tasks"));
        auto* pause = window.line->findChild<QTimer*>();
        QVERIFY(pause != nullptr && pause->isSingleShot() && pause->isActive());
        // Who types on puts it off, and a text that is gone is not read out.
        pause->stop();
        window.line->setStanding(QStringLiteral("3 of 41 tasks"));
        QVERIFY(pause->isActive());
        window.line->setStanding({});
        QVERIFY(!pause->isActive());
    }

    void aStandingTextIsReadOutOnlyWhereItIsShown()
    {
        Window window;
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        window.line->setStanding(QStringLiteral("2 tasks deleted"));
        const auto* pause = window.line->findChild<QTimer*>();
        window.line->say(QStringLiteral("1 task deleted"));
        QVERIFY(!pause->isActive());
        window.line->setStanding(QStringLiteral("1 task deleted"));
        QVERIFY(!pause->isActive());
        window.line->hush();
        window.line->setStanding(QStringLiteral("3 tasks deleted"));
        QVERIFY(pause->isActive());
    }
};

AMBERTASK_TEST_MAIN(QuietLineTest)
#include "tst_quiet_line.moc"
