#pragma once

#include <QLabel>

class QTimer;

/// The line at the bottom of a page that says how an action ended, where no box is needed. Its parent is
/// the page. Plain text, elided in the middle, whole in the tool tip. It takes no focus, keeps its room
/// while it is empty and is announced to assistive technology. It is cleared by the next key or click on
/// the page and when the page is left.
class QuietLine : public QLabel
{
    Q_OBJECT

public:
    explicit QuietLine(const QString& name, QWidget* parent = nullptr);

    /// Shows `text` instead of the present one. Empty to clear the line.
    void say(const QString& text);
    void hush() { say({}); }
    /// What was said and not cleared since.
    QString said() const { return m_said; }
    /// Shows `text` whenever nothing is said; keys and clicks leave it. Empty for nothing. As it may change
    /// with every key, it is announced only once it is shown unchanged for a moment.
    void setStanding(const QString& text);
    /// The whole text shown now, said or standing.
    const QString& shown() const { return m_said.isEmpty() ? m_standing : m_said; }

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
    QString m_standing;
    QTimer* m_pause = nullptr; ///< until the standing text is announced; made when there is one
};
