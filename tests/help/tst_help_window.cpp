#include "help/window/MissingPictures.h"
#include "support/TestMain.h"
#include "tests/help/HelpUnderTest.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBlock>

namespace
{

/// The link with that text in the topic on show.
QUrl linkNamed(const TopicView& topic, const QString& text)
{
    for (QTextBlock block = topic.document()->begin(); block.isValid(); block = block.next()) {
        for (auto part = block.begin(); part != block.end(); ++part) {
            const QTextFragment fragment = part.fragment();
            if (fragment.charFormat().isAnchor() && fragment.text() == text) {
                return QUrl(fragment.charFormat().anchorHref());
            }
        }
    }
    return {};
}

} // namespace

class HelpWindowTest : public TestCase
{
    Q_OBJECT

private slots:
    void theDefaultTopicIsTheWelcome()
    {
        Help help;
        help.window.showDefaultTopic();
        QCOMPARE(help.topic.topic(), QStringLiteral("/welcome.html"));
        QVERIFY(help.topic.toPlainText().startsWith(QLatin1String("Welcome to Ambertask")));
        QVERIFY(help.topic.hasFocus());
    }

    void aContextNumberShowsItsTopicAndSelectsItInTheContents()
    {
        Help help;
        help.window.showContext(4);
        QCOMPARE(help.topic.topic(), QStringLiteral("/alert.html"));
        QCOMPARE(help.selectedInContents(), QStringLiteral("The alert window"));
        help.window.showContext(0);
        QCOMPARE(help.topic.topic(), QStringLiteral("/tasks.html"));
        QCOMPARE(help.selectedInContents(), QStringLiteral("The page Tasks"));
    }

    void anUnknownContextNumberIsToldAndTheNextOneIsShown()
    {
        Help help;
        help.window.showContext(0);
        help.window.showContext(99);
        QVERIFY(help.topic.toPlainText().contains(QLatin1String("no topic number 99")));
        help.window.showContext(0);
        QVERIFY(help.topic.toPlainText().startsWith(QLatin1String("The page Tasks")));
    }

    void theContentsOpenOnTheirTabWithTheKeyboardInTheTree()
    {
        Help help;
        help.window.showIndex();
        help.window.showContents();
        QCOMPARE(help.page(), QStringLiteral("Contents"));
        QVERIFY(help.control("treContents").hasFocus());
        QCOMPARE(help.topic.topic(), QStringLiteral("/welcome.html"));
    }

    void theContentsLeaveTheTopicThatIsOnShow()
    {
        Help help;
        help.window.showContext(3);
        help.window.showContents();
        QCOMPARE(help.topic.topic(), QStringLiteral("/maintenance.html"));
    }

    void selectingAnEntryOfTheContentsShowsItsTopic()
    {
        Help help;
        help.window.showContents();
        // Past the heading "The main window" to the page below it.
        QTest::keyClick(&help.control("treContents"), Qt::Key_Down);
        QCOMPARE(help.topic.topic(), QStringLiteral("/welcome.html"));
        QTest::keyClick(&help.control("treContents"), Qt::Key_Down);
        QCOMPARE(help.topic.topic(), QStringLiteral("/tasks.html"));
    }

    void everyEntryOfTheContentsShowsAPage()
    {
        Help help;
        auto& tree = help.control<QTreeWidget>("treContents");
        int shown = 0;
        for (QTreeWidgetItemIterator item(&tree); *item != nullptr; ++item) {
            tree.setCurrentItem(*item);
            QVERIFY2(!help.topic.toPlainText().contains(QLatin1String("cannot be shown")),
                qPrintable((*item)->text(0)));
            ++shown;
        }
        QVERIFY(shown > 15);
    }

    void typingInTheIndexSelectsTheFirstEntryThatBeginsSo()
    {
        Help help;
        help.window.showIndex();
        QCOMPARE(help.page(), QStringLiteral("Index"));
        QVERIFY(help.control("txtIndex").hasFocus());
        QTest::keyClicks(&help.control("txtIndex"), QStringLiteral("SLEEP"));
        auto& list = help.control<QListWidget>("lstIndex");
        QCOMPARE(list.currentItem()->text(), QStringLiteral("sleep of the computer"));
        QTest::keyClick(&help.control("txtIndex"), Qt::Key_Return);
        QCOMPARE(help.topic.topic(), QStringLiteral("/reminders.html"));
    }

    void theArrowKeysGoThroughTheIndexWhileTyping()
    {
        Help help;
        help.window.showIndex();
        QTest::keyClicks(&help.control("txtIndex"), QStringLiteral("sleep"));
        QTest::keyClick(&help.control("txtIndex"), Qt::Key_Down);
        QCOMPARE(help.control<QListWidget>("lstIndex").currentItem()->text(), QStringLiteral("sorting"));
        QVERIFY(help.control("txtIndex").hasFocus());
    }

