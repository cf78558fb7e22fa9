#pragma once

#include <QString>
#include <QWidget>
#include <functional>

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

/// Opens a page of the web; help topics may link to such.
using WebPageOpener = std::function<void(const QString& address)>;
/// Makes the window, hidden and without a parent; null where its module is missing.
using HelpWindowFactory = std::function<HelpWindow*(const WebPageOpener&)>;

/// The factory of the installed program: loads the module beside the executable.
HelpWindow* loadHelpWindow(const WebPageOpener& openWebPage);
