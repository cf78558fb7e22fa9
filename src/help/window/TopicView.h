#pragma once

#include <QImage>
#include <QStringList>
#include <QTextBrowser>
#include <optional>

class HelpBook;

/// Shows topics of a help file. Pictures and style sheets come only from that file, never from the disk or
/// the net. The pictures of a topic take 32 MiB together, its style sheets 64 kB; the rest is left out. A
/// missing picture is shown as a small frame and its alternative text.
class TopicView : public QTextBrowser
{
    Q_OBJECT

public:
    explicit TopicView(QWidget* parent = nullptr);

    /// The file of the topics, null for none; must outlive the view or the next call. Clears the history.
    void setBook(const HelpBook* book);
    /// `topic` is the name of an object, possibly with "#" and an anchor. `markedWords` are highlighted;
    /// scrolls to the first of them, else to the anchor, else to the top, also if the topic is shown
    /// already.
    void openTopic(const QString& topic, const QStringList& markedWords = {});
    /// Shows a message of the program as plain text until a topic is opened.
    void showMessage(const QString& title, const QString& text);
    /// The name of the object shown; empty for a message.
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
    /// None when the file has no such object or it has more bytes.
    std::optional<QByteArray> object(const QUrl& url, qint64 largest) const;
    void openLink(const QUrl& link);
    /// To the top when `place` is empty.
    void scrollTo(const QString& place);
    void markWords();
    /// Completes a page that has just been read; `place` is empty for its top.
    void complete(const QString& place);

    const HelpBook* m_book = nullptr;
    /// The page that is being read or shown; links in it are relative to it.
    QUrl m_page;
    /// What the present page may still load.
    qint64 m_pixelsLeft = 0;
    qint64 m_styleLeft = 0;
    QStringList m_markedWords;
    /// The page has been read, but not what it refers to.
    bool m_justRead = false;
    /// What is shown is not the last topic of the history.
    bool m_stale = true;
    int m_textSize = 0;
    bool m_reloading = false;
};
