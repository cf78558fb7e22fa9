#include "tasks/RepeatControls.h"

#include "system/Moment.h"
#include "widgets/CheckBox.h"
#include "widgets/ComboBox.h"
#include "widgets/Combos.h"
#include "widgets/NamedControls.h"
#include "widgets/Pickers.h"
#include "widgets/QuietLine.h"
#include "widgets/ScrollFrame.h"
#include "widgets/SpinBox.h"

#include <QBoxLayout>
#include <QDateEdit>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLocale>
#include <QPlainTextEdit>
#include <QPushButton>

namespace
{

constexpr int WeekdayColumns = 4;
constexpr int MomentLines = 5;

template <typename Code> void addEntry(ComboBox& combo, const QString& caption, Code code)
{
    combo.addItem(caption, static_cast<int>(code));
}

template <typename Code> Code selectedCode(const ComboBox& combo)
{
    return static_cast<Code>(selectedNumber(combo, 0));
}

} // namespace

RepeatControls::RepeatControls(QWidget& form, const Clock& clock)
    : spnEvery(named(new SpinBox(&form), "spnEvery")), cmbUnit(named(new ComboBox(&form), "cmbUnit")),
      framWeekdays(named(new QGroupBox(&form), "framWeekdays")), chkWeekdays{},
      cmbMonthDay(named(new ComboBox(&form), "cmbMonthDay")), cmbEnd(named(new ComboBox(&form), "cmbEnd")),
      dtpLastDay(named(new QDateEdit(&form), "dtpLastDay")), spnTimes(named(new SpinBox(&form), "spnTimes")),
      txtMoments(named(new QPlainTextEdit(&form), "txtMoments")),
      lblRefusal(new QuietLine(QStringLiteral("lblRefusal"), &form)),
      btnOk(named(new QPushButton(&form), "btnOk")), btnCancel(named(new QPushButton(&form), "btnCancel"))
{
    // In this order they come in the tab order, too.
    for (const std::size_t day : week()) {
        const auto number = static_cast<int>(day) + 1;
        auto* box = named(new CheckBox(framWeekdays), QStringLiteral("chkWeekday%1").arg(number));
        box->setText(QLocale().standaloneDayName(number));
        chkWeekdays[day] = box;
    }
    setUp(clock);
    setAccessibleNames();
    layOut(form);
}

std::array<std::size_t, 7> RepeatControls::week()
{
    std::array<std::size_t, 7> days{};
    const auto first = static_cast<std::size_t>(QLocale().firstDayOfWeek() - Qt::Monday);
    for (std::size_t i = 0; i < days.size(); ++i) {
        days[i] = (first + i) % days.size();
    }
    return days;
}

void RepeatControls::setUp(const Clock& clock)
{
    using Unit = RepeatPattern::Unit;
    using MonthDay = RepeatPattern::MonthDay;
    using End = RepeatInput::End;
    spnEvery->setRange(1, RepeatPattern::MostEvery);
    spnTimes->setRange(1, RepeatPattern::MostTimes);
    addEntry(*cmbUnit, tr("Days"), Unit::Days);
    addEntry(*cmbUnit, tr("Weeks"), Unit::Weeks);
    addEntry(*cmbUnit, tr("Months"), Unit::Months);
    addEntry(*cmbUnit, tr("Years"), Unit::Years);
    addEntry(*cmbMonthDay, tr("The same day"), MonthDay::SameDay);
    addEntry(*cmbMonthDay, tr("The last day"), MonthDay::LastDay);
    addEntry(*cmbMonthDay, tr("The same weekday"), MonthDay::NthWeekday);
    addEntry(*cmbEnd, tr("Never"), End::Never);
    addEntry(*cmbEnd, tr("On a date"), End::Date);
    addEntry(*cmbEnd, tr("After a number of times"), End::Times);
    for (ComboBox* combo : {cmbUnit, cmbMonthDay, cmbEnd}) {
        combo->keepEntriesWhole();
    }
    setUpDatePicker(*dtpLastDay, clock);
    framWeekdays->setTitle(tr("On these &weekdays"));
    txtMoments->setReadOnly(true);
    txtMoments->setTabChangesFocus(true);
    // A read-only text has no cursor to read it by otherwise.
    txtMoments->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    btnOk->setText(tr("&OK"));
    btnCancel->setText(tr("C&ancel"));
    for (QPushButton* button : {btnOk, btnCancel}) {
        button->setAutoDefault(false);
    }
}

void RepeatControls::setAccessibleNames()
{
    spnEvery->setAccessibleName(tr("Repeat every so many"));
    cmbUnit->setAccessibleName(tr("Days, weeks, months or years"));
    framWeekdays->setAccessibleName(tr("On these weekdays"));
    cmbMonthDay->setAccessibleName(tr("Day of the month"));
    cmbEnd->setAccessibleName(tr("End"));
    dtpLastDay->setAccessibleName(tr("Last day"));
    spnTimes->setAccessibleName(tr("Number of times"));
    txtMoments->setAccessibleName(tr("Next due moments"));
    btnOk->setAccessibleName(tr("OK"));
    btnCancel->setAccessibleName(tr("Cancel"));
}

