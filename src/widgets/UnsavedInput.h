#pragma once

#include <functional>

class QString;
class QWidget;
struct FormServices;

/// Brings `form` to the front and asks, with `text`, about its unsaved input. True when the input may be
/// replaced: the user has discarded it, or `save`, which returns whether it stored it, has. Throws what
/// `save` throws.
bool letGoOfInput(
    const FormServices& services, QWidget& form, const QString& text, const std::function<bool()>& save);
