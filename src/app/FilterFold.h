#pragma once

#include <QWidget>

class QHBoxLayout;
class QLabel;
class QToolButton;
class QVBoxLayout;

/// A row of frames that the arrow button `btnFold` in their corner folds away. A line of text (`lblFilters`)
/// stands in their place then.
class FilterFold : public QWidget
{
    Q_OBJECT

public:
    explicit FilterFold(QWidget* parent = nullptr);

    /// Puts `frame` at the end of the row, with that share of its width; the row becomes the owner.
    void addFrame(QWidget* frame, int stretch);

    bool isFolded() const;
    /// Without telling.
    void setFolded(bool folded);
    /// The line in the place of the frames, plain text; elided where it is too long.
    void setLine(const QString& text);

signals:
    /// The user has folded the frames or unfolded them.
    void foldChanged();

protected:
    void changeEvent(QEvent* event) override;

private:
    void btnFold_Click();
    void followFold();
    void makeLine();
    /// Its name, its arrow and its distance from the frame that it stands on.
    void dressButton();
    void pointArrow();

    QString m_text;
    QHBoxLayout* m_frames;
    QToolButton* m_button;
    QVBoxLayout* m_corner = nullptr;
    QLabel* m_line = nullptr; ///< made when the frames are first folded
};
