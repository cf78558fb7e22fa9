#include "widgets/PictureLabel.h"

#include "widgets/LetterScale.h"

#include <QEvent>

PictureLabel::PictureLabel(QSize size, QWidget* parent) : QLabel(parent), m_size(size)
{
    setAlignment(Qt::AlignCenter);
}

void PictureLabel::setPicture(const QIcon& picture)
{
    m_picture = picture;
    draw();
}

void PictureLabel::changeEvent(QEvent* event)
{
    QLabel::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        draw();
    }
}

bool PictureLabel::event(QEvent* event)
{
    if (event->type() == QEvent::ScreenChangeInternal) {
        draw();
    }
    return QLabel::event(event);
}

void PictureLabel::draw()
{
    setPixmap(
        m_picture.isNull() ? QPixmap() : m_picture.pixmap(withLetters(m_size, font()), devicePixelRatio()));
}
