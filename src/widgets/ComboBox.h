#pragma once

#include <QComboBox>
#include <optional>

/// A combo box in which a name with blanks can be typed: QComboBox of Qt 6.4.2 opens its list at a blank
/// (tst_qt_workarounds, aBlankInTheMiddleOfANameOpensTheList). Assistive technology can choose from its
/// list. The wheel changes it only while it has the focus.
class ComboBox : public QComboBox
{
    Q_OBJECT

public:
    explicit ComboBox(QWidget* parent = nullptr);

    /// Selects `row` as the user would by choosing it: closes the list and sends `activated` even if the
    /// row was current before. Does nothing while the box is disabled or without such a row.
    void choose(int row);

    /// Makes the box as wide as its widest entry: for the program's words, not the user's.
    void keepEntriesWhole();
    /// Makes the box as wide as `letters` letters and a picture, however long the entries are.
    void keepNarrow(int letters);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    void showPopup() override;

protected:
    void changeEvent(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
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

    /// Event time of the last letter of a name that is being typed.
    std::optional<quint64> m_lastLetter;
};
