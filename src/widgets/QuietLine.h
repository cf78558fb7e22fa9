#pragma once

#include <QLabel>

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
    /// The whole text shown now.
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
