#include "report/ReportLayout.h"

#include "system/Progress.h"

#include <QPainter>
#include <algorithm>
#include <numeric>

namespace
{

constexpr qreal HeaderHeight = millimetres(12);
constexpr qreal HeaderGap = millimetres(7);
constexpr qreal RowGap = millimetres(0.8);
constexpr qreal LineGap = millimetres(3);
constexpr qreal LineThickness = millimetres(0.25);
constexpr qreal LabelGap = millimetres(3);
constexpr qreal LogoGap = millimetres(4);
constexpr qreal TitleWordGap = 0.5; ///< in widths of a blank
/// So many records are measured in about a millisecond.
constexpr std::size_t RecordsOfProgress = 512;
constexpr qreal TitleBase = 0.7; ///< as a part of the header's height

const QColor Ink(0x1c, 0x1c, 0x1c);
const QColor Faint(0x5a, 0x5a, 0x5a);
const QColor Amber(0xa8, 0x5f, 0x00);
const QColor Rule(0xb4, 0xb4, 0xb4);

struct LabelledText {
    const char* label;
    const char* text;
};
// The short values, side by side, and the part of the page's width that each gets.
constexpr std::array Codes{LabelledText{"Label2", "txtTaskPeriority"},
    LabelledText{"Label3", "txtTaskStatus"}, LabelledText{"Label4", "txtTaskDueDate"}};
constexpr std::array CodeParts{0.30, 0.42, 0.28};
constexpr std::array DetailLabels{"Label6", "Label2", "Label3", "Label4", "Label5"};

qreal sum(const std::vector<qreal>& heights)
{
    return std::accumulate(heights.begin(), heights.end(), 0.0);
}

} // namespace

/// A record ready to be painted.
struct ReportLayout::LaidRecord {
    using Text = std::shared_ptr<const BrokenText>;

    struct Piece {
        Text text;
        int line;
        QPointF position; ///< relative to the top left corner of the band
    };
    struct Band {
        qreal height = 0;
        std::vector<Piece> pieces;
    };

    /// Adds one band for each line of the text.
    void addLines(const Text& text, qreal left)
    {
        for (int line = 0; line < text->lineCount(); ++line) {
            bands.push_back({text->lineHeight(line), {{text, line, QPointF(left, 0)}}});
        }
    }

    std::size_t record = 0;
    std::vector<Band> bands;
};

ReportLayout::ReportLayout(std::shared_ptr<const ReportContent> content, QSizeF page,
    Qt::LayoutDirection direction, Progress* progress)
    : m_content(std::move(content)), m_page(page), m_direction(direction), m_label(9, false, Faint),
      m_text(10, false, Ink), m_name(12, true, Ink), m_title(18, true, Amber), m_subtitle(18, false, Ink)
{
    for (const ReportSection& section : m_content->sections) {
        std::size_t column = 0;
        for (const ReportControl& control : section.controls) {
            if (control.kind == ReportControl::Kind::Text) {
                m_columns[control.name] = column++;
            } else {
                m_captions[control.name] = control.caption;
            }
        }
    }
    for (const char* label : DetailLabels) {
        m_labelWidth = std::max(m_labelWidth, m_label.widthOf(captionOf(QLatin1String(label))));
    }
    m_labelWidth += LabelGap;
    placeCodes();
    if (!m_content->records.empty() && !hasRoomSideBySide()) {
        m_stacked = true;
        placeCodes();
    }
    findPageStarts(progress);
}

ReportLayout::~ReportLayout() = default;

QString ReportLayout::captionOf(const QString& control) const
{
    const auto found = m_captions.find(control);
    return found == m_captions.end() ? QString() : found->second;
}

const QString& ReportLayout::value(std::size_t record, const QString& control) const
{
    return m_content->records[record][m_columns.at(control)];
}

ReportLayout::CodePlace ReportLayout::placeOf(std::size_t code) const
{
    if (m_stacked) {
        return {0, m_labelWidth, m_page.width() - m_labelWidth};
    }
    const qreal left =
        m_page.width() * std::accumulate(CodeParts.begin(), CodeParts.begin() + static_cast<int>(code), 0.0);
    const qreal label =
        code == 0 ? m_labelWidth : m_label.widthOf(captionOf(QLatin1String(Codes[code].label))) + LabelGap;
    return {left, left + label, m_page.width() * CodeParts[code] - label - LabelGap};
}

void ReportLayout::placeCodes()
{
    m_places.clear();
    for (std::size_t code = 0; code < Codes.size(); ++code) {
        m_places.push_back(placeOf(code));
    }
}