void RepeatControls::layOut(QWidget& form)
{
    auto* content = new QWidget;
    auto* grid = new QGridLayout(content);
    grid->setContentsMargins({});
    const auto addRow = [&](int row, int column, const char* name, const QString& caption, QWidget* control) {
        grid->addWidget(named(labelFor(control, caption, &form), name), row, column);
        grid->addWidget(control, row, column + 1);
    };
    layOutWeekdays();
    int row = 0;
    addRow(row, 0, "lblEvery", tr("Repeat &every:"), spnEvery);
    addRow(row++, 2, "lblUnit", tr("&Unit:"), cmbUnit);
    grid->addWidget(framWeekdays, row++, 0, 1, 4);
    addRow(row++, 0, "lblMonthDay", tr("Day of the &month:"), cmbMonthDay);
    addRow(row++, 0, "lblEnd", tr("E&nd:"), cmbEnd);
    addRow(row, 0, "lblLastDay", tr("&Last day:"), dtpLastDay);
    addRow(row++, 2, "lblTimes", tr("&Times:"), spnTimes);
    grid->addWidget(
        named(labelFor(txtMoments, tr("Ne&xt due moments:"), &form), "lblMoments"), row++, 0, 1, 4);
    grid->addWidget(txtMoments, row, 0, 1, 4);
    grid->setRowStretch(row++, 1);
    grid->addWidget(lblRefusal, row, 0, 1, 4);
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(3, 1);
    constexpr int Frame = 8;
    txtMoments->setMinimumHeight(txtMoments->fontMetrics().lineSpacing() * MomentLines + 2 * Frame);

    // Without a parent until they are added: so they come after the content in the tab order.
    auto* bar = new QWidget;
    auto* buttons = new QHBoxLayout(bar);
    buttons->setContentsMargins({});
    buttons->addStretch();
    buttons->addWidget(btnOk);
    buttons->addWidget(btnCancel);
    auto* all = new QVBoxLayout(&form);
    all->addWidget(new ScrollFrame(content, {btnOk}), 1);
    all->addWidget(bar);
    // A text asks for more lines than there are moments.
    form.resize(all->minimumSize());
}

void RepeatControls::layOutWeekdays()
{
    auto* grid = new QGridLayout(framWeekdays);
    int place = 0;
    for (const std::size_t day : week()) {
        grid->addWidget(chkWeekdays[day], place / WeekdayColumns, place % WeekdayColumns);
        ++place;
    }
}

RepeatInput RepeatControls::input() const
{
    // Enter is OK without moving the focus.
    dtpLastDay->interpretText();
    spnEvery->interpretText();
    spnTimes->interpretText();
    RepeatInput entered;
    entered.unit = selectedCode<RepeatPattern::Unit>(*cmbUnit);
    entered.every = spnEvery->value();
    for (std::size_t day = 0; day < chkWeekdays.size(); ++day) {
        entered.weekdays.set(day, chkWeekdays[day]->isChecked());
    }
    entered.weekStart = m_weekStart;
    entered.monthDay = selectedCode<RepeatPattern::MonthDay>(*cmbMonthDay);
    entered.end = selectedCode<RepeatInput::End>(*cmbEnd);
    entered.lastDay = dayOf(toMoment(dtpLastDay->date()));
    entered.times = spnTimes->value();
    return entered;
}

void RepeatControls::fill(const RepeatInput& input)
{
    selectNumber(*cmbUnit, static_cast<int>(input.unit));
    spnEvery->setValue(input.every);
    for (std::size_t day = 0; day < chkWeekdays.size(); ++day) {
        chkWeekdays[day]->setChecked(input.weekdays.test(day));
    }
    m_weekStart = input.weekStart;
    selectNumber(*cmbMonthDay, static_cast<int>(input.monthDay));
    selectNumber(*cmbEnd, static_cast<int>(input.end));
    dtpLastDay->setDate(toQDate(makeMoment(input.lastDay)));
    spnTimes->setValue(input.times);
}

QWidget* RepeatControls::firstWeekday() const
{
    return chkWeekdays[week().front()];
}

void RepeatControls::enableFor(const RepeatInput& input)
{
    framWeekdays->setEnabled(input.unit == RepeatPattern::Unit::Weeks);
    cmbMonthDay->setEnabled(input.unit == RepeatPattern::Unit::Months);
    dtpLastDay->setEnabled(input.end == RepeatInput::End::Date);
    spnTimes->setEnabled(input.end == RepeatInput::End::Times);
}
