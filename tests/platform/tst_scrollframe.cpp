#include "platform/ScrollFrame.h"
#include "platform/WindowPlacement.h"
#include "support/TestMain.h"

#include <QBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QTest>

namespace
{

/// A window with edits one below the other, and a button below all.
struct LongForm {
    explicit LongForm(int edits)
    {
        auto* content = new QWidget;
        auto* column = new QVBoxLayout(content);
        for (int i = 0; i < edits; ++i) {
            auto* edit = new QLineEdit;
            column->addWidget(edit);
            last = edit;
        }
        auto* layout = new QVBoxLayout(&window);
        frame = new ScrollFrame(content, {&button});
        layout->addWidget(frame);
        layout->addWidget(&button);
        showOwned(&window, nullptr);
        isActive = QTest::qWaitForWindowActive(&window);
    }

    QWidget window;
    QPushButton button{QStringLiteral("OK")};
    ScrollFrame* frame = nullptr;
    QLineEdit* last = nullptr;
    bool isActive = false;
};

} // namespace

class ScrollFrameTest : public TestCase
{
    Q_OBJECT

private slots:
    void whatFitsIsShownWhole()
    {
        const LongForm form(5);
        QVERIFY(!form.frame->verticalScrollBar()->isVisible());
        QVERIFY(!form.frame->horizontalScrollBar()->isVisible());
        QVERIFY(form.frame->height() >= form.frame->widget()->minimumSizeHint().height());
    }

    void theWindowCannotBeMadeSmallerThanWhatFits()
    {
        LongForm form(5);
        form.window.resize(1, 1);
        QTRY_COMPARE(form.window.size(), form.window.minimumSizeHint());
        QVERIFY(!form.frame->verticalScrollBar()->isVisible());
    }

    void whatIsHigherThanTheScreenScrollsAndTheRestStays()
    {
        const LongForm form(100);
        const QRect screen = form.window.screen()->availableGeometry();
        QVERIFY(screen.contains(form.window.frameGeometry()));
        QVERIFY(form.frame->verticalScrollBar()->isVisible());
        QVERIFY(!form.frame->horizontalScrollBar()->isVisible());
        QVERIFY(form.window.rect().contains(form.button.geometry()));
    }

    void whatGetsTheFocusScrollsIntoView()
    {
        const LongForm form(100);
        QVERIFY(form.isActive);
        QVERIFY(form.last->visibleRegion().isEmpty());
        form.last->setFocus();
        QVERIFY(!form.last->visibleRegion().isEmpty());
    }

    void theTabKeyPassesTheFrame()
    {
        LongForm form(2);
        QVERIFY(form.isActive);
        form.last->setFocus();
        QTest::keyClick(form.last, Qt::Key_Tab);
        QVERIFY(form.button.hasFocus());
    }

    void theFrameFollowsWhatItHolds()
    {
        const LongForm form(2);
        const int before = form.window.minimumSizeHint().height();
        form.last->setMinimumHeight(200);
        QTRY_VERIFY(form.window.minimumSizeHint().height() >= before + 150);
    }
};

AMBERTASK_TEST_MAIN(ScrollFrameTest)
#include "tst_scrollframe.moc"