    void aKeywordThatTheIndexDoesNotHaveSelectsNothing()
    {
        Help help;
        help.window.showIndex();
        QTest::keyClicks(&help.control("txtIndex"), QStringLiteral("zzz"));
        QVERIFY(help.control<QListWidget>("lstIndex").currentItem() == nullptr);
        QTest::keyClick(&help.control("txtIndex"), Qt::Key_Return);
        QCOMPARE(help.topic.topic(), QStringLiteral("/welcome.html"));
    }

    void aLinkLeadsToItsTopicAndBackLeadsBack()
    {
        Help help;
        help.window.showDefaultTopic();
        QVERIFY(!help.control("btnBack").isEnabled());
        const QUrl link = linkNamed(help.topic, QStringLiteral("Maintenance"));
        QVERIFY(!link.isEmpty());
        emit help.topic.anchorClicked(link);
        QCOMPARE(help.topic.topic(), QStringLiteral("/maintenance.html"));
        QCOMPARE(help.selectedInContents(), QStringLiteral("The page Maintenance"));
        help.press("btnBack");
        QCOMPARE(help.topic.topic(), QStringLiteral("/welcome.html"));
        QCOMPARE(help.selectedInContents(), QStringLiteral("Welcome to Ambertask"));
        QVERIFY(!help.control("btnBack").isEnabled());
        help.press("btnForward");
        QCOMPARE(help.topic.topic(), QStringLiteral("/maintenance.html"));
        help.press("btnHome");
        QCOMPARE(help.topic.topic(), QStringLiteral("/welcome.html"));
    }

    void picturesAreTakenFromTheHelpFile()
    {
        Help help;
        help.window.showContext(0);
        QVERIFY(help.topic.toPlainText().contains(QChar::ObjectReplacementCharacter));
        const QVariant picture = help.topic.document()->resource(
            QTextDocument::ImageResource, QUrl(QStringLiteral("12-reminder.png")));
        QCOMPARE(picture.value<QImage>().height(), 24);
    }

    void nothingIsReadFromTheDisk_data()
    {
        QTest::addColumn<QUrl>("address");
        QTest::newRow("file") << QUrl::fromLocalFile(QStringLiteral(AMBERTASK_HELP_SOURCES "/help.css"));
        QTest::newRow("resource") << QUrl(
            QStringLiteral("qrc:/qt-project.org/styles/commonstyle/images/up-16.png"));
        QTest::newRow("upwards") << QUrl(QStringLiteral("../../../../../../../../etc/passwd"));
    }

    void nothingIsReadFromTheDisk()
    {
        QFETCH(const QUrl, address);
        Help help;
        help.window.showContext(0);
        const QVariant read = help.topic.document()->resource(QTextDocument::ImageResource, address);
        QCOMPARE(read.value<QImage>(), noPicture());
        emit help.topic.anchorClicked(address);
        QVERIFY(!help.topic.toPlainText().contains(QLatin1String("root:")));
        QVERIFY(!help.topic.toPlainText().contains(QLatin1String("font-family")));
    }

    void picturesThatTheFileDoesNotHoldAreNotDrawnFromTheDisk()
    {
        // Its name has to fit into the place of another.
        const QTemporaryDir folder(QStringLiteral("/tmp/XXXXXX"));
        QImage red(24, 24, QImage::Format_RGB32);
        red.fill(QColor(0xff, 0x01, 0x02));
        const QString picture = folder.filePath(QStringLiteral("r.png"));
        QVERIFY(red.save(picture));
        QFile good(QStringLiteral(AMBERTASK_HELP_FILE));
        QVERIFY(good.open(QIODevice::ReadOnly));
        QByteArray bytes = good.readAll();
        const QByteArray before("<img src=\"tasks.png\" alt=\"The page Tasks\"></p>");
        QByteArray after = "<img src=\"" + picture.toUtf8() + "\">";
        QVERIFY(after.size() <= before.size());
        after += QByteArray(before.size() - after.size(), ' ');
        QVERIFY(bytes.contains(before));
        bytes.replace(before, after);
        QFile hostile(folder.filePath(QStringLiteral("hostile.chm")));
        QVERIFY(hostile.open(QIODevice::WriteOnly) && hostile.write(bytes) == bytes.size());
        hostile.close();
        Help help;
        help.window.setFile(hostile.fileName());
        help.window.showContext(0);
        const QImage shown = help.topic.grab().toImage();
        for (int y = 0; y < shown.height(); ++y) {
            for (int x = 0; x < shown.width(); ++x) {
                QVERIFY(shown.pixelColor(x, y) != QColor(0xff, 0x01, 0x02));
            }
        }
    }

    void mnemonicsAreOfTheirControlAlone_data()
    {
        QTest::addColumn<int>("tab");
        QTest::newRow("contents") << 0;
        QTest::newRow("index") << 1;
        QTest::newRow("search") << 2;
    }

