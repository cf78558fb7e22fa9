#pragma once

#include "report/ReportLayout.h"
#include "report/ReportWindow.h"
#include "widgets/ScreenProgress.h"

#include <QPageLayout>
#include <QPrinter>
#include <QWidget>
#include <functional>

class QComboBox;
class QLayout;
class QPrintPreviewWidget;
class QPushButton;
class QSpinBox;
class QuietLine;
struct PrintResult;

/// The preview of a report, one page at a time: only the visible page is painted, however long the report
/// is.
class PreviewWindow final : public QWidget, public ReportWindow
{
    Q_OBJECT

public:
    /// `hasPrinter` returns whether there is a printer; it is called whenever the window appears. A layout
    /// that takes longer than `patience` shows how far it is and can be cancelled.
    PreviewWindow(ReportHost& host, std::function<bool()> hasPrinter,
        std::chrono::milliseconds patience = ScreenProgress::Patience);

    QWidget* widget() override { return this; }
    void setContent(ReportContent content) override;

    int pageCount() const;
    /// The page in view, from 0.
    int page() const { return m_page; }
    void goToPage(int page);
    QPageLayout pageLayout() const { return m_printer.pageLayout(); }
    /// Exports the report that is shown. Returns when that is done or cancelled; how it ended is told to
    /// the user. Another report may be set meanwhile.
    void exportTo(const QString& file);

protected:
    void closeEvent(QCloseEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void btnPrint_Click();
    void btnExport_Click();
    void btnSaveAs_Click();
    void pageFormat_Click();
    void cmbZoom_Click(int index);
    void zoomBy(int step);
    void scrollOrTurn(int direction);
    QLayout* makeCommandRow();
    QLayout* makePageRow();
    void makeShortcuts();
    std::shared_ptr<const ReportLayout> layOut(QSizeF area);
    std::shared_ptr<const ReportLayout> layOut(
        const std::shared_ptr<const ReportContent>& content, QSizeF area);
    void showPage();
    void showPageFormat();
    /// Gives a window that has not been shown yet the width for its controls in two rows.
    void widenForRows();
    void showZoom();
    void tellHowItEnded(const PrintResult& result);

    ReportHost& m_host;
    std::function<bool()> m_hasPrinter;
    std::chrono::milliseconds m_patience;
    std::shared_ptr<const ReportContent> m_content;
    /// For page sizes only. In PDF format, which needs no real printer (QPageSetupDialog would need one); it
    /// writes no file.
    QPrinter m_printer;
    std::shared_ptr<const ReportLayout> m_layout;
    int m_page = 0;
    QPrintPreviewWidget* m_preview;
    QPushButton* m_print;
    QPushButton* m_export;
    QComboBox* m_paper;
    QComboBox* m_orientation;
    QComboBox* m_zoom;
    QSpinBox* m_pageNumber;
    QPushButton* m_first;
    QPushButton* m_previous;
    QPushButton* m_next;
    QPushButton* m_last;
    QuietLine* m_quietLine;
};
