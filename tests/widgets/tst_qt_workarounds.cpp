#include "support/TestMain.h"

#include <QAccessible>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMessageBox>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QProxyStyle>
#include <QPushButton>
#include <QScopeGuard>
#include <QScrollArea>
#include <QSignalSpy>
#include <QStandardItemModel>
#include <QStandardPaths>
#include <QStyle>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBrowser>
#include <QTimeEdit>
#include <QTimer>
#include <QTreeView>

namespace
{

constexpr QRgb Red = 0xffff0102;

QAccessibleInterface& accessible(QObject& object)
{
    return *QAccessible::queryAccessibleInterface(&object);
}

/// Three columns, the first one hidden as the ids of a list are.
struct ShownTable {
    ShownTable()
    {
        for (int row = 0; row < 2; ++row) {
            model.appendRow({new QStandardItem, new QStandardItem, new QStandardItem});
        }
        view.setModel(&model);
        view.setColumnHidden(0, true);
        view.setSelectionBehavior(QAbstractItemView::SelectRows);
        view.setSelectionMode(QAbstractItemView::SingleSelection);
    }

    bool show()
    {
        view.show();
        return QTest::qWaitForWindowActive(&view);
    }

    QStandardItemModel model;
    QTableView view;
};

/// Answers nothing for any picture.
class BrowserWithoutPictures final : public QTextBrowser
{
public:
    QVariant loadResource(int /*type*/, const QUrl& /*name*/) override { return {}; }
};

/// Makes number, date and time fields higher than all others.
class HighFields final : public QProxyStyle
{
public:
    HighFields() : QProxyStyle(QStringLiteral("fusion")) { }

    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
        const QWidget* widget) const override
    {
        const QSize usual = QProxyStyle::sizeFromContents(type, option, size, widget);
        return type == CT_SpinBox ? usual.grownBy(QMargins(0, 50, 0, 50)) : usual;
    }
};

QImage drawn(const QString& text)
{
    QImage image(200, 40, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    QApplication::style()->drawItemText(&painter, image.rect(), Qt::AlignCenter | Qt::TextShowMnemonic,
        QPalette(Qt::black, Qt::white), true, text, QPalette::WindowText);
    return image;
}

/// The height of what differs, in pixels.
int differentLines(const QImage& one, const QImage& other)
{
    int lines = 0;
    for (int y = 0; y < one.height(); ++y) {
        lines += one.copy(0, y, one.width(), 1) == other.copy(0, y, other.width(), 1) ? 0 : 1;
    }
    return lines;
}

} // namespace

/// The faults of Qt 6.4.2 that the program works around, one function each: it passes while plain Qt has the
/// fault. When one fails with another version of Qt, the workaround whose comment names it can go.
class QtWorkaroundsTest : public TestCase
{
    Q_OBJECT

private slots:
    void cleanup() { QApplication::setLayoutDirection(Qt::LeftToRight); }

    void aTableCountsHiddenColumnsAndHeaders()
    {
        ShownTable table;
        QVERIFY(table.show());
        QCOMPARE(accessible(table.view).tableInterface()->columnCount(), 3);
        QVERIFY(accessible(table.view).childCount() > 2 * 3);
    }

    void aTableThatGetsTheFocusMakesItsFirstRowCurrent()
    {
        ShownTable table;
        QVERIFY(table.show());
        table.view.clearFocus();
        table.view.selectionModel()->clearCurrentIndex();
        table.view.setFocus(Qt::TabFocusReason);
        QCOMPARE(table.view.currentIndex().row(), 0);
        QVERIFY(!table.view.selectionModel()->hasSelection());
    }

    void aListThatGetsTheFocusMakesItsFirstItemCurrent()
    {
        QListWidget list;
        list.addItems({QStringLiteral("one"), QStringLiteral("two")});
        list.show();
        QVERIFY(QTest::qWaitForWindowActive(&list));
        list.clearFocus();
        list.setCurrentItem(nullptr);
        list.setFocus(Qt::TabFocusReason);
        QCOMPARE(list.currentRow(), 0);
    }

    void selectRowClearsFromRightToLeft()
    {
        ShownTable table;
        table.view.setLayoutDirection(Qt::RightToLeft);
        QVERIFY(table.show());
        table.view.selectRow(1);
        table.view.selectRow(1);
        QVERIFY(table.view.selectionModel()->selectedRows().isEmpty());
    }

    void aScrollAreaRevealsTheWrongSideFromRightToLeft()
    {
        QScrollArea area;
        area.setLayoutDirection(Qt::RightToLeft);
        auto* content = new QWidget;
        content->setFixedSize(2000, 50);
        auto* last = new QPushButton(content);
        last->setGeometry(0, 0, 80, 30);
        area.setWidget(content);
        area.resize(300, 120);
        area.show();
        QVERIFY(QTest::qWaitForWindowExposed(&area));
        area.ensureWidgetVisible(last);
        QVERIFY(last->visibleRegion().isEmpty());
    }

    void aFlagHidesAVisibleWindow()
    {
        QWidget window;
        window.show();
        window.setWindowFlag(Qt::WindowStaysOnTopHint);
        QVERIFY(!window.isVisible());
    }

