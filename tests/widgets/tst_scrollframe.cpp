#include "support/TestMain.h"
#include "widgets/ScrollFrame.h"
#include "widgets/WindowPlacement.h"

#include <QApplication>
#include <QBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QScopeGuard>
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

/// A window with a row of buttons and a button as wide as the row, too wide for the screen.
struct WideForm {
    WideForm()
    {
        auto* content = new QWidget;
        auto* row = new QHBoxLayout;
        for (int i = 0; i < 20; ++i) {
            auto* button = new QPushButton(QStringLiteral("a button"));
            row->addWidget(button);
            first = first == nullptr ? button : first;
            last = button;
        }
        auto* column = new QVBoxLayout(content);
        column->addLayout(row);
        column->addWidget(wide);
        auto* layout = new QVBoxLayout(&window);
        frame = new ScrollFrame(content);
        layout->addWidget(frame);
        showOwned(&window, nullptr);
        isActive = QTest::qWaitForWindowActive(&window);
        first->setFocus();
    }

    QWidget window;
    ScrollFrame* frame = nullptr;
    QPushButton* first = nullptr;
    QPushButton* last = nullptr;
    QPushButton* wide = new QPushButton(QStringLiteral("a wide button"));
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

    void whatGetsTheFocusScrollsIntoViewFromTheSideOnWhichReadingBegins_data()
    {
        QTest::addColumn<Qt::LayoutDirection>("direction");
        QTest::newRow("left to right") << Qt::LeftToRight;
        QTest::newRow("right to left") << Qt::RightToLeft;
    }

    void whatGetsTheFocusScrollsIntoViewFromTheSideOnWhichReadingBegins()
    {
        QFETCH(const Qt::LayoutDirection, direction);
        const auto restore = qScopeGuard([] { QApplication::setLayoutDirection(Qt::LeftToRight); });
        QApplication::setLayoutDirection(direction);
        const WideForm form;
        QVERIFY(form.isActive);
        QScrollBar* bar = form.frame->horizontalScrollBar();
        QVERIFY(bar->isVisible());
        QVERIFY(form.first->hasFocus());
        QCOMPARE(bar->value(), 0);
        QVERIFY(form.last->visibleRegion().isEmpty());
        form.last->setFocus();
        QCOMPARE(form.last->visibleRegion().boundingRect(), form.last->rect());
        QVERIFY(form.first->visibleRegion().isEmpty());
        form.first->setFocus();
        QCOMPARE(form.first->visibleRegion().boundingRect(), form.first->rect());
        QCOMPARE(bar->value(), 0);
    }

    void aControlThatIsWiderThanTheWindowIsSeenFromItsBegin_data()
    {
        whatGetsTheFocusScrollsIntoViewFromTheSideOnWhichReadingBegins_data();
    }

    void aControlThatIsWiderThanTheWindowIsSeenFromItsBegin()
    {
        QFETCH(const Qt::LayoutDirection, direction);
        const auto restore = qScopeGuard([] { QApplication::setLayoutDirection(Qt::LeftToRight); });
        QApplication::setLayoutDirection(direction);
        const WideForm form;
        QVERIFY(form.isActive);
        form.last->setFocus();
        form.wide->setFocus();
        QVERIFY(form.wide->visibleRegion().boundingRect().contains(
            direction == Qt::LeftToRight ? form.wide->rect().topLeft() : form.wide->rect().topRight()));
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
