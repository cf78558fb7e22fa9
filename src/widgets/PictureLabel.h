#pragma once

#include <QIcon>
#include <QLabel>

/// Shows a picture in a size that follows the font and the scale of the screen. Without a picture it stays
/// empty.
class PictureLabel : public QLabel
{
    Q_OBJECT

public:
    /// `size` is in pixels, for a font of the usual size.
    explicit PictureLabel(QSize size, QWidget* parent = nullptr);

    void setPicture(const QIcon& picture);

protected:
    void changeEvent(QEvent* event) override;
    bool event(QEvent* event) override;

private:
    void draw();

    QSize m_size;
    QIcon m_picture;
};