    void aFileNameInAQuestionIsTakenForMarkup()
    {
        const QTemporaryDir folder;
        const QString name = QStringLiteral("<b>x<b>.abk");
        QFile file(folder.filePath(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QFileDialog dialog(nullptr, {}, folder.path());
        dialog.setAcceptMode(QFileDialog::AcceptSave);
        dialog.selectFile(name);
        Qt::TextFormat format = Qt::PlainText;
        QTimer::singleShot(0, &dialog, [&] {
            QTimer::singleShot(0, &dialog, [&] {
                auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
                format = box == nullptr ? format : box->textFormat();
                QApplication::activeModalWidget()->close();
                dialog.reject();
            });
            dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Save)->click();
        });
        dialog.exec();
        QCOMPARE(format, Qt::AutoText);
    }

    void aPrintDoesNotGoToTheDocuments()
    {
        QPrinter printer;
        const QPrintDialog dialog(&printer);
        const QString file = dialog.findChild<QLineEdit*>(QStringLiteral("filename"))->text();
        const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
        QVERIFY(QFileInfo(file).absolutePath() != documents);
    }

    void aCheckBoxToggledByAssistiveTechnologyIsNotClicked()
    {
        QCheckBox box;
        const QSignalSpy clicked(&box, &QCheckBox::clicked);
        accessible(box).actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
        QVERIFY(box.isChecked());
        QCOMPARE(clicked.count(), 0);
    }

    void noActionOfAComboEntryChoosesIt()
    {
        QComboBox combo;
        combo.addItems({QStringLiteral("one"), QStringLiteral("two")});
        const QSignalSpy activated(&combo, &QComboBox::activated);
        QAccessibleActionInterface* entry = accessible(*combo.view()).child(1)->actionInterface();
        for (const QString& action : entry->actionNames()) {
            entry->doAction(action);
        }
        QCOMPARE(combo.currentIndex(), 0);
        QCOMPARE(activated.count(), 0);
    }

    void theActionOfAMenuButtonReturnsWhenTheMenuIsClosed()
    {
        QPushButton button;
        QMenu menu;
        menu.addAction(QStringLiteral("entry"));
        button.setMenu(&menu);
        button.show();
        QVERIFY(QTest::qWaitForWindowActive(&button));
        bool wasClosed = false;
        QTimer::singleShot(0, &menu, [&] { wasClosed = menu.close(); });
        accessible(button).actionInterface()->doAction(QAccessibleActionInterface::showMenuAction());
        QVERIFY(wasClosed);
    }

    void anEntryOfAMenuThatAssistiveTechnologyPressesActsAtOnceAndTheMenuStaysOpen()
    {
        QMenu menu;
        menu.addAction(QStringLiteral("entry"));
        menu.popup(QPoint(10, 10));
        const QSignalSpy triggered(&menu, &QMenu::triggered);
        accessible(menu).child(0)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QCOMPARE(triggered.count(), 1);
        QVERIFY(menu.isVisible());
    }

    void aMenuThatReadsFromRightToLeftOpensToTheRightOfItsPlace()
    {
        QMenu menu;
        menu.addAction(QStringLiteral("entry"));
        menu.setLayoutDirection(Qt::RightToLeft);
        const QPoint place = QCursor::pos() + QPoint(20, 20);
        menu.popup(place);
        QCOMPARE(menu.pos(), place);
    }

    void aPlainWindowIsAContainer()
    {
        QWidget window;
        QCOMPARE(accessible(window).role(), QAccessible::Client);
    }

    void aBlankInTheMiddleOfANameOpensTheList()
    {
        QComboBox combo;
        combo.addItems({QStringLiteral("Call home"), QStringLiteral("Call work")});
        combo.show();
        QVERIFY(QTest::qWaitForWindowActive(&combo));
        QTest::keyClicks(&combo, QStringLiteral("call "));
        QVERIFY(combo.view()->isVisible());
    }

    void aComboMakesItsListToStyleIt()
    {
        QComboBox combo;
        QEvent restyled(QEvent::StyleChange);
        QCoreApplication::sendEvent(&combo, &restyled);
        QVERIFY(combo.findChild<QAbstractItemView*>() != nullptr);
    }

    void digitsAfterAClickAreNotTaken()
    {
        QTimeEdit time(QTime(2, 6));
        time.setDisplayFormat(QStringLiteral("HH:mm"));
        time.show();
        QVERIFY(QTest::qWaitForWindowActive(&time));
        auto* edit = time.findChild<QLineEdit*>();
        QTest::mouseClick(edit, Qt::LeftButton, {}, edit->rect().center());
        QTest::keyClicks(&time, QStringLiteral("1159"));
        QVERIFY(time.time() != QTime(11, 59));
    }

    void digitsAreNotTakenInTheNameOfAMonth()
    {
        QDateEdit date(QDate(2026, 2, 15));
        date.setLocale(QLocale::c());
        date.setDisplayFormat(QStringLiteral("d MMM yyyy"));
        date.show();
        QVERIFY(QTest::qWaitForWindowActive(&date));
        date.setSelectedSection(QDateTimeEdit::MonthSection);
        QTest::keyClicks(&date, QStringLiteral("11"));
        QCOMPARE(date.date(), QDate(2026, 2, 15));
    }

    void underAStyleSheetTheColoursOfABalloonDoNotReachItsLabels()
    {
        qApp->setStyleSheet(QStringLiteral("QToolTip { padding: 1px; }"));
        const auto sheet = qScopeGuard([] { qApp->setStyleSheet(QString()); });
        QWidget balloon;
        const QLabel label(QStringLiteral("still running"), &balloon);
        QPalette palette = balloon.palette();
        palette.setColor(QPalette::WindowText, QColor::fromRgb(Red));
        balloon.setPalette(palette);
        balloon.show();
        QVERIFY(QTest::qWaitForWindowExposed(&balloon));
        QVERIFY(label.palette().color(QPalette::WindowText) != QColor::fromRgb(Red));
    }

    void theSizeColumnOfAFileDialogIsTooNarrow()
    {
        const QTemporaryDir folder;
        QFile file(folder.filePath(QStringLiteral("file")));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.resize(150 * 1024));
        QFileDialog dialog(nullptr, QString(), folder.path());
        dialog.setOption(QFileDialog::DontUseNativeDialog);
        dialog.show();
        const auto* list = dialog.findChild<QTreeView*>(QStringLiteral("treeView"));
        QTRY_COMPARE(list->model()->rowCount(list->rootIndex()), 1);
        const QModelIndex size = list->model()->index(0, 1, list->rootIndex());
        QVERIFY(list->sizeHintForIndex(size).width() > list->columnWidth(1));
    }

