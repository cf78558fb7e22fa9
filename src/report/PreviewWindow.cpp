#include "report/PreviewWindow.h"

#include "widgets/ComboBox.h"
#include "widgets/NamedControls.h"
#include "widgets/QuietLine.h"
#include "widgets/WrappingRow.h"
#include "widgets/printing/PageOutput.h"
#include "widgets/printing/WindowPrinting.h"

#include <QApplication>
#include <QBoxLayout>
#include <QCloseEvent>
#include <QComboBox>
#include <QDir>
#include <QGraphicsView>
#include <QLabel>
#include <QLocale>
#include <QPainter>
#include <QPrintPreviewWidget>
#include <QPushButton>
#include <QScrollBar>
#include <QShortcut>
#include <QSpinBox>
#include <algorithm>

namespace
{

// In characters and lines, so that the size follows the font.
constexpr QSize FirstSize(58, 58);
constexpr std::array PaperSizes{
    QPageSize::A3, QPageSize::A4, QPageSize::A5, QPageSize::Letter, QPageSize::Legal};
// The first two entries of the zoom list fit the page; the others are percentages.
constexpr int FitPage = 0;
constexpr int FitWidth = 1;
constexpr std::array ZoomPercentages{25, 50, 75, 100, 125, 150, 200, 300, 400};

/// In the digits that the spin box uses for the page number.
QString inDigits(int number)
{
    QLocale locale;
    locale.setNumberOptions(QLocale::OmitGroupSeparator);
    return locale.toString(number);
}

} // namespace

PreviewWindow::PreviewWindow(
    ReportHost& host, std::function<bool()> hasPrinter, std::chrono::milliseconds patience)
    : QWidget(nullptr,
        Qt::Dialog | Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowMinMaxButtonsHint
            | Qt::WindowCloseButtonHint),
      m_host(host), m_hasPrinter(std::move(hasPrinter)), m_patience(patience),
      m_print(named(new QPushButton(tr("&Print...")), "btnPrint")),
      m_export(named(new QPushButton(tr("&Export PDF...")), "btnExport")),
      m_paper(named(new ComboBox, "cmbPaper")), m_orientation(named(new ComboBox, "cmbOrientation")),
      m_zoom(named(new ComboBox, "cmbZoom")), m_pageNumber(named(new QSpinBox, "spnPage")),
      m_first(named(new QPushButton(tr("&First")), "btnFirstPage")),
      m_previous(named(new QPushButton(tr("Pre&vious")), "btnPreviousPage")),
      m_next(named(new QPushButton(tr("&Next")), "btnNextPage")),
      m_last(named(new QPushButton(tr("&Last")), "btnLastPage")),
      m_quietLine(new QuietLine(QStringLiteral("lblReportNote"), this))
{
    setObjectName(QStringLiteral("drTasks"));
    m_printer.setOutputFormat(QPrinter::PdfFormat);
    m_printer.setResolution(UnitsPerInch);
    m_printer.setPageLayout(usualPage());
    m_preview = named(new QPrintPreviewWidget(&m_printer), "prvReport");
    m_preview->setZoomMode(QPrintPreviewWidget::FitInView);

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(makeCommandRow());
    layout->addWidget(m_preview, 1);
    layout->addLayout(makePageRow());
    layout->addWidget(m_quietLine);
    makeShortcuts();
    resize(FirstSize * fontMetrics().height());
    m_content = std::make_shared<const ReportContent>();
    m_layout = std::make_shared<const ReportLayout>(m_content, printableArea(m_printer.pageLayout()));
    showPage();

    connect(m_preview, &QPrintPreviewWidget::paintRequested, this, [this](QPrinter* printer) {
        QPainter painter(printer);
        paintPage(painter, *m_layout, m_page);
    });
    connect(m_preview, &QPrintPreviewWidget::previewChanged, this, &PreviewWindow::showZoom);
}

