#pragma once

#include <QString>
#include <QWidget>
#include <functional>

class Modules;

/// The window that shows a compiled help file: contents, index, search, topics. It lies in a module of its
/// own that the first request for help loads. A file that cannot be read is no error: the window says so.
/// Interface thread only.
class HelpWindow : public QWidget
{
public:
    using QWidget::QWidget;

    /// The file that the following operations show. A file that is open stays open.
    virtual void setFile(const QString& file) = 0;
    /// The file's default topic.
    virtual void showDefaultTopic() = 0;
    virtual void showContents() = 0;
    virtual void showIndex() = 0;
    /// The search, with an empty query.
    virtual void showSearch() = 0;
    /// The topic of that context number.
    virtual void showContext(qint32 context) = 0;
};

/// What the help window asks of the program around it.
class HelpHost
{
public:
    HelpHost() = default;
    virtual ~HelpHost() = default;
    HelpHost(const HelpHost&) = delete;
    HelpHost& operator=(const HelpHost&) = delete;

    /// Opens a page of the web; help topics may link to such.
    virtual void openWebPage(const QString& address) = 0;
    /// The file to write to, `name` proposed; empty when the user has cancelled.
    virtual QString choosePdfFile(QWidget* owner, const QString& name) = 0;
    /// Asks a question for yes or no.
    virtual bool ask(QWidget* owner, const QString& question) = 0;
    /// Tells the user what failed and why.
    virtual void tellFailure(QWidget* owner, const QString& text) = 0;
};

/// Makes the window, hidden and without a parent; null where its module is missing. The host outlives it.
using HelpWindowFactory = std::function<HelpWindow*(HelpHost&)>;

inline constexpr char HelpModule[] = "ambertask_help";

/// Loads the module that makes it.
HelpWindow* loadHelpWindow(Modules& modules, HelpHost& host);
