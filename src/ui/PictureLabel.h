#pragma once

#include <QIcon>
#include <QLabel>

/// Shows a picture in a size that follows the letters and the scale of the screen. No picture leaves its
/// place empty.
class PictureLabel : public QLabel
{
    Q_OBJECT

public:
    /// `size` is that beside letters of the usual size, in pixels.
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
