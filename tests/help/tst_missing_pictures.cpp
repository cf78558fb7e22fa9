#include "help/window/CompiledHelpWindow.h"
#include "help/window/TopicView.h"
#include "support/TestMain.h"
#include "tests/help/HelpFileOf.h"
#include "tests/help/RecordedHelpHost.h"

#include <QBuffer>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBlock>

namespace
{

QByteArray bluePicture(QSize size)
{
    QImage picture(size, QImage::Format_RGB32);
    picture.fill(Qt::blue);
    QBuffer buffer;
    picture.save(&buffer, "PNG");
    return buffer.data();
}

/// The window on a help file with the topic "a.html", and "b.html" beside it.
struct Topic {
    explicit Topic(const QByteArray& body)
    {
        const QByteArray content = helpFileOf({{"/#SYSTEM", helpSystem("a.html")},
            {"/a.html", helpTopic(body)}, {"/b.html", helpTopic("<p>Another</p>")},
            {"/there.png", bluePicture({40, 30})}, {"/torn.png", bluePicture({40, 30}).left(50)}});
        QFile file(folder.filePath(QStringLiteral("h.chm")));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
        file.close();
        window.setFile(file.fileName());
        window.resize(800, 500);
        window.show();
        window.showDefaultTopic();
    }

    /// With "*" for each picture.
    QString text() const
    {
        return view()
            .toPlainText()
            .replace(QChar::ObjectReplacementCharacter, u'*')
            .replace(QChar::Nbsp, u' ');
    }
    TopicView& view() const { return *window.findChild<TopicView*>(); }
    /// The sizes in which the pictures are shown, by name.
    QStringList pictures() const
    {
        QStringList found;
        for (QTextBlock block = view().document()->begin(); block.isValid(); block = block.next()) {
            for (auto part = block.begin(); part != block.end(); ++part) {
                const QTextImageFormat format = part.fragment().charFormat().toImageFormat();
                if (format.isValid()) {
                    const auto image = view()
                                           .document()
                                           ->resource(QTextDocument::ImageResource, QUrl(format.name()))
                                           .value<QImage>();
                    const int width = format.width() > 0 ? int(format.width()) : image.width();
                    const int height = format.height() > 0 ? int(format.height()) : image.height();
                    found.append(QStringLiteral("%1 %2x%3").arg(format.name()).arg(width).arg(height));
                }
            }
        }
        return found;
    }

    QTemporaryDir folder;
    RecordedHelpHost host;
    CompiledHelpWindow window{host, [] {
                                  return false;
                              }};
};

} // namespace

/// Pictures that a topic names and the help file does not hold.
class MissingPicturesTest : public TestCase
{
    Q_OBJECT

private slots:
    void theAlternativeTextIsReadInstead()
    {
        const Topic topic("<p>Before <img src=\"lost.png\" alt=\"The page  Tasks\"> after</p>");
        QCOMPARE(topic.text(), QStringLiteral("Before * The page Tasks after"));
    }

    void oneThatIsNoPictureIsMissingToo()
    {
        const Topic topic("<p><img src=\"torn.png\" alt=\"Torn\"></p>");
        QCOMPARE(topic.text(), QStringLiteral("* Torn"));
    }

    void onesThatAreThereStayAsTheyAre()
    {
        const Topic topic("<p><img src=\"there.png\" alt=\"A picture\" width=\"80\"></p>");
        QCOMPARE(topic.text(), QStringLiteral("*"));
        QCOMPARE(topic.pictures(), QStringList(QStringLiteral("there.png 80x30")));
    }

    void eachHasItsOwnText()
    {
        const Topic topic("<p><img src=\"lost.png\" alt=\"First\"><img src=\"there.png\" alt=\"Second\">"
                          "<img src=\"lost.png\" alt=\"Third\"></p><table><tr><td>"
                          "<img src=\"gone.png\" alt=\"Fourth\"></td></tr></table>");
        QCOMPARE(topic.text(), QStringLiteral("* First** Third\n* Fourth\n"));
    }

    void aSmallFrameIsDrawnWhateverSizeIsAskedFor()
    {
        const Topic topic("<p><img src=\"lost.png\" width=\"700\" height=\"400\"></p>");
        QCOMPARE(topic.text(), QStringLiteral("*"));
        QCOMPARE(topic.pictures(), QStringList(QStringLiteral("lost.png 16x16")));
        const QImage shown = topic.view().viewport()->grab().toImage();
        QSet<QRgb> colours;
        for (int y = 0; y < 60; ++y) {
            for (int x = 0; x < 60; ++x) {
                colours.insert(shown.pixel(x, y));
            }
        }
        QVERIFY(colours.size() > 1);
    }

    void theTextIsNoMarkup()
    {
        const Topic topic("<p><img src=\"lost.png\" alt=\"&lt;b&gt;bold&lt;/b&gt;&#10;line\"></p>");
        QCOMPARE(topic.text(), QStringLiteral("* <b>bold</b> line"));
    }

    void theTextIsWithinTheLinkOfThePicture()
    {
        const Topic topic("<p><a href=\"b.html\"><img src=\"lost.png\" alt=\"More\"></a></p>");
        const QTextBlock block = topic.view().document()->begin();
        QTextCursor end(block);
        end.movePosition(QTextCursor::EndOfBlock);
        QCOMPARE(end.charFormat().anchorHref(), QStringLiteral("b.html"));
        QVERIFY(!end.charFormat().isImageFormat());
    }

    void theTextStandsThereOnceHoweverOftenTheTopicIsShown()
    {
        const Topic topic("<h1 id=\"top\">Title</h1><p><img src=\"lost.png\" alt=\"Picture\"></p>");
        const QString expected = QStringLiteral("Title\n* Picture");
        QCOMPARE(topic.text(), expected);
        topic.view().openTopic(QStringLiteral("a.html#top"));
        QCOMPARE(topic.text(), expected);
        topic.view().openTopic(QStringLiteral("b.html"));
        topic.view().backward();
        QCOMPARE(topic.text(), expected);
        QPalette dark = topic.view().palette();
        dark.setColor(QPalette::Base, Qt::black);
        topic.view().setPalette(dark);
        QCOMPARE(topic.text(), expected);
    }

    void aWordOfTheTextIsMarkedWhenItIsSearchedFor()
    {
        const Topic topic("<p><img src=\"lost.png\" alt=\"A chart of tasks\"></p>");
        topic.view().openTopic(QStringLiteral("a.html"), {QStringLiteral("chart")});
        const auto marks = topic.view().extraSelections();
        QCOMPARE(marks.size(), 1);
        QCOMPARE(marks.first().cursor.selectedText(), QStringLiteral("chart"));
    }

    void aPlaceIsStillScrolledTo()
    {
        QByteArray body;
        for (int i = 0; i < 60; ++i) {
            body += "<p><img src=\"lost.png\" width=\"9\" height=\"300\" alt=\"Picture\"></p>";
        }
        const Topic topic(body + "<h2 id=\"end\">End</h2>" + QByteArray("<p>.</p>").repeated(80));
        topic.view().openTopic(QStringLiteral("b.html"));
        topic.view().openTopic(QStringLiteral("a.html#end"));
        const QTextCursor first = topic.view().cursorForPosition(QPoint(20, 20));
        QCOMPARE(first.block().text(), QStringLiteral("End"));
    }
};

AMBERTASK_TEST_MAIN(MissingPicturesTest)
#include "tst_missing_pictures.moc"
