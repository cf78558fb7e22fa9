#include "tasks/frmRepeat.h"

#include "store/DatabaseEngine.h"
#include "widgets/CheckBox.h"
#include "widgets/CloseBox.h"
#include "widgets/ComboBox.h"
#include "widgets/FormServices.h"
#include "widgets/MomentTexts.h"
#include "widgets/PlainText.h"
#include "widgets/QuietLine.h"
#include "widgets/SpinBox.h"

#include <QCloseEvent>
#include <QDateEdit>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLocale>
#include <QPlainTextEdit>
#include <QPushButton>

namespace
{

constexpr int ShownMoments = 5;

} // namespace

frmRepeat::frmRepeat(const FormServices& services)
    : QWidget(nullptr, Qt::Dialog), m_services(services), m_controls(*this, services.clock)
{
    setObjectName(QStringLiteral("frmRepeat"));
    setWindowTitle(tr("Repeat"));
    setWindowModality(Qt::ApplicationModal);
    connectControls();
}

void frmRepeat::connectControls()
{
    for (ComboBox* combo : {m_controls.cmbUnit, m_controls.cmbMonthDay, m_controls.cmbEnd}) {
        connect(combo, &QComboBox::currentIndexChanged, this, &frmRepeat::follow);
    }
    for (SpinBox* box : {m_controls.spnEvery, m_controls.spnTimes}) {
        connect(box, &QSpinBox::valueChanged, this, &frmRepeat::follow);
    }
    for (CheckBox* box : m_controls.chkWeekdays) {
        connect(box, &QCheckBox::toggled, this, &frmRepeat::follow);
    }
    connect(m_controls.dtpLastDay, &QDateEdit::dateChanged, this, &frmRepeat::follow);
    connect(m_controls.btnOk, &QPushButton::clicked, this, &frmRepeat::btnOk_Click);
    connect(m_controls.btnCancel, &QPushButton::clicked, this, &frmRepeat::btnCancel_Click);
}

void frmRepeat::fill(const RepeatPattern& pattern, Moment due, RepeatBy repeatBy)
{
    m_repeatBy = nullptr;
    m_controls.fill(RepeatInput::of(pattern, due));
    m_due = due;
    m_repeatBy = std::move(repeatBy);
    follow();
}

void frmRepeat::follow()
{
    if (!m_repeatBy) {
        return;
    }
    const RepeatInput entered = m_controls.input();
    m_controls.enableFor(entered);
    const auto refusal = entered.refusal(m_due);
    m_controls.lblRefusal->setStanding(refusal ? refusal->message : QString());
    m_controls.txtMoments->setPlainText(refusal ? QString() : momentsText(entered));
}

QString frmRepeat::momentsText(const RepeatInput& entered) const
{
    QStringList lines;
    for (const Moment moment : dueMoments(m_repeatBy(entered.pattern(m_due)), m_due, ShownMoments)) {
        const QString weekday = QLocale().standaloneDayName(toQDate(moment).dayOfWeek());
        const QString time = QLocale().toString(toQTime(moment), shortTimeFormat());
        //: %1 is a weekday, %2 a date and a time
        lines.append(tr("%1, %2").arg(weekday, inOwnDirection(shortDate(moment) + u' ' + time)));
    }
    return lines.join(u'\n');
}

void frmRepeat::btnOk_Click()
{
    const RepeatInput entered = m_controls.input();
    if (const auto refusal = entered.refusal(m_due)) {
        controlOf(refusal->field)->setFocus();
        return;
    }
    hide();
    emit chosen(entered.pattern(m_due));
}

void frmRepeat::btnCancel_Click()
{
    hide();
    emit cancelled();
}

QWidget* frmRepeat::controlOf(RepeatInput::Field field) const
{
    if (field == RepeatInput::Field::LastDay) {
        return m_controls.dtpLastDay;
    }
    return m_controls.firstWeekday();
}

void frmRepeat::keyPressEvent(QKeyEvent* event)
{
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    // With these modifiers it is another shortcut.
    if ((!isEnter && event->key() != Qt::Key_Escape)
        || event->modifiers().testAnyFlags(Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) {
        QWidget::keyPressEvent(event);
        return;
    }
    // The key that has chosen "Custom ..." from the list may still be held.
    if (!event->isAutoRepeat()) {
        (isEnter ? m_controls.btnOk : m_controls.btnCancel)->click();
    }
}

void frmRepeat::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    if (!event->spontaneous()) {
        m_controls.spnEvery->setFocus();
        m_controls.spnEvery->selectAll();
    }
}

void frmRepeat::closeEvent(QCloseEvent* event)
{
    if (isCloseByUser(*event)) {
        event->ignore();
        btnCancel_Click();
    }
}
