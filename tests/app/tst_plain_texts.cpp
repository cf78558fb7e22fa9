#include "categories/frmCategoryDetails.h"
#include "help/frmAbout.h"
#include "help/window/CompiledHelpWindow.h"
#include "reminders/frmAlerts.h"
#include "report/PreviewWindow.h"
#include "support/TestMain.h"
#include "support/TestPictures.h"
#include "tasks/frmTaskDetails.h"
#include "tests/app/ProgramFixture.h"
#include "tests/help/RecordedHelpHost.h"
#include "tests/report/RecordedReportHost.h"
#include "tests/report/ReportSamples.h"
#include "widgets/MessageBoxes.h"
#include "widgets/PlainText.h"
#include "widgets/ScreenErrorReport.h"

#include <QAccessible>
#include <QComboBox>
#include <QHelpEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTextBrowser>
#include <QTextDocument>
#include <QTimer>
#include <QToolTip>
#include <QTreeWidget>

using namespace std::chrono_literals;

namespace
{

const QString Planted = QStringLiteral("<b>x</b><img src=\"file:///x.png\">");

/// What a user reads where Qt decides by itself whether a text is markup.
QString asGuessed(const QString& text)
{
    if (!Qt::mightBeRichText(text)) {
        return text;
    }
    QTextDocument document;
    document.setHtml(text);
    return document.toPlainText();
}

void lookAtLabels(const QWidget& window, QStringList& faults)
{
    for (const QLabel* label : window.findChildren<QLabel*>()) {
        const bool isToolTip = label->windowType() == Qt::ToolTip;
        if (!isToolTip && !label->text().isEmpty() && label->textFormat() != Qt::PlainText) {
            faults.append(QStringLiteral("the label \"%1\" may show markup").arg(label->text()));
        }
    }
}

void lookAtTips(const QWidget& window, QStringList& faults)
{
    for (const QWidget* widget : window.findChildren<QWidget*>()) {
        for (const QString& tip : {widget->toolTip(), widget->statusTip(), widget->whatsThis()}) {
            const QString shown = asGuessed(tip);
            if (shown != tip && plainToolTip(shown) != tip) {
                faults.append(QStringLiteral("the tip \"%1\" is markup").arg(tip));
            }
        }
    }
}

/// The tool tip that the pointer over a cell brings up; empty for none.
QString toolTipAt(QAbstractItemView& view, const QModelIndex& cell)
{
    QToolTip::hideText();
    view.scrollTo(cell);
    const QPoint place = view.visualRect(cell).center();
    QHelpEvent event(QEvent::ToolTip, place, view.viewport()->mapToGlobal(place));
    QCoreApplication::sendEvent(view.viewport(), &event);
    return QToolTip::text();
}

void lookAtCells(QAbstractItemView& view, QStringList& faults)
{
    const QAbstractItemModel& model = *view.model();
    for (int row = 0; row < model.rowCount(); ++row) {
        for (int column = 0; column < model.columnCount(); ++column) {
            const QModelIndex cell = model.index(row, column);
            const QString tip = view.visualRect(cell).isEmpty() ? QString() : toolTipAt(view, cell);
            if (tip.contains(Planted) && asGuessed(tip) != tip) {
                faults.append(QStringLiteral("the tool tip \"%1\" shows markup").arg(tip));
            }
        }
    }
    QToolTip::hideText();
}

QStringList faultsOf(QWidget& window)
{
    QStringList faults;
    lookAtLabels(window, faults);
    lookAtTips(window, faults);
    for (QAbstractItemView* view : window.findChildren<QAbstractItemView*>()) {
        if (view->isVisible() && view->model() != nullptr) {
            lookAtCells(*view, faults);
        }
    }
    for (const QTextEdit* edit : window.findChildren<QTextEdit*>()) {
        // The topics of the help are pages of markup.
        if (qobject_cast<const QTextBrowser*>(edit) == nullptr) {
            faults.append(edit->objectName() + QLatin1String(" takes rich text"));
        }
    }
    return faults;
}

#define EXPECT_PLAIN(window)                                                                                 \
    do {                                                                                                     \
        const QStringList faults = faultsOf(window);                                                         \
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join(u'\n')));                                          \
    } while (false)

