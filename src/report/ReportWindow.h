#pragma once

#include <QImage>
#include <QString>
#include <functional>
#include <memory>
#include <vector>

class QWidget;

/// A control of a report section.
struct ReportControl {
    enum class Kind { Label, Text, Image, Line };
    Kind kind = Kind::Label;
    QString name;
    QString caption; ///< of a label
    QString dataField; ///< the column that a text shows
};

struct ReportSection {
    QString name;
    std::vector<ReportControl> controls;
};

/// All that a report shows. Texts are plain.
struct ReportContent {
    QString caption;
    QImage image; ///< shown by the image control of the page header
    std::vector<ReportSection> sections;
    /// For each record the values of the text controls of the detail section, in their order.
    std::vector<std::vector<QString>> records;
};

/// What the report window needs from the program.
class ReportHost
{
public:
    ReportHost() = default;
    virtual ~ReportHost() = default;
    ReportHost(const ReportHost&) = delete;
    ReportHost& operator=(const ReportHost&) = delete;

    /// The file to export to; empty when the user has cancelled.
    virtual QString choosePdfFile(QWidget* owner) = 0;
    /// Asks for a file and saves the tasks of the report in a form for other programs. Returns what to say
    /// about it; empty when the user has cancelled, or was told what failed.
    virtual QString saveTasks(QWidget* owner) = 0;
    /// Tells the user what failed and why.
    virtual void tellFailure(QWidget* owner, const QString& text) = 0;
    /// The user has closed the window.
    virtual void windowClosed() = 0;
};

/// The preview window of a report, in a module that the first report loads. Interface thread only.
class ReportWindow
{
public:
    ReportWindow() = default;
    virtual ~ReportWindow() = default;
    ReportWindow(const ReportWindow&) = delete;
    ReportWindow& operator=(const ReportWindow&) = delete;

    /// The top-level window, named "drTasks"; owned by this object.
    virtual QWidget* widget() = 0;
    /// Replaces the content and goes to the first page. Throws Cancelled, and then the window shows what it
    /// showed before.
    virtual void setContent(ReportContent content) = 0;
};

/// Makes the window, or returns null where reports cannot be shown. The host outlives the window.
using ReportWindowFactory = std::function<std::unique_ptr<ReportWindow>(ReportHost&)>;
