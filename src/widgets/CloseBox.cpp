#include "widgets/CloseBox.h"

#include <QCloseEvent>
#include <QGuiApplication>

bool isCloseByUser(const QCloseEvent& event)
{
    return event.spontaneous() && !qGuiApp->isSavingSession();
}
