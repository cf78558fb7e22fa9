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
    QString dataField; ///< of a text: the column it shows
};

struct ReportSection {
    QString name;
    std::vector<ReportControl> controls;
};

/// All that a report shows. Texts are plain.
struct ReportContent {
    QString caption;
    QImage image; ///< what the image control of the page header shows
    std::vector<ReportSection> sections;
    /// One entry a record: the values of the text controls of the detail section, in the order of the
    /// controls.
    std::vector<std::vector<QString>> records;
};

/// What the report window asks of the program around it.
class ReportHost
{
public:
    ReportHost() = default;
    virtual ~ReportHost() = default;
    ReportHost(const ReportHost&) = delete;
    ReportHost& operator=(const ReportHost&) = delete;

    /// The file to export to; empty when the user has cancelled.
    virtual QString choosePdfFile(QWidget* owner) = 0;
    /// Tells the user what failed and why.
    virtual void tellFailure(QWidget* owner, const QString& text) = 0;
    /// The user has closed the window.
    virtual void windowClosed() = 0;
};

/// The preview window of a report; a module of its own, loaded when the first report is shown. Interface
/// thread only.
class ReportWindow
{
public:
    ReportWindow() = default;
    virtual ~ReportWindow() = default;
    ReportWindow(const ReportWindow&) = delete;
    ReportWindow& operator=(const ReportWindow&) = delete;

    /// The top-level window, named "drTasks"; it lives as long as this object, which owns it.
    virtual QWidget* widget() = 0;
    /// Replaces what the window shows and turns to the first page. Throws Cancelled, and then the window
    /// shows what it showed before.
    virtual void setContent(ReportContent content) = 0;
};

/// Makes the window, or nothing where reports cannot be shown. The host outlives the window.
using ReportWindowFactory = std::function<std::unique_ptr<ReportWindow>(ReportHost&)>;
