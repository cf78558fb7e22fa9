#pragma once

#include <functional>

class QString;
class QWidget;
struct FormServices;

/// Brings `form` to the front and tells by `text` that its input is not saved. True when the input may go:
/// the user has discarded it, or `save` has stored it, which answers whether it has. Throws what `save`
/// throws.
bool letGoOfInput(
    const FormServices& services, QWidget& form, const QString& text, const std::function<bool()>& save);
