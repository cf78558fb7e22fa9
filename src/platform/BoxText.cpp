#include "platform/BoxText.h"

#include "platform/PlainText.h"
#include "platform/WindowPlacement.h"

#include <QMessageBox>

namespace
{

// More fits on no screen.
constexpr qsizetype MostCharacters = 8000;
// Qt breaks a long text at half of the screen's width, and the picture takes its share of that.
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
    // A question ends with what will happen, and a path with the name of the file.
    QString shown = withoutMiddle(text, MostCharacters);
    for (qsizetype characters = shown.size(); characters > FewestCharacters && !fits(box, shown);) {
        characters = static_cast<qsizetype>(static_cast<double>(characters) * FewerEachTime);
        shown = withoutMiddle(text, characters);
    }
    box.setTextFormat(Qt::PlainText);
    box.setText(breakable(shown));
}