QLayout* PreviewWindow::makeCommandRow()
{
    for (const QPageSize::PageSizeId size : PaperSizes) {
        m_paper->addItem(QPageSize::name(size), size);
    }
    m_orientation->addItem(tr("Portrait"), QPageLayout::Portrait);
    m_orientation->addItem(tr("Landscape"), QPageLayout::Landscape);
    showPageFormat();

    auto* row = new WrappingRow;
    row->addWidget(m_print);
    row->addWidget(m_export);
    auto* saveAs = named(new QPushButton(tr("&Save as...")), "btnSaveAs");
    saveAs->setToolTip(tr("Saves the tasks of the report as iCalendar or CSV, for other programs"));
    row->addWidget(saveAs);
    row->addGap();
    row->addLabelled(labelFor(m_paper, tr("P&aper")), m_paper);
    row->addLabelled(labelFor(m_orientation, tr("&Orientation")), m_orientation);

    connect(m_print, &QPushButton::clicked, this, &PreviewWindow::btnPrint_Click);
    connect(m_export, &QPushButton::clicked, this, &PreviewWindow::btnExport_Click);
    connect(saveAs, &QPushButton::clicked, this, &PreviewWindow::btnSaveAs_Click);
    connect(m_paper, &QComboBox::activated, this, &PreviewWindow::pageFormat_Click);
    connect(m_orientation, &QComboBox::activated, this, &PreviewWindow::pageFormat_Click);
    return row;
}

QLayout* PreviewWindow::makePageRow()
{
    m_zoom->addItem(tr("Whole page"));
    m_zoom->addItem(tr("Page width"));
    for (const int percentage : ZoomPercentages) {
        m_zoom->addItem(tr("%1 %").arg(inDigits(percentage)), percentage);
    }
    auto* zoomIn = named(new QPushButton(tr("Zoom &in")), "btnZoomIn");
    auto* zoomOut = named(new QPushButton(tr("Zoom o&ut")), "btnZoomOut");
    m_pageNumber->setMinimum(1);
    m_pageNumber->setKeyboardTracking(false);

    auto* row = new WrappingRow;
    row->addLabelled(labelFor(m_zoom, tr("&Zoom")), m_zoom);
    row->addWidget(zoomOut);
    row->addWidget(zoomIn);
    row->addGap();
    row->addWidget(m_first);
    row->addWidget(m_previous);
    row->addLabelled(labelFor(m_pageNumber, tr("Pa&ge")), m_pageNumber);
    row->addWidget(m_next);
    row->addWidget(m_last);

    connect(m_zoom, &QComboBox::activated, this, &PreviewWindow::cmbZoom_Click);
    connect(zoomIn, &QPushButton::clicked, this, [this] { zoomBy(1); });
    connect(zoomOut, &QPushButton::clicked, this, [this] { zoomBy(-1); });
    connect(m_first, &QPushButton::clicked, this, [this] { goToPage(0); });
    connect(m_previous, &QPushButton::clicked, this, [this] { goToPage(m_page - 1); });
    connect(m_next, &QPushButton::clicked, this, [this] { goToPage(m_page + 1); });
    connect(m_last, &QPushButton::clicked, this, [this] { goToPage(pageCount() - 1); });
    connect(m_pageNumber, &QSpinBox::valueChanged, this, [this](int number) { goToPage(number - 1); });
    return row;
}

void PreviewWindow::makeShortcuts()
{
    const auto add = [this](const QKeySequence& keys, auto&& action) {
        connect(new QShortcut(keys, this), &QShortcut::activated, this, action);
    };
    add(QKeySequence::Print, [this] { m_print->click(); });
    add(QKeySequence::Close, [this] { close(); });
    add(QKeySequence::Cancel, [this] { close(); });
    add(QKeySequence::ZoomIn, [this] { zoomBy(1); });
    add(QKeySequence::ZoomOut, [this] { zoomBy(-1); });
    add(QKeySequence::MoveToNextPage, [this] { scrollOrTurn(1); });
    add(QKeySequence::MoveToPreviousPage, [this] { scrollOrTurn(-1); });
    add(QKeySequence::MoveToStartOfDocument, [this] { goToPage(0); });
    add(QKeySequence::MoveToEndOfDocument, [this] { goToPage(pageCount() - 1); });
}

