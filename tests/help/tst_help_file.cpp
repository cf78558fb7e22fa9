#include "help/window/HelpBook.h"
#include "support/TestMain.h"

#include <QBuffer>
#include <QDir>
#include <QImageReader>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

namespace
{

struct Reference {
    QString from;
    QString to;
};

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void collectTopics(const std::vector<HelpEntry>& entries, QStringList& topics)
{
    for (const HelpEntry& entry : entries) {
        if (!entry.topic.isEmpty()) {
            topics.append(objectPath(entry.topic));
        }
        collectTopics(entry.children, topics);
    }
}

/// What the topics refer to by an attribute, except pages of the web.
QList<Reference> references(const HelpBook& book, const QString& attribute)
{
    const QRegularExpression pattern(QStringLiteral("\\b%1=\"([^\"]*)\"").arg(attribute));
    QList<Reference> all;
    for (const QString& topic : book.topics()) {
        auto matches = pattern.globalMatch(htmlText(book.file().read(topic).value_or(QByteArray())));
        while (matches.hasNext()) {
            const QString target = matches.next().captured(1);
            if (!target.startsWith(QLatin1String("https://"))) {
                all.append({topic, target});
            }
        }
    }
    return all;
}

/// Runs a reader that is not ours; true when it ended well.
bool run(const QString& program, const QStringList& arguments)
{
    QProcess process;
    process.start(program, arguments);
    return process.waitForFinished() && process.exitStatus() == QProcess::NormalExit
        && process.exitCode() == 0;
}

} // namespace

/// The help file of this build, as our reader and as others see it.
class HelpFileTest : public TestCase
{
    Q_OBJECT

private:
    std::unique_ptr<HelpBook> m_book;

    /// Every object that our reader sees lies in `folder`, with the same bytes.
    void compareObjects(const QDir& folder)
    {
        int compared = 0;
        for (const QString& name : m_book->file().names()) {
            if (name != QLatin1String("/")) {
                QCOMPARE(contentOf(folder.path() + name), m_book->file().read(name).value_or("unreadable"));
                ++compared;
            }
        }
        QVERIFY(compared > 30);
    }

private slots:
    void initTestCase()
    {
        m_book = HelpBook::open(QStringLiteral(AMBERTASK_HELP_FILE));
        QVERIFY(m_book != nullptr);
    }

    void itNamesItsTitleAndItsFirstTopic()
    {
        QCOMPARE(m_book->title(), QStringLiteral("Ambertask Help"));
        QCOMPARE(m_book->defaultTopic(), QStringLiteral("/welcome.html"));
    }

    void itHoldsTheSourcesAsTheyAre()
    {
        const QDir sources(QStringLiteral(AMBERTASK_HELP_SOURCES));
        const QStringList names = sources.entryList(
            {QStringLiteral("*.html"), QStringLiteral("*.css"), QStringLiteral("*.hh?")}, QDir::Files);
        QVERIFY(names.size() > 18);
        for (const QString& name : names) {
            QCOMPARE(m_book->file().read(u'/' + name).value_or("missing"), contentOf(sources.filePath(name)));
        }
    }

    void everyTopicIsReachedFromTheContents()
    {
        QStringList listed;
        collectTopics(m_book->contents(), listed);
        for (const QString& topic : m_book->topics()) {
            QVERIFY2(listed.contains(topic), qPrintable(topic));
        }
    }

    void everyEntryOfContentsAndIndexLeadsToATopic()
    {
        QStringList listed;
        collectTopics(m_book->contents(), listed);
        collectTopics(m_book->index(), listed);
        QVERIFY(listed.size() > 50);
        for (const QString& topic : std::as_const(listed)) {
            QVERIFY2(m_book->topics().contains(topic), qPrintable(topic));
        }
    }

    void everyLinkLeadsToATopic()
    {
        const auto links = references(*m_book, QStringLiteral("href"));
        QVERIFY(links.size() > 40);
        for (const Reference& link : links) {
            QVERIFY2(m_book->file().contains(objectPath(link.to)), qPrintable(link.from + link.to));
        }
    }

