#pragma once

#include <QComboBox>
#include <optional>

/// A combo box whose entries can be written in whole: a blank in the middle of a name goes on with the
/// search, where Qt's own would open the list over it. Assistive technology can choose from its
/// list. The wheel turns its entries only while it has the focus.
class ComboBox : public QComboBox
{
    Q_OBJECT

public:
    explicit ComboBox(QWidget* parent = nullptr);

    /// Makes `row` the current entry as the user does who picks it from the list, which closes: `activated`
    /// is sent even when it was the current one. Does nothing while the box is disabled, and without such a
    /// row.
    void choose(int row);

    /// As wide as its widest entry: for words of the program, not of the user.
    void keepEntriesWhole();
    /// As wide as `letters` letters and a picture, however long the entries are.
    void keepNarrow(int letters);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    void showPopup() override;

protected:
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    enum class Width { QtsOwn, OfEntries, OfLetters };

    bool goesOnWriting(const QKeyEvent& event) const;
    QSize ownSize() const;
    void takeStyle();

    Width m_width = Width::QtsOwn;
    int m_letters = 0;
    bool m_painted = false;
    bool m_owesStyle = false;
    bool m_owesListColours = false;

    /// When the last letter of a name was struck, as input events tell it.
    std::optional<quint64> m_lastLetter;
};