void PreviewWindow::setContent(ReportContent content)
{
    auto next = std::make_shared<const ReportContent>(std::move(content));
    m_layout = layOut(next, printableArea(m_printer.pageLayout()));
    m_content = std::move(next);
    setWindowTitle(m_content->caption);
    m_page = 0;
    showPage();
    widenForRows();
}

void PreviewWindow::widenForRows()
{
    if (!isVisible()) {
        ensurePolished();
        layout()->activate();
        resize(size().expandedTo(QSize(layout()->sizeHint().width(), 0)));
    }
}

int PreviewWindow::pageCount() const
{
    return m_layout->pageCount();
}

std::shared_ptr<const ReportLayout> PreviewWindow::layOut(QSizeF area)
{
    return m_layout->page() == area ? m_layout : layOut(m_content, area);
}

std::shared_ptr<const ReportLayout> PreviewWindow::layOut(
    const std::shared_ptr<const ReportContent>& content, QSizeF area)
{
    std::shared_ptr<const ReportLayout> laid;
    // At the first report this window is not shown yet.
    QWidget* owner = isVisible() ? this : QApplication::activeWindow();
    ScreenProgress(owner, tr("Preparing the report..."), m_patience).run([&](Progress& progress) {
        laid = std::make_shared<const ReportLayout>(content, area, layoutDirection(), &progress);
    });
    return laid;
}

void PreviewWindow::goToPage(int page)
{
    const int wanted = std::clamp(page, 0, pageCount() - 1);
    if (wanted != m_page) {
        m_page = wanted;
        showPage();
    }
}

void PreviewWindow::showPage()
{
    const QSignalBlocker blocker(m_pageNumber);
    const int count = pageCount();
    m_pageNumber->setMaximum(count);
    m_pageNumber->setSuffix(tr(" of %1").arg(inDigits(count)));
    m_pageNumber->setValue(m_page + 1);
    const QString place = tr("Page %1 of %2").arg(inDigits(m_page + 1), inDigits(count));
    m_pageNumber->setAccessibleName(place);
    m_first->setEnabled(m_page > 0);
    m_previous->setEnabled(m_page > 0);
    m_next->setEnabled(m_page + 1 < count);
    m_last->setEnabled(m_page + 1 < count);
    m_preview->updatePreview();
    if (auto* view = m_preview->findChild<QGraphicsView*>()) {
        // The part of the preview that gets the focus.
        view->setAccessibleName(place);
        view->verticalScrollBar()->setValue(view->verticalScrollBar()->minimum());
    }
}

void PreviewWindow::scrollOrTurn(int direction)
{
    auto* view = m_preview->findChild<QGraphicsView*>();
    QScrollBar* bar = view == nullptr ? nullptr : view->verticalScrollBar();
    if (bar != nullptr && bar->value() != (direction > 0 ? bar->maximum() : bar->minimum())) {
        bar->triggerAction(direction > 0 ? QScrollBar::SliderPageStepAdd : QScrollBar::SliderPageStepSub);
        return;
    }
    const int before = m_page;
    goToPage(m_page + direction);
    if (bar != nullptr && direction < 0 && m_page != before) {
        bar->setValue(bar->maximum());
    }
}

void PreviewWindow::pageFormat_Click()
{
    QPageLayout page = m_printer.pageLayout();
    page.setPageSize(QPageSize(static_cast<QPageSize::PageSizeId>(m_paper->currentData().toInt())));
    page.setOrientation(static_cast<QPageLayout::Orientation>(m_orientation->currentData().toInt()));
    // The record at the top of the view stays in view.
    const std::size_t record = m_layout->firstRecord(m_page);
    try {
        m_layout = layOut(printableArea(page));
        m_printer.setPageLayout(page);
    } catch (const Cancelled&) {
        showPageFormat();
        return;
    }
    m_page = m_layout->pageOf(record);
    showPage();
}

