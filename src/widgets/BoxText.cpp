#include "widgets/BoxText.h"

#include "widgets/PlainText.h"
#include "widgets/WindowPlacement.h"

#include <QMessageBox>

namespace
{

// No screen has room for more.
constexpr qsizetype MostCharacters = 8000;
// QMessageBox breaks a long text at half the width of the screen, and its icon takes part of that.
constexpr int TextColumns = 3;
constexpr double TextHeight = 0.6;
constexpr double FewerEachTime = 0.8;
constexpr qsizetype FewestCharacters = 40;

bool fits(const QMessageBox& box, const QString& text)
{
    const QSize room = roomFor(box);
    const QRect column(0, 0, room.width() / TextColumns, QWIDGETSIZE_MAX);
    const QRect taken =
        box.fontMetrics().boundingRect(column, Qt::TextWordWrap | Qt::AlignLeft, breakable(text));
    return taken.height() <= room.height() * TextHeight;
}

} // namespace

void setBoxText(QMessageBox& box, const QString& text)
{
    // Shortened in the middle: a question says at its end what will happen, a path ends with the file's
    // name.
    QString shown = withoutMiddle(text, MostCharacters);
    for (qsizetype characters = shown.size(); characters > FewestCharacters && !fits(box, shown);) {
        characters = static_cast<qsizetype>(static_cast<double>(characters) * FewerEachTime);
        shown = withoutMiddle(text, characters);
    }
    box.setTextFormat(Qt::PlainText);
    box.setText(breakable(shown));
}
