#pragma once

#include "help/HelpWindow.h"

#include <QStringList>

/// Answers the help window as a test has set, and remembers what it asked.
class RecordedHelpHost final : public HelpHost
{
public:
    void openWebPage(const QString& address) override { webPages.append(address); }
    QString choosePdfFile(QWidget*, const QString& name) override
    {
        proposedNames.append(name);
        return pdfFile;
    }
    bool ask(QWidget*, const QString& question) override
    {
        questions.append(question);
        return yes;
    }
    void tellFailure(QWidget*, const QString& text) override { failures.append(text); }

    QString pdfFile; ///< the answer
    bool yes = true; ///< the answer
    QStringList webPages;
    QStringList proposedNames;
    QStringList questions;
    QStringList failures;
};
