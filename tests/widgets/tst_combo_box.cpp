#include "support/TestMain.h"
#include "support/WheelTurn.h"
#include "widgets/ComboBox.h"

#include <QAbstractItemView>
#include <QSignalSpy>
#include <QStyleHints>
#include <QTest>

/// Entries that begin alike, told apart by what follows the blank.
class ComboBoxTest : public TestCase
{
    Q_OBJECT

private slots:
    void theListThatOpensIsNotMadeBeforeTheFirstPainting()
    {
        ComboBox combo;
        fill(combo);
        combo.keepEntriesWhole();
        QEvent restyled(QEvent::StyleChange);
        QCoreApplication::sendEvent(&combo, &restyled);
        QVERIFY(combo.sizeHint().isValid());
        QVERIFY(combo.findChild<QAbstractItemView*>() == nullptr);
        show(combo);
        QTRY_VERIFY(combo.findChild<QAbstractItemView*>() != nullptr);
    }

    void aNewStyleIsTakenBeforeThePaintingAndAfter()
    {
        ComboBox combo;
        fill(combo);
        const int plain = combo.sizeHint().height();
        combo.setStyleSheet(QStringLiteral("QComboBox { padding: 20px; }"));
        show(combo);
        QTRY_VERIFY(combo.sizeHint().height() > plain && combo.minimumSizeHint().height() > plain);
        combo.setStyleSheet({});
        QCOMPARE(combo.sizeHint().height(), plain);
    }

    void wholeEntriesWidenTheBox()
    {
        ComboBox combo;
        combo.keepEntriesWhole();
        fill(combo);
        const int before = combo.minimumSizeHint().width();
        const QString longer(60, u'm');
        combo.addItem(longer);
        QCOMPARE(combo.sizeHint(), combo.minimumSizeHint());
        QVERIFY(combo.sizeHint().width() > before);
        QVERIFY(combo.sizeHint().width() >= combo.fontMetrics().horizontalAdvance(longer));
        combo.removeItem(combo.count() - 1);
        QCOMPARE(combo.sizeHint().width(), before);
    }

    void aNarrowBoxStaysSo()
    {
        ComboBox combo;
        combo.keepNarrow(10);
        const QSize empty = combo.sizeHint();
        QVERIFY(empty.width() >= combo.fontMetrics().horizontalAdvance(QString(10, u'X')));
        combo.addItem(QString(60, u'm'));
        QCOMPARE(combo.sizeHint(), empty);
        QCOMPARE(combo.minimumSizeHint(), empty);
    }

    void theWheelTurnsItOnlyWithTheFocus()
    {
        ComboBox combo;
        fill(combo);
        combo.setCurrentIndex(2);
        show(combo);
        combo.clearFocus();
        QVERIFY(!turnWheel(combo));
        QCOMPARE(combo.currentIndex(), 2);
        QVERIFY((combo.focusPolicy() & Qt::WheelFocus) != Qt::WheelFocus);
        combo.setFocus();
        QVERIFY(turnWheel(combo));
        QCOMPARE(combo.currentIndex(), 1);
    }

    void aNameWithBlanksIsWrittenWithoutOpeningTheList()
    {
        ComboBox combo;
        fill(combo);
        show(combo);
        QTest::keyClicks(&combo, QStringLiteral("home of"));
        QCOMPARE(combo.currentText(), QStringLiteral("Home office"));
        QVERIFY(!combo.view()->isVisible());
    }

    void aBlankByItselfOpensTheList()
    {
        ComboBox combo;
        fill(combo);
        show(combo);
        QTest::keyClick(&combo, Qt::Key_Space);
        QTRY_VERIFY(combo.view()->isVisible());
    }

    void aBlankLongAfterTheLastLetterOpensTheList()
    {
        ComboBox combo;
        fill(combo);
        show(combo);
        const auto patience = static_cast<quint64>(QGuiApplication::styleHints()->keyboardInputInterval());
        strike(combo, Qt::Key_H, QStringLiteral("h"), 1000);
        strike(combo, Qt::Key_Space, QStringLiteral(" "), 1000 + patience);
        QTRY_VERIFY(combo.view()->isVisible());
    }

    void aBlankBehindAnArrowOpensTheList()
    {
        ComboBox combo;
        fill(combo);
        show(combo);
        QTest::keyClick(&combo, Qt::Key_H);
        QTest::keyClick(&combo, Qt::Key_Down);
        QTest::keyClick(&combo, Qt::Key_Space);
        QTRY_VERIFY(combo.view()->isVisible());
    }

    void writingIsTheUsersChoice()
    {
        ComboBox combo;
        fill(combo);
        show(combo);
        const QSignalSpy choices(&combo, &QComboBox::activated);
        QTest::keyClicks(&combo, QStringLiteral("home of"));
        QCOMPARE(choices.last().first().toInt(), 2);
    }

    void aChosenEntryIsCurrentAndToldOfEvenWhenItWasBefore()
    {
        ComboBox combo;
        fill(combo);
        show(combo);
        combo.showPopup();
        const QSignalSpy choices(&combo, &QComboBox::activated);
        combo.choose(1);
        QCOMPARE(combo.currentText(), QStringLiteral("Home and garden"));
        QTRY_VERIFY(!combo.view()->isVisible());
        combo.choose(1);
        QCOMPARE(choices.count(), 2);
    }

    void nothingIsChosenFromADisabledBoxOrBeyondItsEnds()
    {
        ComboBox combo;
        fill(combo);
        const QSignalSpy choices(&combo, &QComboBox::activated);
        combo.choose(-1);
        combo.choose(3);
        combo.setEnabled(false);
        combo.choose(1);
        QCOMPARE(combo.currentIndex(), 0);
        QCOMPARE(choices.count(), 0);
    }

private:
    static void fill(ComboBox& combo)
    {
        combo.addItems(
            {QStringLiteral("Garage"), QStringLiteral("Home and garden"), QStringLiteral("Home office")});
    }
    static void show(ComboBox& combo)
    {
        combo.show();
        QVERIFY(QTest::qWaitForWindowExposed(&combo));
    }
    static void strike(ComboBox& combo, Qt::Key key, const QString& text, quint64 moment)
    {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, text);
        event.setTimestamp(moment);
        QApplication::sendEvent(&combo, &event);
    }
};

AMBERTASK_TEST_MAIN(ComboBoxTest)
#include "tst_combo_box.moc"
