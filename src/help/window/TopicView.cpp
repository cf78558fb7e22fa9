#include "help/window/TopicView.h"

#include "help/window/HelpBook.h"
#include "help/window/MissingPictures.h"
#include "help/window/TopicHtml.h"

#include <QBuffer>
#include <QEvent>
#include <QImageReader>
#include <QScrollBar>
#include <QTextBlock>
#include <utility>

namespace
{

constexpr char Scheme[] = "help";
// For the pictures of one topic. A pixel takes four bytes.
constexpr qint64 MostPixels = qint64{8} * 1024 * 1024;
constexpr qint64 LongestStyle = qint64{64} * 1000;
constexpr int MostMarks = 1000;
constexpr qreal PageMargin = 14;

QUrl urlOf(const QString& topic)
{
    const qsizetype place = topic.indexOf(u'#');
    QUrl url;
    url.setScheme(QLatin1String(Scheme));
    url.setPath(objectPath(place < 0 ? topic : topic.left(place)));
    if (place >= 0) {
        url.setFragment(topic.mid(place + 1));
    }
    return url;
}

QString messagePage(const QString& title, const QString& text)
{
    return QStringLiteral("<html><head><title>%1</title></head><body><h2>%1</h2><p>%2</p></body></html>")
        .arg(title.toHtmlEscaped(), text.toHtmlEscaped());
}

} // namespace

TopicView::TopicView(QWidget* parent) : QTextBrowser(parent)
{
    setOpenLinks(false);
    document()->setDocumentMargin(PageMargin);
    connect(this, &QTextBrowser::anchorClicked, this, &TopicView::openLink);
    connect(this, &QTextBrowser::sourceChanged, this, [this](const QUrl& url) {
        m_stale = false;
        complete(url.fragment());
        markWords();
    });
}

void TopicView::setBook(const HelpBook* book)
{
    m_book = book;
    m_markedWords.clear();
    m_stale = true;
    clearHistory();
}

void TopicView::openTopic(const QString& topic, const QStringList& markedWords)
{
    m_markedWords = markedWords;
    if (m_stale && !source().isEmpty()) {
        // The topic shown last would not be read again.
        reload();
    }
    const QUrl url = urlOf(topic);
    if (url == source()) {
        scrollTo(url.fragment());
        markWords();
    } else {
        setSource(url, QTextDocument::HtmlResource);
    }
}

void TopicView::scrollTo(const QString& place)
{
    if (place.isEmpty()) {
        moveCursor(QTextCursor::Start);
        verticalScrollBar()->setValue(0);
    } else {
        scrollToAnchor(place);
    }
}

void TopicView::showMessage(const QString& title, const QString& text)
{
    m_markedWords.clear();
    setExtraSelections({});
    m_stale = true;
    setHtml(messagePage(title, text));
}

QString TopicView::topic() const
{
    return m_stale ? QString() : m_page.path();
}

void TopicView::openLink(const QUrl& link)
{
    const QUrl url = m_page.resolved(link);
    if (url.scheme() == QLatin1String(Scheme)) {
        m_markedWords.clear();
        setSource(url, QTextDocument::HtmlResource);
    } else if (url.scheme() == QLatin1String("https") || url.scheme() == QLatin1String("http")) {
        emit webPageRequested(url.toString(QUrl::FullyEncoded));
    }
}

QVariant TopicView::loadResource(int type, const QUrl& name)
{
    // Never the base class, which reads any file from the disk.
    const QUrl url = m_page.resolved(name);
    switch (type) {
    case QTextDocument::HtmlResource:
        m_page = url.adjusted(QUrl::RemoveFragment);
        m_pixelsLeft = MostPixels;
        m_styleLeft = LongestStyle;
        m_justRead = true;
        return page(url);
    case QTextDocument::ImageResource:
        return picture(url);
    case QTextDocument::StyleSheetResource:
        return styleSheet(url);
    default:
        return {};
    }
}

std::optional<QByteArray> TopicView::object(const QUrl& url, qint64 largest) const
{
    const bool isOurs = m_book != nullptr && url.scheme() == QLatin1String(Scheme);
    return isOurs ? m_book->file().read(objectPath(url.path()), largest) : std::nullopt;
}

QString TopicView::page(const QUrl& url) const
{
    const auto bytes = object(url, LargestTopic);
    const QString html = bytes ? topicText(*bytes) : QString();
    return bytes && readTopic(html) != nullptr
        ? html
        : messagePage(tr("This page cannot be shown"),
            tr("The help file has no readable page \"%1\".").arg(url.path()));
}

QImage TopicView::picture(const QUrl& url)
{
    QBuffer buffer;
    buffer.setData(object(url, CompiledHelpFile::LargestObject).value_or(QByteArray()));
    QImageReader reader(&buffer);
    const QSize size = reader.size();
    const qint64 pixels = qint64{size.width()} * size.height();
    if (!size.isValid() || pixels > m_pixelsLeft) {
        return noPicture();
    }
    const QImage read = reader.read();
    m_pixelsLeft -= pixels;
    return read.isNull() ? noPicture() : read;
}

QString TopicView::styleSheet(const QUrl& url)
{
    QString sheet = htmlText(object(url, m_styleLeft).value_or(QByteArray()));
    m_styleLeft -= sheet.size();
    return sheet;
}

void TopicView::setTextSize(int steps)
{
    zoomIn(steps - m_textSize);
    m_textSize = steps;
}

void TopicView::changeEvent(QEvent* event)
{
    QTextBrowser::changeEvent(event);
    // The document takes the colour of links from the palette when it is read.
    if (event->type() == QEvent::PaletteChange && !m_stale && !m_reloading) {
        m_reloading = true;
        const int scrolled = verticalScrollBar()->value();
        reload();
        verticalScrollBar()->setValue(scrolled);
        m_reloading = false;
    }
}

void TopicView::complete(const QString& place)
{
    if (std::exchange(m_justRead, false) && tellMissingPictures(*document()) && !place.isEmpty()) {
        // Qt has scrolled there before the alternative texts were added.
        scrollToAnchor(place);
    }
}

void TopicView::markWords()
{
    QList<ExtraSelection> marks;
    QTextCursor first;
    for (const QString& word : std::as_const(m_markedWords)) {
        QTextCursor found = document()->find(word);
        while (!found.isNull() && marks.size() < MostMarks) {
            ExtraSelection mark;
            mark.cursor = found;
            mark.format.setBackground(palette().highlight());
            mark.format.setForeground(palette().highlightedText());
            marks.append(mark);
            if (first.isNull() || found.selectionStart() < first.position()) {
                first = found;
                first.setPosition(found.selectionStart());
            }
            found = document()->find(word, found);
        }
    }
    setExtraSelections(marks);
    if (!first.isNull()) {
        setTextCursor(first);
        ensureCursorVisible();
    }
}