/// A program whose data file and folders say `Planted` wherever a user or a file can say something.
struct PlantedProgram : ProgramFixture {
    PlantedProgram()
    {
        database.sql(
            QStringLiteral("update categories set cat_name = '%1' || cat_id, cat_desc = '%1'").arg(Planted));
        const Moment now = database.clock().now();
        task = static_cast<qint16>(aTask(database)
                                       .named(Planted)
                                       .describedAs(Planted)
                                       .in(1)
                                       .remindingAt(now - 12min)
                                       .sounding(Planted)
                                       .starting(Planted)
                                       .played()
                                       .add());
        const QByteArray skin = bytesOf(database.folder() + QStringLiteral("/Skins/Aqua.skf"));
        QByteArray planted = skin;
        planted.replace("@name Aqua", "@name Bold");
        for (const char* field : {"@author ", "@description ", "@version "}) {
            planted.replace(field, field + Planted.toUtf8() + ' ');
        }
        writeFile(database.folder(), QStringLiteral("Skins/Bold.skf"), planted);
        start();
        program.loadDialogs();
    }

    qint16 task = 0;
};

template <typename Window> Window* openWindow()
{
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (auto* found = dynamic_cast<Window*>(window); found != nullptr && found->isVisible()) {
            return found;
        }
    }
    return nullptr;
}

} // namespace

/// What a user or a file wrote is read letter for letter, never as markup.
class PlainTextsTest : public TestCase
{
    Q_OBJECT

private slots:
    void markupIsFound()
    {
        QWidget window;
        auto* label = new QLabel(Planted, &window);
        auto* list = new QListWidget(&window);
        list->addItem(QStringLiteral("entry"));
        list->item(0)->setToolTip(Planted);
        list->setToolTip(Planted);
        window.show();
        QCOMPARE(faultsOf(window).size(), 3);
        label->setTextFormat(Qt::PlainText);
        list->setToolTip({});
        list->item(0)->setToolTip(Planted.toHtmlEscaped());
        EXPECT_PLAIN(window);
    }

    void thePagesOfTheMainWindow()
    {
        PlantedProgram f;
        auto* tabs = f.control<QTabWidget>(f.main(), "tabMain");
        for (int page = 0; page < tabs->count(); ++page) {
            tabs->setCurrentIndex(page);
            EXPECT_PLAIN(f.main());
        }
        QCOMPARE(f.control<QComboBox>(f.main(), "cmbCategories")->itemText(1), Planted + u'1');
        QVERIFY(f.control<QComboBox>(f.main(), "cmbSkins")->findText(QStringLiteral("Bold")) >= 0);
    }

    void theTaskListAndWhatItSaysOfACell()
    {
        PlantedProgram f;
        const QModelIndex name = f.grid(f.main())->model()->index(0, 1);
        QCOMPARE(name.data().toString(), Planted);
        QCOMPARE(name.data(Qt::AccessibleTextRole).toString(), Planted);
        QCOMPARE(name.data(Qt::AccessibleDescriptionRole).toString(),
            QStringLiteral("Due today\nCategory: %1").arg(Planted + u'1'));
        QCOMPARE(asGuessed(toolTipAt(*f.grid(f.main()), name)),
            QStringLiteral("%1\nDue today\nCategory: %2").arg(Planted, Planted + u'1'));
    }

    void theCategoryListAndWhatItSaysOfAnItem()
    {
        PlantedProgram f;
        f.control<QTabWidget>(f.main(), "tabMain")->setCurrentIndex(1);
        auto* list = f.control<QListWidget>(f.main(), "lstViewCategories");
        QCOMPARE(list->item(0)->text(), Planted + u'1');
        // The name is too long for its place, so it stands above the description.
        QCOMPARE(asGuessed(toolTipAt(*list, list->model()->index(0, 0))),
            QStringLiteral("%1\n\n%2").arg(Planted + u'1', Planted));
    }

    void theAlert()
    {
        PlantedProgram f;
        QVERIFY(f.program.alerts().isVisible());
        EXPECT_PLAIN(f.program.alerts());
        GridView* grid = f.grid(f.program.alerts());
        QCOMPARE(asGuessed(toolTipAt(*grid, grid->model()->index(0, 1))),
            QStringLiteral("%1\nDue today\nCategory: %2\n12 minutes late").arg(Planted, Planted + u'1'));
    }

