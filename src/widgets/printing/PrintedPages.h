#pragma once

class QPainter;

// All lengths on paper are in units of 1/600 inch, on every device.
inline constexpr int UnitsPerInch = 600;
constexpr double millimetres(double length)
{
    return length * UnitsPerInch / 25.4;
}

/// Pages that are laid out and can be painted on paper, in a PDF file and on the screen. Black on white,
/// whatever the skin.
class PrintedPages
{
public:
    PrintedPages() = default;
    virtual ~PrintedPages() = default;
    PrintedPages(const PrintedPages&) = delete;
    PrintedPages& operator=(const PrintedPages&) = delete;

    /// At least one.
    virtual int pageCount() const = 0;
    /// Paints a page, counted from 0, with the painter's origin at the corner of the printable area and one
    /// unit as a length of 1.
    virtual void paintPage(QPainter& painter, int page) const = 0;
};