qreal ReportLayout::mirrored(qreal left, qreal width) const
{
    return m_direction == Qt::RightToLeft ? m_page.width() - left - width : left;
}

qreal ReportLayout::mirroredText(const QString& text, const TextStyle& style, qreal left, qreal width) const
{
    if (m_direction == Qt::LeftToRight) {
        return left;
    }
    // A right-to-left text begins at the right edge of its room by itself.
    return mirrored(left, text.isRightToLeft() ? width : std::min(width, style.widthOf(text)));
}

bool ReportLayout::hasRoomSideBySide() const
{
    for (std::size_t i = 0; i < Codes.size(); ++i) {
        const std::size_t column = m_columns.at(QLatin1String(Codes[i].text));
        const QString* longest = nullptr;
        for (const std::vector<QString>& record : m_content->records) {
            if (longest == nullptr || record[column].size() > longest->size()) {
                longest = &record[column];
            }
        }
        if (longest != nullptr && m_text.widthOf(*longest) > m_places[i].width) {
            return false;
        }
    }
    return true;
}

void ReportLayout::measure(std::size_t record, std::vector<qreal>& bands) const
{
    const qreal beside = m_page.width() - m_labelWidth;
    bands.clear();
    appendLineHeights(value(record, QStringLiteral("txtCatName")), m_text, beside, bands);
    bands.back() += RowGap;
    appendLineHeights(value(record, QStringLiteral("txtTaskName")), m_name, m_page.width(), bands);
    bands.back() += RowGap;
    qreal height = 0;
    std::vector<qreal> lines;
    for (std::size_t i = 0; i < Codes.size(); ++i) {
        lines.clear();
        appendLineHeights(value(record, QLatin1String(Codes[i].text)), m_text, m_places[i].width, lines);
        height = std::max(height, sum(lines));
        if (m_stacked || i + 1 == Codes.size()) {
            bands.push_back(height + RowGap);
            height = 0;
        }
    }
    appendLineHeights(value(record, QStringLiteral("txtTaskDesc")), m_text, beside, bands);
    bands.back() += LineGap + LineThickness;
}

std::unique_ptr<ReportLayout::LaidRecord> ReportLayout::layOut(std::size_t record) const
{
    auto laid = std::make_unique<LaidRecord>();
    laid->record = record;
    const qreal beside = m_page.width() - m_labelWidth;
    const auto addLabel = [&](const QString& name, std::size_t band, qreal left) {
        // Smaller letters stand on the base line of the larger ones beside them.
        const QString caption = captionOf(name);
        const qreal width = m_page.width();
        laid->bands[band].pieces.push_back({m_kept.text(caption, m_label, width), 0,
            QPointF(mirroredText(caption, m_label, left, width), m_text.ascent() - m_label.ascent())});
    };
    const auto broken = [&](const char* control, const TextStyle& style, qreal width) {
        return std::make_shared<const BrokenText>(value(record, QLatin1String(control)), style, width);
    };

    const QString& category = value(record, QStringLiteral("txtCatName"));
    laid->addLines(
        m_kept.text(category, m_text, beside), mirroredText(category, m_text, m_labelWidth, beside));
    addLabel(QStringLiteral("Label6"), 0, 0);
    laid->bands.back().height += RowGap;
    laid->addLines(broken("txtTaskName", m_name, m_page.width()), 0);
    laid->bands.back().height += RowGap;

    for (std::size_t i = 0; i < Codes.size(); ++i) {
        const CodePlace& place = m_places[i];
        if (m_stacked || i == 0) {
            laid->bands.push_back({RowGap, {}});
        }
        addLabel(QLatin1String(Codes[i].label), laid->bands.size() - 1, place.label);
        const QString& word = value(record, QLatin1String(Codes[i].text));
        const LaidRecord::Text text = m_kept.text(word, m_text, place.width);
        const qreal left = mirroredText(word, m_text, place.value, place.width);
        LaidRecord::Band& band = laid->bands.back();
        qreal top = 0;
        for (int line = 0; line < text->lineCount(); ++line) {
            band.pieces.push_back({text, line, QPointF(left, top)});
            top += text->lineHeight(line);
        }
        band.height = std::max(band.height, top + RowGap);
    }

    const std::size_t descriptionBand = laid->bands.size();
    laid->addLines(broken("txtTaskDesc", m_text, beside), mirrored(m_labelWidth, beside));
    addLabel(QStringLiteral("Label5"), descriptionBand, 0);
    laid->bands.back().height += LineGap + LineThickness;
    return laid;
}

const ReportLayout::LaidRecord& ReportLayout::laidRecord(std::size_t record) const
{
    if (m_laid == nullptr || m_laid->record != record) {
        m_laid = layOut(record);
    }
    return *m_laid;
}