    void everyPictureIsThereAndReadable()
    {
        const auto pictures = references(*m_book, QStringLiteral("src"));
        // Those of windows and those of the lists.
        QVERIFY2(pictures.size() >= 21, qPrintable(QString::number(pictures.size())));
        for (const Reference& picture : pictures) {
            QByteArray bytes = m_book->file().read(objectPath(picture.to)).value_or(QByteArray());
            QBuffer buffer(&bytes);
            QVERIFY2(!QImageReader(&buffer).read().isNull(), qPrintable(picture.to));
        }
    }

    void everyTopicHasATitleOfItsOwn()
    {
        QStringList titles;
        for (const HelpHit& hit : m_book->find(QStringLiteral("e"))) {
            titles.append(hit.title);
        }
        QCOMPARE(titles.size(), m_book->topics().size());
        QCOMPARE(titles.removeDuplicates(), 0);
        for (const QString& title : std::as_const(titles)) {
            QVERIFY2(!title.contains(QLatin1String(".html")), qPrintable(title));
        }
    }

    void sevenZipReadsTheSameObjects()
    {
        const QTemporaryDir folder;
        // Its listing leaves the internal objects out unless it is told the type.
        QVERIFY(run(QStringLiteral(AMBERTASK_SEVEN_ZIP),
            {QStringLiteral("x"), QStringLiteral("-y"), QStringLiteral("-o") + folder.path(),
                QStringLiteral(AMBERTASK_HELP_FILE)}));
        compareObjects(QDir(folder.path()));
    }

    void libchmReadsTheSameObjects()
    {
        const QTemporaryDir folder;
        QVERIFY(
            run(QStringLiteral(AMBERTASK_EXTRACT_CHM), {QStringLiteral(AMBERTASK_HELP_FILE), folder.path()}));
        compareObjects(QDir(folder.path()));
    }

    void libchmListsEveryObject()
    {
        QProcess process;
        process.start(QStringLiteral(AMBERTASK_ENUM_CHM), {QStringLiteral(AMBERTASK_HELP_FILE)});
        QVERIFY(process.waitForFinished());
        const QString listing = QString::fromUtf8(process.readAllStandardOutput());
        int listed = 0;
        for (const QString& name : m_book->file().names()) {
            const qsizetype size = m_book->file().read(name).value_or(QByteArray()).size();
            const QRegularExpression line(QStringLiteral("^\\s*\\d+\\s+\\d+\\s+%1\\s.*%2$")
                                              .arg(size)
                                              .arg(QRegularExpression::escape(name)),
                QRegularExpression::MultilineOption);
            QVERIFY2(line.match(listing).hasMatch(), qPrintable(name + u'\n' + listing));
            ++listed;
        }
        QVERIFY(listed > 30);
    }

    void theSameSourcesMakeTheSameBytes()
    {
        const QTemporaryDir folder;
        QStringList pictures;
        for (const QString& name : m_book->file().names()) {
            if (name.endsWith(QLatin1String(".png"))) {
                QFile picture(folder.path() + name);
                QVERIFY(picture.open(QIODevice::WriteOnly));
                picture.write(m_book->file().read(name).value_or(QByteArray()));
                pictures.append(picture.fileName());
            }
        }
        const QString again = folder.filePath(QStringLiteral("again.chm"));
        QVERIFY(run(QStringLiteral(AMBERTASK_PYTHON),
            QStringList{QStringLiteral(AMBERTASK_HELP_SOURCES "/make_help.py"), again,
                QStringLiteral(AMBERTASK_HELP_SOURCES)}
                + pictures));
        QVERIFY(contentOf(again) == contentOf(QStringLiteral(AMBERTASK_HELP_FILE)));
    }

    void sourcesThatReferToWhatIsMissingAreRefused()
    {
        const QTemporaryDir folder;
        // Without the pictures that the topics show.
        QProcess process;
        process.start(QStringLiteral(AMBERTASK_PYTHON),
            {QStringLiteral(AMBERTASK_HELP_SOURCES "/make_help.py"),
                folder.filePath(QStringLiteral("refused.chm")), QStringLiteral(AMBERTASK_HELP_SOURCES)});
        QVERIFY(process.waitForFinished());
        QCOMPARE(process.exitCode(), 1);
        QVERIFY(process.readAllStandardError().contains("refers to 12-reminder.png, which is not there"));
        QVERIFY(!QFile::exists(folder.filePath(QStringLiteral("refused.chm"))));
    }
};

AMBERTASK_TEST_MAIN(HelpFileTest)
#include "tst_help_file.moc"