void PreviewWindow::showPageFormat()
{
    const QPageLayout page = m_printer.pageLayout();
    m_paper->setCurrentIndex(m_paper->findData(page.pageSize().id()));
    m_orientation->setCurrentIndex(m_orientation->findData(page.orientation()));
}

void PreviewWindow::cmbZoom_Click(int index)
{
    if (index == FitPage) {
        m_preview->fitInView();
    } else if (index == FitWidth) {
        m_preview->fitToWidth();
    } else {
        m_preview->setZoomFactor(m_zoom->itemData(index).toInt() / 100.0);
    }
    showZoom();
}

void PreviewWindow::zoomBy(int step)
{
    const int now = qRound(m_preview->zoomFactor() * 100);
    const auto* const next = std::upper_bound(ZoomPercentages.begin(), ZoomPercentages.end(), now);
    const auto* const same = std::lower_bound(ZoomPercentages.begin(), ZoomPercentages.end(), now);
    if (step > 0 && next != ZoomPercentages.end()) {
        m_preview->setZoomFactor(*next / 100.0);
    } else if (step < 0 && same != ZoomPercentages.begin()) {
        m_preview->setZoomFactor(*std::prev(same) / 100.0);
    }
    showZoom();
}

void PreviewWindow::showZoom()
{
    switch (m_preview->zoomMode()) {
    case QPrintPreviewWidget::FitInView:
        m_zoom->setCurrentIndex(FitPage);
        break;
    case QPrintPreviewWidget::FitToWidth:
        m_zoom->setCurrentIndex(FitWidth);
        break;
    case QPrintPreviewWidget::CustomZoom:
        m_zoom->setCurrentIndex(m_zoom->findData(qRound(m_preview->zoomFactor() * 100)));
        break;
    }
}

void PreviewWindow::btnPrint_Click()
{
    const PrintRequest request{
        windowTitle(), m_printer.pageLayout(), pageCount(), m_page, [this](QSizeF area) {
            return layOut(area);
        }};
    m_quietLine->hush();
    try {
        tellHowItEnded(printThroughDialog(*this, request));
    } catch (const Cancelled&) {
        // Another paper was chosen while the pages were laid out.
    }
}

void PreviewWindow::btnExport_Click()
{
    m_quietLine->hush();
    const QString file = m_host.choosePdfFile(this);
    if (!file.isEmpty()) {
        exportTo(file);
    }
}

void PreviewWindow::btnSaveAs_Click()
{
    m_quietLine->hush();
    m_quietLine->say(m_host.saveTasks(this));
}

void PreviewWindow::exportTo(const QString& file)
{
    // Keeps the pages while they are written, even if the window shows others by then.
    const std::shared_ptr<const ReportLayout> pages = m_layout;
    tellHowItEnded(writePdfFrom(*this, {file, windowTitle(), m_printer.pageLayout()}, *pages));
}

void PreviewWindow::tellHowItEnded(const PrintResult& result)
{
    if (result.kind == PrintResult::Kind::Failed) {
        m_host.tellFailure(this,
            result.file.isEmpty()
                ? tr("The report could not be printed.")
                : tr("The report could not be written to \"%1\": %2.").arg(result.file, result.reason));
    } else if (result.kind == PrintResult::Kind::Done && !result.file.isEmpty()) {
        m_quietLine->say(tr("PDF saved to \"%1\"").arg(QDir::toNativeSeparators(result.file)));
    }
}

void PreviewWindow::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    const bool canPrint = m_hasPrinter();
    m_print->setEnabled(canPrint);
    m_print->setToolTip(canPrint ? QString() : tr("No printer is set up on this computer."));
}

void PreviewWindow::closeEvent(QCloseEvent* event)
{
    event->accept();
    m_host.windowClosed();
}