void ReportLayout::findPageStarts(Progress* progress)
{
    const qreal room = m_page.height() - HeaderHeight - HeaderGap;
    m_pages.push_back({0, 0});
    qreal y = 0;
    std::vector<qreal> bands;
    for (std::size_t record = 0; record < m_content->records.size(); ++record) {
        if (progress != nullptr && record % RecordsOfProgress == 0) {
            progress->advance(static_cast<qint64>(record), static_cast<qint64>(m_content->records.size()));
        }
        measure(record, bands);
        const qreal height = sum(bands);
        if (y > 0 && y + height > room) {
            m_pages.push_back({record, 0});
            y = 0;
        }
        if (height <= room) {
            y += height + LineGap;
            continue;
        }
        for (std::size_t band = 0; band < bands.size(); ++band) {
            if (y > 0 && y + bands[band] > room) {
                m_pages.push_back({record, band});
                y = 0;
            }
            y += bands[band];
        }
        y += LineGap;
    }
}

int ReportLayout::pageOf(std::size_t record) const
{
    const auto after = std::partition_point(m_pages.begin(), m_pages.end(), [record](const PageStart& page) {
        return page.record < record || (page.record == record && page.band == 0);
    });
    return static_cast<int>(std::max<std::ptrdiff_t>(0, after - m_pages.begin() - 1));
}

void ReportLayout::paintHeader(QPainter& painter) const
{
    qreal left = 0;
    if (!m_content->image.isNull()) {
        const QSizeF size =
            QSizeF(m_content->image.size()).scaled(m_page.width(), HeaderHeight, Qt::KeepAspectRatio);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawImage(QRectF(QPointF(mirrored(0, size.width()), 0), size), m_content->image);
        left = size.width() + LogoGap;
    }
    const qreal base = HeaderHeight * TitleBase;
    const auto draw = [&](const QString& text, const TextStyle& style, QPointF position) {
        BrokenText(text, style, m_page.width()).paintLine(painter, 0, position);
    };
    // The title is a name of two words, whose order is fixed.
    const QString amber = captionOf(QStringLiteral("Label7"));
    const QString organizer = captionOf(QStringLiteral("Label8"));
    const qreal toOrganizer = m_title.widthOf(amber) + m_title.widthOf(QStringLiteral(" ")) * TitleWordGap;
    const qreal titleWidth = toOrganizer + m_subtitle.widthOf(organizer);
    const qreal titleLeft = mirrored(left, titleWidth);
    draw(amber, m_title, QPointF(titleLeft, base - m_title.ascent()));
    draw(organizer, m_subtitle, QPointF(titleLeft + toOrganizer, base - m_subtitle.ascent()));
    const QString address = captionOf(QStringLiteral("Label1"));
    const qreal addressWidth = m_label.widthOf(address);
    // On a narrow page it goes below the title.
    const bool isBeside = left + titleWidth + LabelGap < m_page.width() - addressWidth;
    draw(address, m_label,
        QPointF(mirrored(std::max(0.0, m_page.width() - addressWidth), addressWidth),
            isBeside ? base - m_label.ascent() : HeaderHeight));
}

void ReportLayout::paintPage(QPainter& painter, int page) const
{
    const auto index = static_cast<std::size_t>(page);
    const PageStart start = m_pages[index];
    const PageStart end =
        index + 1 < m_pages.size() ? m_pages[index + 1] : PageStart{m_content->records.size(), 0};
    painter.save();
    paintHeader(painter);
    qreal y = HeaderHeight + HeaderGap;
    for (std::size_t record = start.record; record <= end.record && record < m_content->records.size();
         ++record) {
        if (record == end.record && end.band == 0) {
            break;
        }
        const LaidRecord& laid = laidRecord(record);
        const std::size_t first = record == start.record ? start.band : 0;
        const std::size_t last = record == end.record ? end.band : laid.bands.size();
        for (std::size_t band = first; band < last; ++band) {
            for (const LaidRecord::Piece& piece : laid.bands[band].pieces) {
                piece.text->paintLine(painter, piece.line, piece.position + QPointF(0, y));
            }
            y += laid.bands[band].height;
        }
        if (last == laid.bands.size()) {
            // As a line, not a rectangle, it is at least a pixel thick at every zoom.
            painter.setPen(QPen(Rule, LineThickness));
            painter.drawLine(
                QPointF(0, y - LineThickness / 2), QPointF(m_page.width(), y - LineThickness / 2));
            y += LineGap;
        }
    }
    painter.restore();
}
