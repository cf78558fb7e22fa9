#pragma once

#include <QString>
#include <QWidget>
#include <functional>

class Modules;

/// The window that shows a compiled help file: contents, index, search and topics. Our own on every
/// platform: it behaves, searches and is tested alike everywhere, and wears the skin, which the viewer of
/// Windows does not. It is in a module that the first request for help loads. A file that cannot be read is
/// not an error: the window says so. Interface thread only.
class HelpWindow : public QWidget
{
public:
    using QWidget::QWidget;

    /// The file for the following operations. A file that is open already is not opened again.
    virtual void setFile(const QString& file) = 0;
    /// The file's default topic.
    virtual void showDefaultTopic() = 0;
    virtual void showContents() = 0;
    virtual void showIndex() = 0;
    /// The search, with an empty query.
    virtual void showSearch() = 0;
    /// Shows the topic of that context number.
    virtual void showContext(qint32 context) = 0;
};

/// What the help window needs from the program.
class HelpHost
{
public:
    HelpHost() = default;
    virtual ~HelpHost() = default;
    HelpHost(const HelpHost&) = delete;
    HelpHost& operator=(const HelpHost&) = delete;

    /// Opens a web page that a help topic links to.
    virtual void openWebPage(const QString& address) = 0;
    /// The file to write to, with `name` proposed; empty when the user has cancelled.
    virtual QString choosePdfFile(QWidget* owner, const QString& name) = 0;
    /// Asks a question for yes or no.
    virtual bool ask(QWidget* owner, const QString& question) = 0;
    /// Tells the user what failed and why.
    virtual void tellFailure(QWidget* owner, const QString& text) = 0;
};

/// Makes the window, hidden and without a parent; null when its module is missing. The host outlives it.
using HelpWindowFactory = std::function<HelpWindow*(HelpHost&)>;

inline constexpr char HelpModule[] = "ambertask_help";

/// Makes the window from its module.
HelpWindow* loadHelpWindow(Modules& modules, HelpHost& host);