    void a31stIsNotTakenWhileAShorterMonthIsShown()
    {
        QDateEdit date(QDate(2026, 2, 15));
        date.setDisplayFormat(QStringLiteral("dd/MM/yyyy"));
        date.show();
        QVERIFY(QTest::qWaitForWindowActive(&date));
        date.setSelectedSection(QDateTimeEdit::DaySection);
        QTest::keyClicks(&date, QStringLiteral("31032026"));
        QVERIFY(date.date() != QDate(2026, 3, 31));
    }

    void aTimeIsTurnedAroundFromRightToLeft()
    {
        QApplication::setLayoutDirection(Qt::RightToLeft);
        QTimeEdit time(QTime(13, 5));
        time.setDisplayFormat(QStringLiteral("HH:mm"));
        time.show();
        QVERIFY(QTest::qWaitForWindowActive(&time));
        time.setFocus(Qt::TabFocusReason);
        QTest::keyClicks(&time, QStringLiteral("1047"));
        QVERIFY(time.time() != QTime(10, 47));
    }

    void theUnderlineOfAMnemonicTearsJoinedLetters()
    {
        const QImage plain = drawn(QStringLiteral("\u0645\u0633\u0627\u0639\u062f\u0629"));
        const QImage marked = drawn(QStringLiteral("\u0645&\u0633\u0627\u0639\u062f\u0629"));
        QVERIFY(differentLines(plain, marked) > 2);
    }

    void aPaletteDoesNotReachWhatASheetHasPolished()
    {
        const QPalette before = QApplication::palette();
        const auto restore = qScopeGuard([&] {
            qApp->setStyleSheet({});
            QApplication::setPalette(before);
        });
        qApp->setStyleSheet(QStringLiteral("QLineEdit { background: white; }"));
        QLineEdit edit;
        edit.show();
        QVERIFY(QTest::qWaitForWindowExposed(&edit));
        QPalette other = before;
        other.setColor(QPalette::Text, QColor(Red));
        QApplication::setPalette(other);
        QVERIFY(edit.palette().color(QPalette::Text) != QColor(Red));
    }

    void aSheetAsksNoStyleForTheHeightOfATime()
    {
        HighFields style;
        QTimeEdit time;
        time.setStyle(&style);
        QVERIFY(time.sizeHint().height() > 100);
        time.setStyleSheet(QStringLiteral("QAbstractSpinBox { border: 1px solid; }"));
        QVERIFY(time.sizeHint().height() < 100);
    }

    void aPictureThatIsNotThereIsReadFromTheDisk()
    {
        const QTemporaryDir folder;
        QImage picture(24, 24, QImage::Format_RGB32);
        picture.fill(Red);
        const QString name = folder.filePath(QStringLiteral("r.png"));
        QVERIFY(picture.save(name));
        BrowserWithoutPictures browser;
        browser.setHtml(QStringLiteral("<img src=\"%1\">").arg(name));
        const QImage shown = browser.grab().toImage();
        bool isDrawn = false;
        for (int y = 0; y < shown.height(); ++y) {
            for (int x = 0; x < shown.width(); ++x) {
                isDrawn = isDrawn || shown.pixel(x, y) == Red;
            }
        }
        QVERIFY(isDrawn);
    }
};

AMBERTASK_TEST_MAIN(QtWorkaroundsTest)
#include "tst_qt_workarounds.moc"
