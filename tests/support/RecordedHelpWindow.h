#pragma once

#include "help/HelpWindow.h"

#include <QStringList>

/// A help window that remembers what it was to show.
class RecordedHelpWindow final : public HelpWindow
{
public:
    /// `log` outlives the window.
    explicit RecordedHelpWindow(QStringList& log) : m_log(log) { }
    ~RecordedHelpWindow() override { m_log.append(QStringLiteral("destroyed")); }

    void setFile(const QString& file) override { shownFile = file; }
    void showDefaultTopic() override { m_log.append(QStringLiteral("topic")); }
    void showContents() override { m_log.append(QStringLiteral("contents")); }
    void showIndex() override { m_log.append(QStringLiteral("index")); }
    void showSearch() override { m_log.append(QStringLiteral("search")); }
    void showContext(qint32 context) override { m_log.append(QStringLiteral("context %1").arg(context)); }

    QString shownFile;

private:
    QStringList& m_log;
};
