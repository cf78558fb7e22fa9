// The printed report.
#include "app/drTasks.h"
#include "limits/PaintedTexts.h"
#include "report/ReportLayout.h"
#include "support/Bench.h"
#include "support/LongestStep.h"
#include "support/RecordedReportWindow.h"
#include "support/TaskFile.h"
#include "support/TestServices.h"
#include "system/Progress.h"
#include "widgets/printing/PageOutput.h"

#include <QApplication>
#include <QFileInfo>
#include <QImage>
#include <QLocale>
#include <QPainter>
#include <algorithm>
#include <memory>

namespace
{

QString count(int tasks)
{
    return QLocale(QLocale::English).toString(tasks);
}

/// What the program passes to the report's window.
std::shared_ptr<const ReportContent> contentOf(const TaskFile& file)
{
    TestServices world;
    FormServices services{file.engine(), *file.engine().clock, world.services.messages,
        world.services.fileDialogs, world.services.errors, world.services.shell, world.services.checkerTimer,
        world.images, [] { return false; }, world.files, world.undo};
    RecordedReportWindow* window = nullptr;
    drTasks report(services,
        [&window](ReportHost&) {
            auto made = std::make_unique<RecordedReportWindow>();
            window = made.get();
            return made;
        },
        {});
    report.printTasks({}, nullptr);
    return std::make_shared<const ReportContent>(window->content);
}

void exportAll(
    const std::shared_ptr<const ReportContent>& content, const QString& file, Progress* progress = nullptr)
{
    const QPageLayout page(QPageSize(QPageSize::A4), QPageLayout::Portrait, {}, QPageLayout::Millimeter);
    const ReportLayout layout(content, printableArea(page));
    if (writePdf({file, QStringLiteral("Tasks Report"), page}, layout, allPages(layout), progress)) {
        qFatal("the report could not be exported");
    }
}

void paintFirstPages(const std::shared_ptr<const ReportContent>& content)
{
    const ReportLayout layout(
        content, printableArea(QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait, {})));
    QImage page(800, 1130, QImage::Format_RGB32);
    QPainter painter(&page);
    painter.scale(page.width() / layout.page().width(), page.width() / layout.page().width());
    for (int number = 0; number < qMin(3, layout.pageCount()); ++number) {
        layout.paintPage(painter, number);
    }
}

/// Looks at the memory only now and then: one look takes as long as half a page.
class MemoryPeak final : public Progress
{
public:
    void advance(qint64 done, qint64 /*total*/) override
    {
        constexpr qint64 Pages = 16;
        if (done % Pages == 0) {
            bytes = std::max(bytes, anonymousBytes());
        }
    }

    double bytes = 0;
};

/// A report of a full house must not block the windows for long.
void benchSteps(Bench& bench, const QString& file)
{
    constexpr double Longest = 150; // ms
    const auto content = contentOf(TaskFile({bench.size(32'767, 20)}));
    LongestStep ofLayout;
    const QPageLayout page(QPageSize(QPageSize::A4), QPageLayout::Portrait, {}, QPageLayout::Millimeter);
    const ReportLayout layout(content, printableArea(page), Qt::LeftToRight, &ofLayout);
    bench.value(QStringLiteral("32,767 tasks: longest step of the report's layout"), ofLayout.milliseconds(),
        Longest, QStringLiteral("ms"));
    LongestStep ofExport;
    if (writePdf({file, QStringLiteral("Tasks Report"), page}, layout, allPages(layout), &ofExport)) {
        qFatal("the report could not be exported");
    }
    bench.value(QStringLiteral("32,767 tasks: longest step of the report's printing and PDF"),
        ofExport.milliseconds(), Longest, QStringLiteral("ms"));
}

/// The largest growth of memory during an export, in MB.
double growth(const std::shared_ptr<const ReportContent>& content, const QString& file)
{
    returnFreedMemory();
    const double before = anonymousBytes();
    MemoryPeak peak;
    exportAll(content, file, &peak);
    return (peak.bytes - before) / 1e6;
}

} // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    Bench bench(argc, argv);
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("report.pdf"));
    const int tasks = bench.size(10'000, 20);
    const auto content = contentOf(TaskFile({tasks}));
    const auto medians = bench.alternate(
        5, [&] { exportAll(content, file); },
        [&] { paintTextsToPdf(*content, folder.filePath(QStringLiteral("limit.pdf"))); });
    bench.ratio(
        QStringLiteral("Report of %1 tasks to PDF; the same texts painted").arg(count(tasks)), medians, 1.2);

    const auto few = contentOf(TaskFile({tasks / 10}));
    const auto grown = bench.alternateValues(
        5, [&] { return growth(content, file); }, [&] { return growth(few, file); });
    bench.value(QStringLiteral("Memory that an export of %1 tasks takes more than one of %2")
                    .arg(count(tasks), count(tasks / 10)),
        grown.ours - grown.reference, 1, QStringLiteral("MB"));

    const TaskFile foreign({20});
    foreign.nameWithoutEnd(1, bench.size(5'000'000, 50'000));
    bench.value(QStringLiteral("A name of 10 MB: the report read and its first pages painted"),
        bench.median(5, [&] { paintFirstPages(contentOf(foreign)); }), 200, QStringLiteral("ms"));
    benchSteps(bench, file);
    return 0;
}
