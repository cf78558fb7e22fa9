#pragma once

#include <QImage>
#include <QStringList>
#include <QTextBrowser>
#include <optional>

class HelpBook;

/// Shows topics of a help file. Pictures and style sheets come from the file alone, never from the disk or
/// the net. The pictures of one topic take 32 MiB together, its style sheets 64 kB; what comes after is left
/// out. Where a picture is missing stand a small frame and its alternative text.
class TopicView : public QTextBrowser
{
    Q_OBJECT

public:
    explicit TopicView(QWidget* parent = nullptr);

    /// The file that topics come from, null for none; it outlives the view or the next call. Forgets the
    /// history.
    void setBook(const HelpBook* book);
    /// `topic` is the name of an object, perhaps with "#" and a place in it. The words are shown marked; the
    /// first of them, else the place, else the top is scrolled to, in the topic on show, too.
    void openTopic(const QString& topic, const QStringList& markedWords = {});
    /// Shows a message of the program's own, as plain text, until a topic is opened.
    void showMessage(const QString& title, const QString& text);
    /// The name of the object on show; empty for a message.
    QString topic() const;

    void setTextSize(int steps);
    int textSize() const { return m_textSize; }

signals:
    /// A link to the web was chosen.
    void webPageRequested(const QString& address);

protected:
    QVariant loadResource(int type, const QUrl& name) override;
    void changeEvent(QEvent* event) override;

private:
    QString page(const QUrl& url) const;
    QImage picture(const QUrl& url);
    QString styleSheet(const QUrl& url);
    /// Nothing when the file has no such object or one of more bytes.
    std::optional<QByteArray> object(const QUrl& url, qint64 largest) const;
    void openLink(const QUrl& link);
    /// The top when `place` is empty.
    void scrollTo(const QString& place);
    void markWords();
    /// Completes a page that has been read; `place` is empty for its top.
    void complete(const QString& place);

    const HelpBook* m_book = nullptr;
    /// The page that is being read or shown; what it refers to is relative to it.
    QUrl m_page;
    /// What the page may still load.
    qint64 m_pixelsLeft = 0;
    qint64 m_styleLeft = 0;
    QStringList m_markedWords;
    /// The page has been read and what it refers to has not.
    bool m_justRead = false;
    /// What is on show is not the topic that the history has last.
    bool m_stale = true;
    int m_textSize = 0;
    bool m_reloading = false;
};
