#pragma once

#include <QDate>
#include <QObject>

class QDateTimeEdit;
class QKeyEvent;
class QLineEdit;

/// Takes the numbers that are typed into a picker, section by section, wherever the user has begun: a click
/// selects the section under it, the digit that fills a section leads to the next, a separator does so
/// before. Where all is selected digits begin at the first section. Qt's own picker takes a digit
/// only into a section that is selected or not full, and no 31st while another month is shown. The wheel
/// turns a picker only while it has the focus.
class PickerTyping final : public QObject
{
    Q_OBJECT

public:
    /// Belongs to `picker`.
    explicit PickerTyping(QDateTimeEdit& picker);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    /// Whether the key is taken.
    bool take(const QKeyEvent& key);
    void takeDigit(int digit);
    void takeSeparator();
    /// What has been typed of the section in which the cursor is; it is selected then.
    QString begunPart();
    void write(const QString& part);
    /// The number becomes the value of the section; the next one is selected.
    void finish(int number);
    void setNumber(int number);
    QDate dateWith(int number) const;
    bool isLast() const;
    void select(int section);

    QDateTimeEdit& m_picker;
    QLineEdit& m_edit;
    /// The last part that was written, the text that it made and where the cursor stood then.
    QString m_part;
    QString m_written;
    int m_cursor = 0;
    bool m_hasGoneOn = false; ///< by itself: a separator that is typed all the same has nothing more to do
    /// The day that was typed, which the month that is shown need not have; as long as the date is the one
    /// that was made of it.
    int m_typedDay = 0;
    QDate m_madeOfIt;
};
