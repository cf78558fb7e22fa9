#pragma once

#include "exchange/Exchange.h"

#include <QWidget>

class GridView;
class ImportListModel;
class QLabel;
class QListWidget;
class QPlainTextEdit;
class QPushButton;

/// What the summary of an import says: what would happen, the new categories, and which parts of the file
/// cannot be read and why, a line each. Plain text.
QString importSummary(const ImportPlan& plan);

/// Shows what an import would do and asks whether to do it. Modeless and reused; it hides when it is done.
class frmImport : public QWidget
{
    Q_OBJECT

public:
    frmImport();
    ~frmImport() override;

    /// Shows another plan, of that file, with no program confirmed.
    void setPlan(const QString& file, ImportPlan plan);
    /// The plan, with the programs that the user has confirmed.
    const ImportPlan& plan() const { return m_plan; }

    /// The same plan was made again.
    void setSeen(quint32 seen) { m_plan.seen = seen; }

signals:
    /// "Import" was pressed; the window is still shown.
    void confirmed();

protected:
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void layOut();
    void listPrograms();
    void takeProgram(int row);

    ImportPlan m_plan;
    ImportListModel* m_model;
    QLabel* m_file;
    QPlainTextEdit* m_summary;
    GridView* m_grid;
    QLabel* m_programsLabel = nullptr;
    QListWidget* m_programs;
    QPushButton* m_import;
    QPushButton* m_cancel;
};
