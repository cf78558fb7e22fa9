#pragma once

#include <QLabel>

/// The line at the foot of a page that says how an action ended, where no box is to ask for an answer. Its
/// parent is the page. Plain text, shortened in its middle where it does not fit and whole in the tool tip;
/// it takes no focus, keeps its room while it is empty and is announced to assistive technology. What it
/// says is gone with the user's next key or press on the page, and when the page is left.
class QuietLine : public QLabel
{
    Q_OBJECT

public:
    explicit QuietLine(const QString& name, QWidget* parent = nullptr);

    /// Says `text` in the place of what was said before. Empty to say nothing.
    void say(const QString& text);
    void hush() { say({}); }
    /// What is said now, whole.
    QString said() const { return m_said; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    bool isOnPage(const QObject* watched) const;
    void fit();
    void tell(int kind);

    QString m_said;
};
