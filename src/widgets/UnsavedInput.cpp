#include "widgets/UnsavedInput.h"

#include "widgets/FormServices.h"
#include "widgets/MessageBoxes.h"
#include "widgets/WindowPlacement.h"

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
