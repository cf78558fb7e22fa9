#include "widgets/PickerTyping.h"

#include <QDateTimeEdit>
#include <QKeyEvent>
#include <QLineEdit>
#include <QLocale>
#include <QMouseEvent>
#include <algorithm>

namespace
{

/// The range of a section.
struct Numbers {
    int least;
    int most;
    qsizetype digits;
};

Numbers numbersOf(QDateTimeEdit::Section section)
{
    switch (section) {
    case QDateTimeEdit::DaySection:
        return {1, 31, 2};
    case QDateTimeEdit::MonthSection:
        return {1, 12, 2};
    case QDateTimeEdit::YearSection:
        return {1, 9999, 4};
    case QDateTimeEdit::HourSection:
        return {0, 23, 2};
    default:
        return {0, 59, 2};
    }
}

/// The same number in ASCII digits.
QString plainDigits(const QString& text)
{
    QString digits;
    for (const QChar letter : text) {
        if (letter.isDigit()) {
            digits += QString::number(letter.digitValue());
        }
    }
    return digits;
}

bool isName(const QString& text)
{
    return std::any_of(text.begin(), text.end(), [](QChar letter) { return letter.isLetter(); });
}

QString inDigitsOf(const QLocale& locale, const QString& digits)
{
    const char32_t zero = locale.zeroDigit().toUcs4().value(0, U'0');
    QString text;
    for (const QChar digit : digits) {
        const char32_t letter = zero + static_cast<char32_t>(digit.digitValue());
        text += QString::fromUcs4(&letter, 1);
    }
    return text;
}

} // namespace

PickerTyping::PickerTyping(QDateTimeEdit& picker)
    : QObject(&picker), m_picker(picker), m_edit(*picker.findChild<QLineEdit*>())
{
    picker.installEventFilter(this);
    m_edit.installEventFilter(this);
    // No focus by the wheel, which passes over the picker when the page is scrolled.
    picker.setFocusPolicy(Qt::StrongFocus);
}

bool PickerTyping::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == &m_edit) {
        if (event->type() == QEvent::MouseButtonRelease
            && static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton) {
            select(m_picker.currentSectionIndex());
            m_part.clear();
        }
        return false;
    }
    switch (event->type()) {
    case QEvent::KeyPress:
        return take(*static_cast<QKeyEvent*>(event));
    case QEvent::FocusOut:
        m_typedDay = 0;
        m_part.clear();
        return false;
    case QEvent::Wheel:
        event->setAccepted(m_picker.hasFocus());
        return !m_picker.hasFocus();
    default:
        return false;
    }
}