    void theTaskDialog()
    {
        PlantedProgram f;
        frmTaskDetails& dialog = f.program.taskDetails();
        dialog.SetTag(f.task);
        dialog.show();
        EXPECT_PLAIN(dialog);
        QCOMPARE(f.control<QLineEdit>(dialog, "txtTask")->text(), Planted);
        QCOMPARE(f.control<QPlainTextEdit>(dialog, "txtDescription")->toPlainText(), Planted);
        QCOMPARE(f.control<QComboBox>(dialog, "cmbCategories")->currentText(), Planted + u'1');
        QCOMPARE(f.control<QLineEdit>(dialog, "txtReminderSound")->text(), Planted);
    }

    void theCategoryDialog()
    {
        PlantedProgram f;
        frmCategoryDetails& dialog = f.program.categoryDetails();
        dialog.SetTag(QStringLiteral("1"));
        dialog.show();
        EXPECT_PLAIN(dialog);
        QCOMPARE(f.control<QLineEdit>(dialog, "txtCatName")->text(), Planted + u'1');
        QCOMPARE(f.control<QPlainTextEdit>(dialog, "txtCatDesc")->toPlainText(), Planted);
    }

    void theAboutBox()
    {
        PlantedProgram f;
        f.menu("mnuAbout")->trigger();
        auto* box = openWindow<frmAbout>();
        QVERIFY(box != nullptr);
        EXPECT_PLAIN(*box);
    }

    void theReport()
    {
        RecordedReportHost host;
        PreviewWindow window(host, [] { return true; });
        window.setContent(contentOf({recordOf(Planted, Planted)}));
        window.show();
        EXPECT_PLAIN(window);
    }

    void theHelp()
    {
        // Of the same length, or the places in the file would no longer be right.
        const QByteArray title("Welcome to Ambertask");
        const QByteArray planted("&lt;b&gt;x&lt;/b&gt;");
        QCOMPARE(planted.size(), title.size());
        const QTemporaryDir folder;
        const QString file = writeFile(folder.path(), QStringLiteral("planted.chm"),
            bytesOf(QStringLiteral(AMBERTASK_HELP_FILE)).replace(title, planted));
        RecordedHelpHost host;
        CompiledHelpWindow window(host, [] { return true; });
        window.setFile(file);
        window.showDefaultTopic();
        window.show();
        EXPECT_PLAIN(window);
        const QString shown = QStringLiteral("<b>x</b>");
        const auto* contents = window.findChild<QTreeWidget*>(QStringLiteral("treContents"));
        QVERIFY(!contents->findItems(shown, Qt::MatchExactly | Qt::MatchRecursive).isEmpty());
        window.showSearch();
        QTest::keyClicks(window.findChild<QLineEdit*>(QStringLiteral("txtSearch")), QStringLiteral("tasks"));
        QTest::keyClick(window.findChild<QLineEdit*>(QStringLiteral("txtSearch")), Qt::Key_Return);
        const auto* hits = window.findChild<QListWidget*>(QStringLiteral("lstHits"));
        QVERIFY(!hits->findItems(shown, Qt::MatchExactly).isEmpty());
        EXPECT_PLAIN(window);
    }

    void messageBoxesAndErrors()
    {
        QStringList texts;
        QStringList faults;
        const auto lookWhileOpen = [&] {
            QTimer::singleShot(0, qApp, [&] {
                auto* box = openWindow<QMessageBox>();
                texts.append(box->text());
                faults += faultsOf(*box);
                if (box->textFormat() != Qt::PlainText) {
                    faults.append(QStringLiteral("the box guesses"));
                }
                box->reject();
            });
        };
        ScreenMessageBoxes boxes;
        lookWhileOpen();
        boxes.tell(nullptr, MessageBoxes::Icon::Exclamation, Planted);
        lookWhileOpen();
        boxes.ask(nullptr, Planted);
        lookWhileOpen();
        boxes.askAboutUnsaved(nullptr, Planted);
        lookWhileOpen();
        boxes.askWhichTimes(nullptr, Planted);
        ScreenErrorReport errors([] {});
        lookWhileOpen();
        errors.report(Planted);
        lookWhileOpen();
        ScreenErrorReport::reportFailedStart(Planted);
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join(u'\n')));
        QCOMPARE(texts, QStringList(6, Planted));
    }
};

AMBERTASK_TEST_MAIN(PlainTextsTest)
#include "tst_plain_texts.moc"
