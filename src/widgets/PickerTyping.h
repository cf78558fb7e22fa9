#pragma once

#include <QDate>
#include <QObject>

class QDateTimeEdit;
class QKeyEvent;
class QLineEdit;

/// Workaround: QDateTimeEdit of Qt 6.4.2 ignores digits after a click, digits in a month that is shown by its
/// name, and a 31st while a shorter month is shown (tst_qt_workarounds, digitsAfterAClickAreNotTaken,
/// digitsAreNotTakenInTheNameOfAMonth and a31stIsNotTakenWhileAShorterMonthIsShown). Handles the digits typed
/// into a picker: a click selects the section below it, the last digit of a section or a separator leads to
/// the next one, and where everything is selected typing begins with the first. The wheel changes a picker
/// only while it has the focus.
class PickerTyping final : public QObject
{
    Q_OBJECT

public:
    /// Owned by `picker`.
    explicit PickerTyping(QDateTimeEdit& picker);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    /// Whether the key was handled.
    bool take(const QKeyEvent& key);
    void takeDigit(int digit);
    void takeSeparator();
    /// The digits typed so far in the section of the cursor, which gets selected.
    QString begunPart();
    /// Whether the section of the cursor shows the name of a month.
    bool isInName() const;
    /// Whether the next digit continues the last part.
    bool goesOn() const;
    void write(const QString& part);
    /// Sets the section to that number and selects the next one.
    void finish(int number);
    void setNumber(int number);
    QDate dateWith(int number) const;
    bool isLast() const;
    void select(int section);

    QDateTimeEdit& m_picker;
    QLineEdit& m_edit;
    /// The last digits written, and the text and cursor position that they resulted in.
    QString m_part;
    QString m_written;
    int m_cursor = 0;
    bool m_hasGoneOn = false; ///< moved on by itself: a separator typed after that is ignored
    /// The day as typed, which the shown month may not have. Valid as long as the picker has the date made
    /// from it.
    int m_typedDay = 0;
    QDate m_madeOfIt;
};
