#include "platform/BoxText.h"

#include "platform/PlainText.h"
#include "platform/WindowPlacement.h"

#include <QMessageBox>

namespace
{

// More fits on no screen.
constexpr qsizetype MostCharacters = 8000;
// The toolkit breaks a long text at half of the screen's width, and the picture takes its share of that.
constexpr int TextColumns = 3;
constexpr double TextHeight = 0.6;
constexpr double FewerEachTime = 0.8;
constexpr qsizetype FewestCharacters = 40;
const QChar Ellipsis(0x2026);

bool fits(const QMessageBox& box, const QString& text)
{
    const QSize room = roomFor(box);
    const QRect column(0, 0, room.width() / TextColumns, QWIDGETSIZE_MAX);
    const QRect taken =
        box.fontMetrics().boundingRect(column, Qt::TextWordWrap | Qt::AlignLeft, breakable(text));
    return taken.height() <= room.height() * TextHeight;
}

/// Without its middle: a question ends with what will happen, and a path with the name of the file.
QString withoutMiddle(const QString& text, qsizetype characters)
{
    QString begin = text.left(characters / 2);
    QString end = text.right(characters / 2);
    if (begin.back().isHighSurrogate()) {
        begin.chop(1);
    }
    if (end.front().isLowSurrogate()) {
        end.remove(0, 1);
    }
    return begin + Ellipsis + end;
}

} // namespace

void setBoxText(QMessageBox& box, const QString& text)
{
    QString shown = text.size() > MostCharacters ? withoutMiddle(text, MostCharacters) : text;
    for (qsizetype characters = shown.size(); characters > FewestCharacters && !fits(box, shown);) {
        characters = static_cast<qsizetype>(static_cast<double>(characters) * FewerEachTime);
        shown = withoutMiddle(text, characters);
    }
    box.setTextFormat(Qt::PlainText);
    box.setText(breakable(shown));
}
