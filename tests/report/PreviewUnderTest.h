#pragma once

#include "report/PreviewWindow.h"
#include "tests/report/RecordedReportHost.h"
#include "tests/report/ReportSamples.h"
#include "widgets/QuietLine.h"

#include <QComboBox>
#include <QPrintPreviewWidget>
#include <QPushButton>
#include <QSpinBox>
#include <QTest>

/// The preview window on a report of so many records, on show.
struct PreviewUnderTest {
    explicit PreviewUnderTest(
        int records, bool hasPrinter = false, std::chrono::milliseconds patience = ScreenProgress::Patience)
        : window(
            host, [hasPrinter] { return hasPrinter; }, patience)
    {
        window.setContent(contentOf(recordsOf(records)));
        window.show();
        if (!QTest::qWaitForWindowExposed(&window)) {
            QTest::qFail("the window did not appear", __FILE__, __LINE__);
        }
    }
    template <typename Control> Control* control(const char* name)
    {
        return window.findChild<Control*>(QLatin1String(name));
    }
    void press(const char* name) { QTest::mouseClick(control<QPushButton>(name), Qt::LeftButton); }
    void choose(const char* name, int index)
    {
        auto* combo = control<QComboBox>(name);
        combo->setCurrentIndex(index);
        emit combo->activated(index);
    }
    QString pageText() { return control<QSpinBox>("spnPage")->text(); }
    /// What the line at the foot says.
    QString said() { return control<QuietLine>("lblReportNote")->said(); }
    QPrintPreviewWidget* preview() { return control<QPrintPreviewWidget>("prvReport"); }
    /// A picture of what the preview shows.
    QImage picture()
    {
        QCoreApplication::processEvents();
        return preview()->grab().toImage().convertToFormat(QImage::Format_RGB32);
    }

    RecordedReportHost host;
    PreviewWindow window;
};
