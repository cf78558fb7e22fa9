#include "categories/CategoryInput.h"

QString CategoryInput::unsavedText() const
{
    const QString shown = name.trimmed();
    return shown.isEmpty() ? tr("The changes to the category are not saved.")
                           : tr("The changes to '%1' are not saved.").arg(shown);
}
