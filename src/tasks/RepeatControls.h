#pragma once

#include "tasks/RepeatInput.h"

#include <QCoreApplication>
#include <QList>
#include <array>

class CheckBox;
class Clock;
class ComboBox;
class QDateEdit;
class QGridLayout;
class QGroupBox;
class QPlainTextEdit;
class QPushButton;
class QuietLine;
class QWidget;
class SpinBox;

/// The controls of the window in which a rule of repetition is put together, and their layout. They are
/// children of `form`, which owns them.
class RepeatControls
{
    Q_DECLARE_TR_FUNCTIONS(frmRepeat)

public:
    /// `clock` outlives the controls.
    RepeatControls(QWidget& form, const Clock& clock);

    SpinBox* spnEvery;
    ComboBox* cmbUnit;
    QGroupBox* framWeekdays;
    std::array<CheckBox*, 7> chkWeekdays; ///< Monday first, in whatever order they are shown
    ComboBox* cmbMonthDay;
    ComboBox* cmbEnd;
    QDateEdit* dtpLastDay;
    SpinBox* spnTimes;
    QPlainTextEdit* txtMoments; ///< the next due moments
    QuietLine* lblRefusal;
    QPushButton* btnOk;
    QPushButton* btnCancel;

    /// What has no control is as it was filled in last.
    RepeatInput input() const;
    void fill(const RepeatInput& input);
    /// The one that is shown first.
    QWidget* firstWeekday() const;
    /// Enables what counts.
    void enableFor(const RepeatInput& input);

private:
    /// The week in the order of the language, Monday being 0.
    static std::array<std::size_t, 7> week();
    void setUp(const Clock& clock);
    void setAccessibleNames();
    void layOut(QWidget& form);
    void layOutWeekdays();

    int m_weekStart = 0;
};
