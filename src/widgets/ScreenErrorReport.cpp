#include "widgets/ScreenErrorReport.h"

#include "widgets/BoxText.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QScopedValueRollback>

ScreenErrorReport::ScreenErrorReport(std::function<void()> closeProgram)
    : m_closeProgram(std::move(closeProgram))
{
}

void ScreenErrorReport::report(const QString& text)
{
    if (m_open) {
        return;
    }
    const QScopedValueRollback guard(m_open, true);
    QWidget* owner = QApplication::activeWindow();
    QMessageBox box(QMessageBox::Critical, QStringLiteral("Ambertask"), {}, QMessageBox::NoButton, owner);
    setBoxText(box, text);
    box.setWindowFlag(Qt::WindowStaysOnTopHint,
        owner != nullptr && owner->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    QPushButton* close = box.addButton(tr("Close &program"), QMessageBox::DestructiveRole);
    QPushButton* proceed = box.addButton(tr("&Continue"), QMessageBox::RejectRole);
    // The other button would let an Enter that is held or pressed twice end the program, with unsaved
    // input.
    box.setDefaultButton(proceed);
    box.setEscapeButton(proceed);
    box.exec();
    if (box.clickedButton() == close) {
        m_closeProgram();
    }
}

void ScreenErrorReport::reportFailedStart(const QString& text)
{
    QMessageBox box(QMessageBox::Critical, QStringLiteral("Ambertask"), {}, QMessageBox::Ok);
    setBoxText(box, text);
    box.button(QMessageBox::Ok)->setText(tr("&OK"));
    box.exec();
}
