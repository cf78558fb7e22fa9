#pragma once

#include <QPalette>
#include <QProxyStyle>
#include <optional>

class QStyleOptionProgressBar;

/// Fusion with fields, indicators and arrows drawn in the colours of the palette, so that no style sheet
/// can lose them.
///
/// Roles: Base is the background of a field, Text its text and arrows, Mid the outline, Highlight the focus
/// ring and the background of checked indicators, HighlightedText the mark on it.
class SkinStyle final : public QProxyStyle
{
    Q_OBJECT

public:
    /// Pixels that a number, date or time field needs in addition to the height in the style sheet to be as
    /// high as a list or an edit.
    static constexpr int SpinBoxAir = 8;

    /// What the application gets together with a style.
    struct Look {
        QPalette palette;
        /// Not empty.
        QString sheet;
    };

    SkinStyle();
    /// A style that brings `look` along when it replaces another one under a style sheet: Qt asks it for
    /// the look at a moment when no widget has a style. So the palette reaches all widgets, and each is
    /// styled once.
    explicit SkinStyle(Look look);

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
        const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
        const QWidget* widget) const override;
    void drawItemText(QPainter* painter, const QRect& rect, int flags, const QPalette& palette, bool enabled,
        const QString& text, QPalette::ColorRole role) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
        const QWidget* widget) const override;
    QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
        const QWidget* widget) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
        QStyleHintReturn* returned) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
        const QWidget* widget) const override;
    /// A picture in a selected row keeps its colours, which stand for a status or a category. A disabled
    /// one is grey and visible on the background of every skin.
    QPixmap generatedIconPixmap(
        QIcon::Mode mode, const QPixmap& pixmap, const QStyleOption* option) const override;
    QIcon standardIcon(StandardPixmap icon, const QStyleOption* option, const QWidget* widget) const override;
    using QProxyStyle::polish;
    void polish(QWidget* widget) override;
    void polish(QApplication* application) override;

private:
    void drawBusyBar(const QStyleOptionProgressBar& bar, QPainter& to, const QWidget* widget) const;
    static void drawFocus(const QStyleOption& option, QPainter& painter, const QWidget* widget);
    void drawSpinBox(const QStyleOptionComplex& option, QPainter& painter, const QWidget* widget) const;
    void drawComboBox(const QStyleOptionComplex& option, QPainter& painter, const QWidget* widget) const;

    /// Until it has been applied.
    std::optional<Look> m_look;
};