    void mnemonicsAreOfTheirControlAlone()
    {
        QFETCH(const int, tab);
        Help help;
        help.tabs.setCurrentIndex(tab);
        QStringList captions;
        for (int i = 0; i < help.tabs.count(); ++i) {
            captions.append(help.tabs.tabText(i));
        }
        for (const auto* button : help.window.findChildren<QPushButton*>()) {
            if (button->isVisible()) {
                captions.append(button->text());
            }
        }
        for (const auto* label : help.window.findChildren<QLabel*>()) {
            if (label->isVisible() && label->buddy() != nullptr) {
                captions.append(label->text());
            }
        }
        QSet<QChar> mnemonics;
        for (const QString& caption : std::as_const(captions)) {
            const qsizetype mark = caption.indexOf(u'&');
            QVERIFY2(mark >= 0, qPrintable(caption));
            QVERIFY2(!mnemonics.contains(caption[mark + 1].toLower()), qPrintable(caption));
            mnemonics.insert(caption[mark + 1].toLower());
        }
        QVERIFY(mnemonics.size() >= 9);
    }

    void linksToTheWebLeaveTheTopicAndAskTheDesktop()
    {
        Help help;
        help.window.showContext(0);
        emit help.topic.anchorClicked(
            QUrl(QStringLiteral("https://www.ambertask.example/support.htm?referer=p")));
        QCOMPARE(help.host.webPages,
            QStringList(QStringLiteral("https://www.ambertask.example/support.htm?referer=p")));
        QCOMPARE(help.topic.topic(), QStringLiteral("/tasks.html"));
    }

    void linksOfOtherKindsAreIgnored()
    {
        Help help;
        help.window.showContext(0);
        for (const char* address : {"file:///etc/passwd", "javascript:alert(1)", "mailto:a@b.example"}) {
            emit help.topic.anchorClicked(QUrl(QString::fromLatin1(address)));
        }
        QCOMPARE(help.host.webPages, QStringList());
        QCOMPARE(help.topic.topic(), QStringLiteral("/tasks.html"));
    }

    void theTextGrowsAndShrinksWithinBounds()
    {
        Help help;
        const qreal usual = help.topic.document()->defaultFont().pointSizeF();
        help.press("btnLarger");
        QVERIFY(help.topic.document()->defaultFont().pointSizeF() > usual);
        QTest::keyClick(&help.window, Qt::Key_0, Qt::ControlModifier);
        QCOMPARE(help.topic.document()->defaultFont().pointSizeF(), usual);
        for (int times = 0; times < 40; ++times) {
            help.press("btnSmaller");
        }
        QVERIFY(!help.control("btnSmaller").isEnabled());
        QVERIFY(help.topic.document()->defaultFont().pointSizeF() > 3);
        for (int times = 0; times < 40; ++times) {
            help.press("btnLarger");
        }
        QVERIFY(!help.control("btnLarger").isEnabled());
    }

    void aPaletteOfAnotherSkinRecoloursTheLinks()
    {
        Help help;
        help.window.showContext(3);
        const QPalette before = QApplication::palette();
        QPalette other = before;
        other.setColor(QPalette::Link, QColor(QStringLiteral("#123456")));
        QApplication::setPalette(other);
        QCoreApplication::processEvents();
        const QString html = help.topic.toHtml();
        QApplication::setPalette(before);
        QVERIFY(html.contains(QLatin1String("#123456")));
        QCOMPARE(help.topic.topic(), QStringLiteral("/maintenance.html"));
    }

    void keysDoWhatTheButtonsDo()
    {
        Help help;
        help.window.showDefaultTopic();
        help.window.showContext(2);
        QTest::keyClick(&help.window, Qt::Key_Left, Qt::AltModifier);
        QCOMPARE(help.topic.topic(), QStringLiteral("/welcome.html"));
        QTest::keyClick(&help.window, Qt::Key_Right, Qt::AltModifier);
        QCOMPARE(help.topic.topic(), QStringLiteral("/settings.html"));
        QTest::keyClick(&help.window, Qt::Key_Home, Qt::AltModifier);
        QCOMPARE(help.topic.topic(), QStringLiteral("/welcome.html"));
        QTest::keyClick(&help.window, Qt::Key_F, Qt::ControlModifier);
        QVERIFY(help.control("txtSearch").hasFocus());
        QTest::keyClick(&help.window, Qt::Key_Escape);
        QVERIFY(!help.window.isVisible());
    }

    void everyControlThatTakesTheKeyboardHasAName()
    {
        Help help;
        int checked = 0;
        for (const QWidget* control : help.window.findChildren<QWidget*>()) {
            const bool ours =
                !control->objectName().isEmpty() && !control->objectName().startsWith(QLatin1String("qt_"));
            if (ours && control->focusPolicy() != Qt::NoFocus
                && qobject_cast<const QTabWidget*>(control) == nullptr) {
                const auto* button = qobject_cast<const QAbstractButton*>(control);
                QVERIFY2(
                    !control->accessibleName().isEmpty() || (button != nullptr && !button->text().isEmpty()),
                    qPrintable(control->objectName()));
                ++checked;
            }
        }
        QVERIFY(checked >= 10);
    }
};

AMBERTASK_TEST_MAIN(HelpWindowTest)
#include "tst_help_window.moc"
