#include "settings/frmCopies.h"

#include "store/DatabaseError.h"
#include "system/ErrorReport.h"
#include "widgets/FormServices.h"
#include "widgets/GridView.h"
#include "widgets/LetterScale.h"
#include "widgets/MessageBoxes.h"
#include "widgets/MomentTexts.h"
#include "widgets/NamedControls.h"
#include "widgets/QuietLine.h"

#include <QBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QShowEvent>
#include <utility>

namespace
{

constexpr QSize FirstSize(820, 400);

} // namespace

frmCopies::frmCopies(const FormServices& services, std::function<QString(const QString& file)> restore)
    : QWidget(nullptr, Qt::Dialog), m_services(services), m_restore(std::move(restore)),
      m_grid(named(new GridView, "grdCopies")),
      m_btnRestore(named(new QPushButton(tr("&Restore")), "btnRestoreCopy")),
      m_quietLine(new QuietLine(QStringLiteral("lblCopiesNote"), this)), m_tmrCompare(this)
{
    setObjectName(QStringLiteral("frmCopies"));
    setWindowTitle(tr("Restore from a Copy"));
    resize(withLetters(FirstSize, font()));
    m_grid->setGridModel(&m_copies);
    m_grid->setAccessibleName(tr("Copies of your data"));
    m_grid->setEmptyText(tr("No copy has been made yet. The first one is made before the next change."));
    m_btnRestore->setToolTip(
        tr("Puts the selected copy in the place of your data, which is kept as another copy"));
    auto* close = named(new QPushButton(tr("&Close")), "btnCloseCopies");
    close->setToolTip(tr("Closes this list and changes nothing"));

    auto* buttons = new QHBoxLayout;
    buttons->addWidget(m_btnRestore);
    buttons->addStretch();
    buttons->addWidget(close);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(
        named(labelFor(m_grid, tr("Co&pies of your data that the program has made by itself")), "lblCopies"));
    layout->addWidget(m_grid, 1);
    layout->addLayout(buttons);
    layout->addWidget(m_quietLine);

    m_tmrCompare.setObjectName(QStringLiteral("tmrCompare"));
    connect(&m_tmrCompare, &QTimer::timeout, this, &frmCopies::tmrCompare_Timer);
    ErrorReport& errors = services.errors;
    connectGuarded(m_btnRestore, &QPushButton::clicked, this, &frmCopies::btnRestoreCopy_Click, errors);
    connectGuarded(m_grid, &GridView::rowDoubleClicked, this, &frmCopies::btnRestoreCopy_Click, errors);
    connectGuarded(m_grid, &GridView::enterPressed, this, &frmCopies::btnRestoreCopy_Click, errors);
    connect(close, &QPushButton::clicked, this, &QWidget::close);
    connect(new QShortcut(QKeySequence::Cancel, this), &QShortcut::activated, this, &QWidget::close);
    connect(
        m_grid->selectionModel(), &QItemSelectionModel::selectionChanged, this, &frmCopies::followSelection);
    connect(&m_copies, &QAbstractItemModel::dataChanged, this, &frmCopies::followSelection);
    connect(&m_copies, &QAbstractItemModel::modelReset, this, &frmCopies::followSelection);
    followSelection();
}

void frmCopies::refresh()
{
    if (isVisible()) {
        load();
    }
}

void frmCopies::load()
{
    const QList<KeptCopy> copies = KeptCopies(m_services.engine).list();
    if (!m_copies.lists(copies)) {
        const int row = m_grid->selectedRow();
        const QString selected = row < 0 ? QString() : m_copies.at(row).path;
        m_copies.setCopies(copies);
        const auto place = std::find_if(copies.begin(), copies.end(),
            [&selected](const KeptCopy& copy) { return copy.path == selected; });
        m_grid->selectOnly(
            place == copies.end() ? (copies.isEmpty() ? -1 : 0) : static_cast<int>(place - copies.begin()));
    }
    m_nextRow = 0;
    m_tmrCompare.start(0);
}

void frmCopies::tmrCompare_Timer()
{
    if (m_nextRow >= m_copies.rowCount()) {
        m_tmrCompare.stop();
        return;
    }
    const int row = m_nextRow++;
    try {
        m_copies.setDifference(row, differenceFromNow(m_services.engine, m_copies.at(row).path));
    } catch (const DatabaseError& error) {
        m_tmrCompare.stop();
        m_quietLine->say(tr("The copies could not be compared: %1").arg(error.text()));
    }
}

void frmCopies::followSelection()
{
    const int row = m_grid->selectedRow();
    m_btnRestore->setEnabled(row >= 0 && m_copies.isUsable(row));
}

void frmCopies::btnRestoreCopy_Click()
{
    const int row = m_grid->selectedRow();
    if (row < 0 || !m_copies.isUsable(row)) {
        return;
    }
    m_quietLine->hush();
    const KeptCopy chosen = m_copies.at(row);
    if (!m_services.messages.ask(this,
            tr("Are you sure you want to restore the copy of %1? Your data as it is now is kept as another "
               "copy.")
                .arg(dateAndLongTime(chosen.moment)))) {
        return;
    }
    m_tmrCompare.stop();
    if (const QString why = m_restore(chosen.path); !why.isEmpty()) {
        m_quietLine->say(why);
    }
    refresh();
}

void frmCopies::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    if (!event->spontaneous()) {
        load();
        m_grid->selectOnly(m_copies.rowCount() > 0 ? 0 : -1);
        m_grid->setFocus();
    }
}

void frmCopies::hideEvent(QHideEvent* event)
{
    QWidget::hideEvent(event);
    if (!event->spontaneous()) {
        m_tmrCompare.stop();
    }
}
