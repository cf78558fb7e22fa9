#include "support/TestMain.h"
#include "widgets/ElidedTextTips.h"

#include <QApplication>
#include <QComboBox>
#include <QHelpEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QTest>
#include <QToolTip>

namespace
{

const QString LongName = QStringLiteral("Garden, balcony & <b>everything</b> else that grows in pots");

/// What hovering over the middle of `widget` shows.
QString tipOver(QWidget& widget)
{
    QToolTip::hideText();
    if (!QTest::qWaitFor([] { return !QToolTip::isVisible(); })) {
        QTest::qFail("the tool tip before stays", __FILE__, __LINE__);
    }
    const QPoint middle = widget.rect().center();
    QHelpEvent event(QEvent::ToolTip, middle, widget.mapToGlobal(middle));
    QApplication::sendEvent(&widget, &event);
    return QToolTip::isVisible() ? QToolTip::text() : QString();
}

} // namespace

class ElidedTextTipsTest : public TestCase
{
    Q_OBJECT

private slots:
    void cleanup()
    {
        QToolTip::hideText();
        QTRY_VERIFY(!QToolTip::isVisible());
    }

    void aListShowsItsWholeTextAsPlainText()
    {
        const ElidedTextTips tips;
        QComboBox combo;
        combo.addItem(LongName);
        combo.resize(100, combo.sizeHint().height());
        combo.show();
        QVERIFY(tipOver(combo).contains(QStringLiteral("balcony &amp; &lt;b&gt;everything&lt;/b&gt; else")));
    }

    void whatFitsHasNoToolTip()
    {
        const ElidedTextTips tips;
        QComboBox combo;
        combo.addItem(LongName);
        combo.resize(combo.sizeHint());
        combo.show();
        QCOMPARE(tipOver(combo), QString());
        QLineEdit edit(QStringLiteral("short"));
        edit.show();
        QCOMPARE(tipOver(edit), QString());
    }

    void aPathThatIsLongerThanItsFieldIsShownWhole()
    {
        const ElidedTextTips tips;
        QLineEdit edit(QStringLiteral("/home/somebody/sounds/a very long name of a sound.wav"));
        edit.resize(80, edit.sizeHint().height());
        edit.show();
        QVERIFY(tipOver(edit).contains(edit.text()));
        edit.setEchoMode(QLineEdit::Password);
        QCOMPARE(tipOver(edit), QString());
    }

    void anEntryThatIsCutShowsItsWholeText()
    {
        const ElidedTextTips tips;
        QListWidget list;
        list.addItem(LongName);
        list.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        list.item(0)->setSizeHint(QSize(0, 200));
        list.resize(120, 100);
        list.show();
        QVERIFY(tipOver(*list.viewport()).contains(QStringLiteral("grows in pots")));
        list.resize(900, 100);
        QCOMPARE(tipOver(*list.viewport()), QString());
    }

    void aToolTipOfTheControlsOwnComesFirst()
    {
        const ElidedTextTips tips;
        QComboBox combo;
        combo.addItem(LongName);
        combo.setToolTip(QStringLiteral("its own"));
        combo.resize(100, combo.sizeHint().height());
        combo.show();
        QCOMPARE(tipOver(combo), QStringLiteral("its own"));
    }
};

AMBERTASK_TEST_MAIN(ElidedTextTipsTest)
#include "tst_elided_text_tips.moc"
