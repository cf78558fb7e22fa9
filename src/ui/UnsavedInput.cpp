#include "ui/UnsavedInput.h"

#include "platform/MessageBoxes.h"
#include "platform/WindowPlacement.h"
#include "ui/FormServices.h"

bool letGoOfInput(
    const FormServices& services, QWidget& form, const QString& text, const std::function<bool()>& save)
{
    // The form may be behind other windows, or hidden together with the main window.
    showOwned(&form, nullptr);
    switch (services.messages.askAboutUnsaved(&form, text)) {
    case MessageBoxes::Unsaved::Save:
        return save();
    case MessageBoxes::Unsaved::Discard:
        return true;
    case MessageBoxes::Unsaved::Keep:
        break;
    }
    return false;
}
