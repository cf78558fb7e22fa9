#include "settings/SkinSheet.h"

#include "settings/SkinContrast.h"
#include "settings/SkinFile.h"
#include "settings/SkinStyle.h"
#include "system/Language.h"

#include <QApplication>
#include <QDate>
#include <QFile>
#include <QFontMetrics>
#include <QLocale>

namespace
{

/// A colour that the sheet names and the palette role that provides it.
struct SheetColor {
    const char* token;
    QPalette::ColorRole role;
};

constexpr SheetColor ColorsOfRoles[] = {
    {"window", QPalette::Window},
    {"card", QPalette::Light},
    {"line", QPalette::Shadow},
    {"text", QPalette::WindowText},
    {"muted", QPalette::PlaceholderText},
    {"field", QPalette::Base},
    {"outline", QPalette::Mid},
    {"strong-outline", QPalette::Dark},
    {"accent", QPalette::Highlight},
    {"button", QPalette::Button},
    {"link", QPalette::Link},
    {"tip", QPalette::ToolTipBase},
    {"on-tip", QPalette::ToolTipText},
};

/// Colours that a skin may define; otherwise the role provides them.
constexpr SheetColor OwnColors[] = {
    {"button-hover", QPalette::Button},
    {"button-pressed", QPalette::Window},
    {"primary", QPalette::Highlight},
    {"primary-hover", QPalette::Highlight},
    {"primary-pressed", QPalette::Highlight},
    {"on-primary", QPalette::HighlightedText},
    {"mark", QPalette::Highlight},
    {"header", QPalette::Window},
    {"selection", QPalette::Highlight},
    {"on-selection", QPalette::HighlightedText},
};

/// A colour of rows that are drawn otherwise than the rest; a skin may define it and its version for selected
/// rows, else it is made of `wish`.
struct RowColor {
    const char* token;
    QColor wish;
};

QHash<QString, QColor> rowColors(const SkinFile& skin, const QColor& selection)
{
    const QList<QColor> grounds{
        skin.palette.color(QPalette::Base), skin.palette.color(QPalette::AlternateBase)};
    const RowColor ownColors[] = {
        {"overdue", QColor(0xc6, 0x28, 0x28)},
        {"due-today", QColor(0xb2, 0x5e, 0x00)},
        {"done", skin.palette.color(QPalette::PlaceholderText)},
    };
    QHash<QString, QColor> colors;
    for (const auto& [token, wish] : ownColors) {
        const auto name = QLatin1String(token);
        const QString selected = QLatin1String("selected-") + name;
        const QColor color = skin.colors.value(name, readable(wish, grounds));
        colors.insert(name, color);
        colors.insert(selected, skin.colors.value(selected, readable(color, {selection})));
    }
    return colors;
}

QHash<QString, QColor> sheetColors(const SkinFile& skin)
{
    QHash<QString, QColor> colors;
    for (const auto& [token, role] : ColorsOfRoles) {
        colors.insert(QLatin1String(token), skin.palette.color(role));
    }
    colors.insert(QStringLiteral("disabled"), skin.palette.color(QPalette::Disabled, QPalette::WindowText));
    for (const auto& [token, role] : OwnColors) {
        const auto name = QLatin1String(token);
        colors.insert(name, skin.colors.value(name, skin.palette.color(role)));
    }
    colors.insert(rowColors(skin, colors.value(QStringLiteral("selection"))));
    return colors;
}

/// `sheet` with each "$token;" replaced by its colour.
QString filled(QStringView sheet, const QHash<QString, QColor>& colors)
{
    const QList<QStringView> parts = sheet.split(u'$');
    QString text = parts.first().toString();
    text.reserve(sheet.size());
    for (const QStringView part : parts.mid(1)) {
        const qsizetype end = part.indexOf(u';');
        text += colors.value(part.first(end).toString()).name();
        text += part.mid(end);
    }
    return text;
}

} // namespace

int dateWidth(const QFontMetrics& letters, const QString& format)
{
    constexpr int UsualLines = 8;
    int width = UsualLines * letters.height();
    for (int month = 1; month <= 12; ++month) {
        const QString date = QLocale().toString(QDate(2028, month, 28), format);
        // Qt adds the width of its own buttons, which is a little less than that of the arrow.
        width = qMax(width, letters.horizontalAdvance(date) + letters.height());
    }
    return width;
}

QString skinSheet(const SkinFile& skin)
{
    QFile file(QStringLiteral(":/skins/sheet.qss"));
    file.open(QIODevice::ReadOnly);
    const QString sheet = filled(QString::fromUtf8(file.readAll()), sheetColors(skin));
    // Workaround: under a style sheet Qt 6.4.2 does not ask the style for the height of number, date and
    // time fields (tst_qt_workarounds, aSheetAsksNoStyleForTheHeightOfATime). They get that of lists and
    // edits, and dates the width of their text.
    const QFontMetrics letters(QApplication::font());
    return sheet
        + QStringLiteral("QAbstractSpinBox { min-height: %1px; }\nQDateEdit { width: %2px; }\n")
              .arg(letters.height() + SkinStyle::SpinBoxAir)
              .arg(dateWidth(letters, shortDateFormat()));
}
