#include "support/TestMain.h"
#include "tests/report/PreviewUnderTest.h"

#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLocale>
#include <QPrintPreviewWidget>
#include <QProgressBar>
#include <QPushButton>
#include <QRegularExpression>
#include <QSet>
#include <QSpinBox>
#include <QTest>
#include <QTimer>

namespace
{

/// Does something with the first box that shows how far a layout is.
struct BoxWatch : QTimer {
    explicit BoxWatch(std::function<void(QDialog&)> act)
    {
        connect(this, &QTimer::timeout, this, [this, act = std::move(act)] {
            if (auto* box = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
                stop();
                act(*box);
            }
        });
        start(0);
    }
};

void cancel(const QDialog& box)
{
    box.findChild<QPushButton*>(QStringLiteral("btnCancel"))->click();
}

/// A preview to which every layout takes long.
struct SlowPreview : PreviewUnderTest {
    explicit SlowPreview(int records) : PreviewUnderTest(records, false, std::chrono::milliseconds(0)) { }
};

} // namespace

class PreviewWindowTest : public TestCase
{
    Q_OBJECT

private slots:
    void theWindowIsAResizableOneNamedAfterTheReport()
    {
        PreviewUnderTest f(1);
        QCOMPARE(f.window.objectName(), QStringLiteral("drTasks"));
        QCOMPARE(f.window.windowTitle(), QStringLiteral("Tasks Report"));
        QVERIFY(f.window.isWindow());
        QVERIFY(!f.window.isModal());
        QVERIFY(f.window.minimumSize() != f.window.maximumSize());
    }

    void pagesAreTurnedAndTheBarSaysWhichIsInView()
    {
        PreviewUnderTest f(60);
        const int count = f.window.pageCount();
        QVERIFY(count > 3);
        QCOMPARE(f.pageText(), QStringLiteral("1 of %1").arg(count));
        QVERIFY(!f.control<QPushButton>("btnPreviousPage")->isEnabled());
        const QImage first = f.picture();
        f.press("btnNextPage");
        QCOMPARE(f.pageText(), QStringLiteral("2 of %1").arg(count));
        QVERIFY(f.picture() != first);
        f.press("btnLastPage");
        QCOMPARE(f.pageText(), QStringLiteral("%1 of %1").arg(count));
        QVERIFY(!f.control<QPushButton>("btnNextPage")->isEnabled());
        f.press("btnPreviousPage");
        QCOMPARE(f.window.page(), count - 2);
        f.press("btnFirstPage");
        QCOMPARE(f.window.page(), 0);
        QCOMPARE(f.picture(), first);
    }

    void everyNumberIsInTheDigitsOfTheLanguage()
    {
        const QLocale before;
        QLocale::setDefault(QLocale(QLocale::Arabic, QLocale::Egypt));
        PreviewUnderTest f(60);
        QLocale::setDefault(before);
        QStringList shown{f.pageText(), f.control<QSpinBox>("spnPage")->accessibleName()};
        auto* zoom = f.control<QComboBox>("cmbZoom");
        for (int i = 0; i < zoom->count(); ++i) {
            shown.append(zoom->itemText(i));
        }
        static const QRegularExpression western(QStringLiteral("[0-9]"));
        QVERIFY2(shown.filter(western).isEmpty(), qPrintable(shown.join(u'\n')));
        QVERIFY2(shown.contains(QStringLiteral("٤٠٠ %")), qPrintable(shown.join(u'\n')));
    }

    void aPageIsReachedByItsNumber()
    {
        PreviewUnderTest f(60);
        auto* number = f.control<QSpinBox>("spnPage");
        number->setFocus();
        number->selectAll();
        QTest::keyClicks(number, QStringLiteral("3"));
        QTest::keyClick(number, Qt::Key_Return);
        QCOMPARE(f.window.page(), 2);
        QCOMPARE(number->accessibleName(), QStringLiteral("Page 3 of %1").arg(f.window.pageCount()));
    }

