#include "widgets/MessageBoxes.h"

#include "widgets/BoxText.h"

#include <QAbstractButton>
#include <QMessageBox>

namespace
{

// Qt's own buttons, which a style orders.
constexpr QMessageBox::StandardButton ThisTime = QMessageBox::Yes;
constexpr QMessageBox::StandardButton AllTimes = QMessageBox::YesToAll;

void name(const QMessageBox& box, QMessageBox::StandardButton which, const QString& caption)
{
    if (QAbstractButton* button = box.button(which)) {
        button->setText(caption);
    }
}

QMessageBox::StandardButton show(QWidget* owner, QMessageBox::Icon icon, const QString& text,
    QMessageBox::StandardButtons buttons, QMessageBox::StandardButton byEnter)
{
    QMessageBox box(icon, QStringLiteral("Ambertask"), {}, buttons, owner);
    setBoxText(box, text);
    // Qt's own captions are translated only where the system has Qt's catalogue.
    name(box, QMessageBox::Ok, MessageBoxes::tr("&OK"));
    const bool asksAboutTimes = buttons.testFlag(AllTimes);
    name(box, QMessageBox::Yes, asksAboutTimes ? MessageBoxes::tr("&This Time") : MessageBoxes::tr("&Yes"));
    name(box, QMessageBox::No, MessageBoxes::tr("&No"));
    name(box, QMessageBox::Save, MessageBoxes::tr("&Save"));
    name(box, QMessageBox::Discard, MessageBoxes::tr("&Discard"));
    name(box, QMessageBox::Cancel, MessageBoxes::tr("&Cancel"));
    name(box, AllTimes, MessageBoxes::tr("&All Times"));
    box.setDefaultButton(byEnter);
    // So that it is not hidden by an owner that stays on top.
    if (owner != nullptr && owner->window()->windowFlags().testFlag(Qt::WindowStaysOnTopHint)) {
        box.setWindowFlag(Qt::WindowStaysOnTopHint);
    }
    return static_cast<QMessageBox::StandardButton>(box.exec());
}

} // namespace

void ScreenMessageBoxes::tell(QWidget* owner, Icon icon, const QString& text)
{
    const QMessageBox::Icon picture = icon == Icon::Information ? QMessageBox::Information
        : icon == Icon::Exclamation                             ? QMessageBox::Warning
                                                                : QMessageBox::NoIcon;
    show(owner, picture, text, QMessageBox::Ok, QMessageBox::Ok);
}

bool ScreenMessageBoxes::ask(QWidget* owner, const QString& question)
{
    // The default is No: an Enter that is held down or meant for another window must not delete anything.
    return show(owner, QMessageBox::Question, question, QMessageBox::Yes | QMessageBox::No, QMessageBox::No)
        == QMessageBox::Yes;
}

MessageBoxes::Unsaved ScreenMessageBoxes::askAboutUnsaved(QWidget* owner, const QString& text)
{
    switch (show(owner, QMessageBox::Question, text,
        QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, QMessageBox::Cancel)) {
    case QMessageBox::Save:
        return Unsaved::Save;
    case QMessageBox::Discard:
        return Unsaved::Discard;
    default:
        return Unsaved::Keep;
    }
}

MessageBoxes::Times ScreenMessageBoxes::askWhichTimes(QWidget* owner, const QString& question)
{
    switch (show(owner, QMessageBox::Question, question, ThisTime | AllTimes | QMessageBox::Cancel,
        QMessageBox::Cancel)) {
    case ThisTime:
        return Times::This;
    case AllTimes:
        return Times::All;
    default:
        return Times::None;
    }
}
