#pragma once

#include "settings/CopyListModel.h"

#include <QTimer>
#include <QWidget>
#include <functional>

class GridView;
class QPushButton;
class QuietLine;
struct FormServices;

/// The list of the copies of the data that the program has made by itself: when and before what, how many
/// tasks each has, what has become different since, and a button that restores one. Modeless, loaded once and
/// reused. The copies are compared one at a time between events while the form is shown.
class frmCopies final : public QWidget
{
    Q_OBJECT

public:
    /// `services` outlives the form. `restore` puts a copy in the place of the data file and returns why it
    /// has not; empty when it has, or when the user has cancelled.
    frmCopies(const FormServices& services, std::function<QString(const QString& file)> restore);

    /// To be called when the data has changed or a copy may have been made: lists and compares anew. Does
    /// nothing while the form is hidden.
    void refresh();

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void load();
    void btnRestoreCopy_Click();
    void tmrCompare_Timer();
    void followSelection();

    const FormServices& m_services;
    std::function<QString(const QString& file)> m_restore;
    CopyListModel m_copies;
    GridView* m_grid;
    QPushButton* m_btnRestore;
    QuietLine* m_quietLine;
    QTimer m_tmrCompare;
    int m_nextRow = 0; ///< to be compared
};