bool PickerTyping::take(const QKeyEvent& key)
{
    const bool isDifferent =
        key.modifiers().testAnyFlags(Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    if (isDifferent || key.text().size() != 1 || !key.text().front().isPrint()) {
        m_hasGoneOn = false;
        return false;
    }
    const QChar letter = key.text().front();
    const bool isOurs = letter.isDigit() || (!letter.isLetter() && (m_hasGoneOn || goesOn()));
    if (isInName() && !isOurs) {
        // Qt handles names of months, but not the numbers that are typed instead.
        m_hasGoneOn = false;
        return false;
    }
    if (letter.isDigit()) {
        takeDigit(letter.digitValue());
    } else if (!letter.isLetter()) {
        takeSeparator();
    }
    return true;
}

void PickerTyping::takeDigit(int digit)
{
    m_hasGoneOn = false;
    const QString before = begunPart();
    const QString part = before + QString::number(digit);
    const Numbers numbers = numbersOf(m_picker.currentSection());
    if (part.toInt() > numbers.most) {
        // The number before was complete, like the month of "1 5".
        if (before.toInt() >= numbers.least && !isLast()) {
            finish(before.toInt());
            takeDigit(digit);
        } else {
            write(before);
        }
    } else if (part.size() < numbers.digits && part.toInt() * 10 <= numbers.most) {
        write(part);
    } else if (part.toInt() >= numbers.least) {
        finish(part.toInt());
        m_hasGoneOn = true;
    } else {
        write(before);
    }
}

void PickerTyping::takeSeparator()
{
    if (std::exchange(m_hasGoneOn, false)) {
        return;
    }
    const QString begun = begunPart();
    if (!begun.isEmpty() && begun.toInt() >= numbersOf(m_picker.currentSection()).least) {
        finish(begun.toInt());
    } else if (!isLast()) {
        select(m_picker.currentSectionIndex() + 1);
    }
}

QString PickerTyping::begunPart()
{
    const bool isAllSelected = m_edit.selectionLength() == m_edit.text().size();
    const bool isSelected = m_edit.hasSelectedText();
    const int cursor = m_edit.cursorPosition();
    // Compared with what was typed, as Qt changes a number that cannot occur in the shown month.
    const bool isBegun = goesOn();
    select(isAllSelected ? 0 : m_picker.currentSectionIndex());
    if (isInName()) {
        return isBegun ? m_part : QString();
    }
    if (isSelected || (!isBegun && cursor != m_edit.selectionEnd())) {
        return {};
    }
    QString part = isBegun ? m_part : plainDigits(m_edit.selectedText());
    if (part.size() < numbersOf(m_picker.currentSection()).digits) {
        return part;
    }
    // Behind a complete section the next one is meant.
    select(m_picker.currentSectionIndex() + (isLast() ? 0 : 1));
    return {};
}

bool PickerTyping::isInName() const
{
    return isName(m_picker.sectionText(m_picker.currentSection()));
}

bool PickerTyping::goesOn() const
{
    const bool isWhereItWas = m_edit.cursorPosition() == m_cursor && m_edit.text() == m_written;
    // A name that stands for a number stays selected.
    return isWhereItWas && m_edit.hasSelectedText() == isInName() && !m_part.isEmpty();
}

void PickerTyping::write(const QString& part)
{
    if (!isInName()) {
        const bool isOfTypedDay = m_picker.date() == m_madeOfIt;
        m_edit.insert(inDigitsOf(m_picker.locale(), part));
        m_madeOfIt = isOfTypedDay ? m_picker.date() : QDate();
    } else if (part.toInt() >= numbersOf(m_picker.currentSection()).least) {
        setNumber(part.toInt());
        select(m_picker.currentSectionIndex());
    }
    m_part = part;
    m_written = m_edit.text();
    m_cursor = m_edit.cursorPosition();
}

void PickerTyping::finish(int number)
{
    setNumber(number);
    select(m_picker.currentSectionIndex() + (isLast() ? 0 : 1));
}

void PickerTyping::setNumber(int number)
{
    const int section = m_picker.currentSectionIndex();
    const QTime time = m_picker.time();
    switch (m_picker.currentSection()) {
    case QDateTimeEdit::HourSection:
        m_picker.setTime(QTime(number, time.minute()));
        break;
    case QDateTimeEdit::MinuteSection:
        m_picker.setTime(QTime(time.hour(), number));
        break;
    default:
        if (m_picker.currentSection() == QDateTimeEdit::DaySection) {
            m_typedDay = number;
        } else if (m_picker.date() != m_madeOfIt) {
            m_typedDay = 0;
        }
        m_picker.setDate(dateWith(number));
        m_madeOfIt = m_picker.date();
        break;
    }
    m_picker.setCurrentSectionIndex(section);
}

QDate PickerTyping::dateWith(int number) const
{
    const QDate shown = m_picker.date();
    const bool isYear = m_picker.currentSection() == QDateTimeEdit::YearSection;
    const bool isMonth = m_picker.currentSection() == QDateTimeEdit::MonthSection;
    const QDate first(isYear ? number : shown.year(), isMonth ? number : shown.month(), 1);
    const int day = m_typedDay > 0 ? m_typedDay : shown.day();
    const QDate date(first.year(), first.month(), std::min(day, first.daysInMonth()));
    // Not before the first date that the picker can show.
    return date < m_picker.minimumDate() ? shown : date;
}

bool PickerTyping::isLast() const
{
    return m_picker.currentSectionIndex() + 1 == m_picker.sectionCount();
}

void PickerTyping::select(int section)
{
    m_picker.setCurrentSectionIndex(section);
    m_picker.setSelectedSection(m_picker.currentSection());
}