    void theKeyboardTurnsPages()
    {
        PreviewUnderTest f(60);
        f.window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&f.window));
        f.preview()->setFocus();
        QTest::keyClick(&f.window, Qt::Key_PageDown);
        QCOMPARE(f.window.page(), 1);
        QTest::keyClick(&f.window, Qt::Key_PageUp);
        QCOMPARE(f.window.page(), 0);
        QTest::keyClick(&f.window, Qt::Key_End, Qt::ControlModifier);
        QCOMPARE(f.window.page(), f.window.pageCount() - 1);
        QTest::keyClick(&f.window, Qt::Key_Home, Qt::ControlModifier);
        QCOMPARE(f.window.page(), 0);
        QTest::keyClick(&f.window, Qt::Key_N, Qt::AltModifier);
        QTRY_COMPARE(f.window.page(), 1);
    }

    void aZoomedPageIsScrolledBeforeItIsTurned()
    {
        PreviewUnderTest f(60);
        f.window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&f.window));
        f.choose("cmbZoom", f.control<QComboBox>("cmbZoom")->findText(QStringLiteral("300 %")));
        QTest::keyClick(&f.window, Qt::Key_PageDown);
        QCOMPARE(f.window.page(), 0);
        for (int i = 0; i < 20 && f.window.page() == 0; ++i) {
            QTest::keyClick(&f.window, Qt::Key_PageDown);
        }
        QCOMPARE(f.window.page(), 1);
    }

    void zoomingShowsItsPercentage()
    {
        PreviewUnderTest f(1);
        auto* zoom = f.control<QComboBox>("cmbZoom");
        QCOMPARE(zoom->currentText(), QStringLiteral("Whole page"));
        f.choose("cmbZoom", zoom->findText(QStringLiteral("100 %")));
        QCOMPARE(f.preview()->zoomFactor(), 1.0);
        f.press("btnZoomIn");
        QCOMPARE(zoom->currentText(), QStringLiteral("125 %"));
        f.press("btnZoomOut");
        f.press("btnZoomOut");
        QCOMPARE(zoom->currentText(), QStringLiteral("75 %"));
        f.choose("cmbZoom", 1);
        QCOMPARE(f.preview()->zoomMode(), QPrintPreviewWidget::FitToWidth);
        for (int i = 0; i < 20; ++i) {
            f.press("btnZoomOut");
        }
        QCOMPARE(zoom->currentText(), QStringLiteral("25 %"));
    }

    void paperAndOrientationLayThePagesOutAnew()
    {
        PreviewUnderTest f(60);
        f.choose("cmbPaper", f.control<QComboBox>("cmbPaper")->findData(QPageSize::A4));
        const int count = f.window.pageCount();
        f.choose("cmbPaper", f.control<QComboBox>("cmbPaper")->findData(QPageSize::A5));
        QCOMPARE(f.window.pageLayout().pageSize().id(), QPageSize::A5);
        QVERIFY(f.window.pageCount() > count);
        f.choose("cmbPaper", f.control<QComboBox>("cmbPaper")->findData(QPageSize::A3));
        QVERIFY(f.window.pageCount() < count);
        f.choose("cmbOrientation", 1);
        QCOMPARE(f.window.pageLayout().orientation(), QPageLayout::Landscape);
        QCOMPARE(f.pageText(), QStringLiteral("1 of %1").arg(f.window.pageCount()));
    }

    void whatIsInViewStaysInViewOnAnotherPaper()
    {
        PreviewUnderTest f(200);
        f.window.goToPage(f.window.pageCount() - 1);
        f.choose("cmbPaper", f.control<QComboBox>("cmbPaper")->findData(QPageSize::A5));
        QVERIFY(f.window.page() > f.window.pageCount() * 3 / 4);
    }

    void withoutAPrinterPrintingIsOffAndSaysWhy()
    {
        PreviewUnderTest f(1, false);
        QVERIFY(!f.control<QPushButton>("btnPrint")->isEnabled());
        QCOMPARE(f.control<QPushButton>("btnPrint")->toolTip(),
            QStringLiteral("No printer is set up on this computer."));
        QVERIFY(f.control<QPushButton>("btnExport")->isEnabled());
    }

    void withAPrinterPrintingIsOn()
    {
        PreviewUnderTest f(1, true);
        QVERIFY(f.control<QPushButton>("btnPrint")->isEnabled());
        QVERIFY(f.control<QPushButton>("btnPrint")->toolTip().isEmpty());
    }

    void aFurtherContentReplacesTheFirstAndTurnsToItsFirstPage()
    {
        PreviewUnderTest f(60);
        f.window.goToPage(2);
        const QImage before = f.picture();
        f.window.setContent(contentOf(recordsOf(2)));
        QCOMPARE(f.pageText(), QStringLiteral("1 of 1"));
        QVERIFY(f.picture() != before);
    }

    void aCancelledContentLeavesTheReportInView()
    {
        SlowPreview f(60);
        f.window.goToPage(2);
        const QString before = f.pageText();
        const BoxWatch watch(cancel);
        QVERIFY_THROWS_EXCEPTION(Cancelled, f.window.setContent(contentOf(recordsOf(2))));
        QCOMPARE(f.pageText(), before);
        QCOMPARE(f.window.page(), 2);
    }

    void aCancelledPaperIsTakenBack()
    {
        SlowPreview f(60);
        f.window.goToPage(2);
        const QString before = f.pageText();
        const QPageLayout layout = f.window.pageLayout();
        const auto* papers = f.control<QComboBox>("cmbPaper");
        const int paper = papers->currentIndex();
        const BoxWatch watch(cancel);
        f.choose("cmbPaper", papers->findText(QStringLiteral("A5")));
        QCOMPARE(papers->currentIndex(), paper);
        QCOMPARE(f.window.pageLayout(), layout);
        QCOMPARE(f.pageText(), before);
        f.choose("cmbPaper", papers->findText(QStringLiteral("A5")));
        QVERIFY(f.pageText() != before);
    }

    void aLongLayoutTellsHowFarItIs()
    {
        SlowPreview f(1);
        int seen = -1;
        const BoxWatch watch(
            [&seen](const QDialog& box) { seen = box.findChild<QProgressBar*>()->maximum(); });
        f.window.setContent(contentOf(recordsOf(2000)));
        QVERIFY(seen > 0);
        QVERIFY(f.window.pageCount() > 100);
    }

    void thePaperIsWhiteInADarkSkin()
    {
        const QPalette usual = QApplication::palette();
        QPalette dark(QColor(0x20, 0x24, 0x2c));
        QApplication::setPalette(dark);
        {
            PreviewUnderTest f(1);
            const QImage picture = f.picture();
            QCOMPARE(picture.pixelColor(picture.rect().center()), QColor(Qt::white));
        }
        QApplication::setPalette(usual);
    }

    void closingTellsTheHost()
    {
        PreviewUnderTest f(1);
        f.window.close();
        QCOMPARE(f.host.closed, 1);
        QVERIFY(!f.window.isVisible());
    }

    void escapeClosesItFromEveryControl_data()
    {
        QTest::addColumn<QString>("control");
        for (const char* name : {"btnExport", "cmbZoom", "spnPage", "btnNextPage"}) {
            QTest::newRow(name) << QString::fromLatin1(name);
        }
    }

    void escapeClosesItFromEveryControl()
    {
        QFETCH(QString, control);
        PreviewUnderTest f(100);
        f.window.show();
        QVERIFY(QTest::qWaitForWindowActive(&f.window));
        auto* from = f.window.findChild<QWidget*>(control);
        from->setFocus();
        QTest::keyClick(from, Qt::Key_Escape);
        QVERIFY(!f.window.isVisible());
        QCOMPARE(f.host.closed, 1);
    }

    void aNarrowWindowShowsEveryControlWhole_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<Qt::LayoutDirection>("direction");
        QTest::newRow("wide") << QSize(1200, 700) << Qt::LeftToRight;
        QTest::newRow("small screen") << QSize(1004, 590) << Qt::LeftToRight;
        QTest::newRow("scaled screen") << QSize(833, 480) << Qt::LeftToRight;
        QTest::newRow("narrow") << QSize(420, 480) << Qt::LeftToRight;
        QTest::newRow("narrow, from right to left") << QSize(420, 480) << Qt::RightToLeft;
    }

    void aNarrowWindowShowsEveryControlWhole()
    {
        QFETCH(const QSize, size);
        QFETCH(const Qt::LayoutDirection, direction);
        PreviewUnderTest f(60, true);
        f.window.setLayoutDirection(direction);
        f.window.resize(size);
        QCoreApplication::processEvents();
        QCOMPARE(f.window.size(), size);
        QList<QWidget*> controls;
        for (QWidget* control : f.window.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
            if (control->isVisible()) {
                controls.append(control);
            }
        }
        QCOMPARE(controls.size(), 19);
        for (const QWidget* control : std::as_const(controls)) {
            QVERIFY2(f.window.rect().contains(control->geometry()), qPrintable(control->objectName()));
            QVERIFY2(control->width() >= control->minimumSizeHint().width()
                    && control->height() >= control->minimumSizeHint().height(),
                qPrintable(control->objectName()));
            if (control != f.preview()) {
                QVERIFY2(control->width() >= control->sizeHint().width(), qPrintable(control->objectName()));
            }
            for (const QWidget* other : std::as_const(controls)) {
                QVERIFY2(other == control || !other->geometry().intersects(control->geometry()),
                    qPrintable(control->objectName() + u' ' + other->objectName()));
            }
        }
        QVERIFY(f.preview()->height() > 150);
    }

    void aNewWindowHasItsControlsInTwoRows()
    {
        qApp->setStyleSheet(QStringLiteral("QPushButton { padding: 4px 20px; }"));
        {
            PreviewUnderTest f(2000);
            const int commands = f.control<QPushButton>("btnPrint")->geometry().center().y();
            const int pages = f.control<QPushButton>("btnFirstPage")->geometry().center().y();
            QVERIFY(f.window.pageCount() > 100);
            for (const QWidget* control : f.window.findChildren<QPushButton*>()) {
                const int row = control->geometry().center().y();
                QVERIFY2(row == commands || row == pages, qPrintable(control->objectName()));
            }
        }
        qApp->setStyleSheet({});
    }

    void everyControlIsReachedByTabAndByAMnemonicOfItsOwn()
    {
        PreviewUnderTest f(60, true);
        QSet<QChar> mnemonics;
        QStringList captions;
        for (const auto* button : f.window.findChildren<QPushButton*>()) {
            captions.append(button->text());
            QVERIFY(button->focusPolicy() & Qt::TabFocus);
        }
        for (const auto* label : f.window.findChildren<QLabel*>()) {
            if (qobject_cast<const QuietLine*>(label) != nullptr) {
                continue;
            }
            QVERIFY(label->buddy() != nullptr);
            QVERIFY(label->buddy()->focusPolicy() & Qt::TabFocus);
            captions.append(label->text());
        }
        for (const QString& caption : captions) {
            const qsizetype mark = caption.indexOf(u'&');
            QVERIFY2(mark >= 0, qPrintable(caption));
            mnemonics.insert(caption[mark + 1].toLower());
        }
        QCOMPARE(mnemonics.size(), captions.size());
        QCOMPARE(captions.size(), 13);
    }
};

AMBERTASK_TEST_MAIN(PreviewWindowTest)
#include "tst_preview_window.moc"
