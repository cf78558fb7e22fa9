#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QPointer>
#include <memory>

class ProgressBox;
class QWidget;

/// Lives while the pages of a window are put out: the program goes on answering, the window itself takes no
/// input, and after a second a box shows how far it is and offers to cancel. Interface thread only.
class OutputProgress final : public QObject
{
    Q_OBJECT

public:
    /// `window` outlives the object. `text` says what is done, `pageCount` how many pages there are.
    OutputProgress(QWidget& window, const QString& text, int pageCount);
    ~OutputProgress() override;

    /// To be called after each page. Lets the program answer now and then. False when the user has cancelled
    /// or the program is ending.
    bool pageDone();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void closeToInput();
    void showBox();
    void answerEvents();

    QWidget& m_window;
    QString m_text;
    int m_pageCount;
    int m_done = 0;
    bool m_cancelled = false;
    bool m_closedToInput = false;
    QPointer<QWidget> m_focus; ///< what had the focus in the window
    QElapsedTimer m_started;
    QElapsedTimer m_answered;
    std::unique_ptr<ProgressBox> m_box;
};
