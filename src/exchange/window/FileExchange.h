#pragma once

#include "exchange/Exchange.h"

#include <QObject>

class QWidget;
class frmImport;
struct FormServices;

/// What an import has done, for the line at the foot of a page.
QString importedNote(const ImportResult& result);

/// Export and import of tasks by the user: asks for the file, shows how far it is and what an import would
/// do. Interface thread only.
class FileExchange : public QObject
{
    Q_OBJECT

public:
    /// `services` outlives this object.
    FileExchange(const FormServices& services, ExchangeFactory exchange, QObject* parent = nullptr);
    ~FileExchange() override;

    /// Asks for a file and writes tasks to it. Returns a note that says so; empty when the user has
    /// cancelled. Throws RuntimeError.
    QString exportTasks(QWidget* owner, const ExportChoice& choice);
    /// The same for all tasks; says how it ended.
    void exportAll(QWidget* owner);
    /// Asks for a file and shows what its import would do; says why where there is nothing to show.
    void importTasks(QWidget* owner);

    /// Null before the first import.
    QWidget* window() const;

signals:
    /// How an export or import has ended, for the line at the foot of the page.
    void said(const QString& text);
    /// Tasks have been stored: everything shown is out of date.
    void imported();

private:
    QString askForExport(QWidget* owner) const;
    QString askForImport(QWidget* owner) const;
    Exchange& exchange();
    ImportPlan planOf(const QString& file, QWidget* owner);
    void carryOut();
    bool isStillAsShown();

    const FormServices& m_services;
    ExchangeFactory m_factory;
    std::unique_ptr<Exchange> m_exchange;
    std::unique_ptr<frmImport> m_window;
    QString m_file; ///< whose plan the window shows
};
