#include "exchange/window/frmImport.h"

#include "exchange/window/ImportListModel.h"
#include "widgets/CloseBox.h"
#include "widgets/GridView.h"
#include "widgets/LetterScale.h"
#include "widgets/NamedControls.h"
#include "widgets/PlainText.h"
#include "widgets/ScrollFrame.h"

#include <QBoxLayout>
#include <QCloseEvent>
#include <QDir>
#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>

namespace
{

constexpr QSize FirstSize(640, 480);
constexpr int SummaryLines = 5;
constexpr int ProgramLines = 4;
/// Of a name or a path in a line of text.
constexpr qsizetype MostCharacters = 200;

QString lineFor(const UnreadablePart& part)
{
    const QString name = shownPart(part.name, MostCharacters);
    return name.isEmpty() ? frmImport::tr("Line %1: %2").arg(part.line).arg(part.reason)
                          : frmImport::tr("Line %1, \"%2\": %3").arg(part.line).arg(name, part.reason);
}

/// Room for so many lines, and for two of them on a small screen.
void setLines(QWidget& control, int lines)
{
    constexpr int Frame = 8;
    constexpr int Fewest = 2;
    control.setMinimumHeight(control.fontMetrics().lineSpacing() * Fewest + 2 * Frame);
    control.setMaximumHeight(control.fontMetrics().lineSpacing() * lines + 2 * Frame);
}

} // namespace

QString importSummary(const ImportPlan& plan)
{
    QStringList lines = summaryOf(plan);
    if (!plan.newCategories.isEmpty()) {
        QStringList names;
        for (const QString& name : plan.newCategories) {
            names.append(inOwnDirection(shownPart(name, MostCharacters)));
        }
        lines.append(frmImport::tr("New categories: %1").arg(names.join(QStringLiteral(", "))));
    }
    for (const UnreadablePart& part : plan.unreadable) {
        lines.append(lineFor(part));
    }
    if (plan.unreadableParts > plan.unreadable.size()) {
        lines.append(frmImport::tr("And more that cannot be read."));
    }
    return lines.join(u'\n');
}

frmImport::frmImport()
    : QWidget(nullptr, Qt::Dialog), m_model(new ImportListModel(this)),
      m_file(named(plainLabel({}), "lblImportFile")),
      m_summary(named(new QPlainTextEdit, "txtImportSummary")), m_grid(named(new GridView, "grdImport")),
      m_programs(named(new QListWidget, "lstImportPrograms")),
      m_import(named(new QPushButton(tr("&Import")), "btnImportTasks")),
      m_cancel(named(new QPushButton(tr("Ca&ncel")), "btnCancelImport"))
{
    setObjectName(QStringLiteral("frmImport"));
    setWindowTitle(tr("Import Tasks"));
    m_summary->setReadOnly(true);
    m_summary->setTabChangesFocus(true);
    // A read-only text has no cursor to read it by otherwise.
    m_summary->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    m_grid->setAccessibleName(tr("Tasks to import"));
    m_grid->setGridModel(m_model);
    m_programs->setTextElideMode(Qt::ElideMiddle);
    m_programs->setAccessibleName(tr("Programs to start with the reminder"));
    layOut();
    connect(m_programs, &QListWidget::itemChanged, this,
        [this](const QListWidgetItem* item) { takeProgram(m_programs->row(item)); });
    connect(m_import, &QPushButton::clicked, this, &frmImport::confirmed);
    connect(m_cancel, &QPushButton::clicked, this, &QWidget::close);
}

frmImport::~frmImport() = default;

void frmImport::layOut()
{
    auto* content = new QWidget;
    auto* layout = new QVBoxLayout(content);
    layout->setContentsMargins({});
    m_file->setWordWrap(true);
    setLines(*m_summary, SummaryLines);
    setLines(*m_programs, ProgramLines);
    m_programsLabel =
        named(labelFor(m_programs, tr("&Programs to start with the reminder; tick those that you trust")),
            "lblPrograms");
    m_programsLabel->setWordWrap(true);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    for (QPushButton* button : {m_import, m_cancel}) {
        button->setAutoDefault(false);
        buttons->addWidget(button);
    }
    layout->addWidget(m_file);
    layout->addWidget(named(labelFor(m_summary, tr("&Summary")), "lblImportSummary"));
    layout->addWidget(m_summary);
    layout->addWidget(named(labelFor(m_grid, tr("&Tasks")), "lblImportTasks"));
    layout->addWidget(m_grid, 1);
    layout->addWidget(m_programsLabel);
    layout->addWidget(m_programs);
    auto* all = new QVBoxLayout(this);
    all->addWidget(new ScrollFrame(content, {m_import}), 1);
    all->addLayout(buttons);
    resize(withLetters(FirstSize, font()));
}

void frmImport::setPlan(const QString& file, ImportPlan plan)
{
    m_model->show(nullptr);
    m_plan = std::move(plan);
    m_plan.takePrograms(false);
    m_file->setText(breakable(tr("From \"%1\"").arg(QDir::toNativeSeparators(file))));
    m_summary->setPlainText(importSummary(m_plan));
    m_model->show(&m_plan);
    listPrograms();
    m_import->setEnabled(!m_plan.isEmpty());
}

void frmImport::listPrograms()
{
    const QSignalBlocker blocker(m_programs);
    m_programs->clear();
    for (const ImportedTask* imported : m_plan.programs()) {
        const QString program = QString::fromStdString(imported->program);
        auto* item = new QListWidgetItem(tr("%1 (%2)").arg(shownPart(program, MostCharacters),
                                             shownPart(beginningOf(imported->task.name), MostCharacters)),
            m_programs);
        item->setToolTip(plainToolTip(program));
        item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
        item->setCheckState(Qt::Unchecked);
    }
    m_programs->setVisible(m_programs->count() > 0);
    m_programsLabel->setVisible(m_programs->count() > 0);
}

void frmImport::takeProgram(int row)
{
    int index = 0;
    for (ImportedTask& imported : m_plan.tasks) {
        if (!imported.program.empty() && index++ == row) {
            imported.takesProgram = m_programs->item(row)->checkState() == Qt::Checked;
        }
    }
    m_import->setEnabled(!m_plan.isEmpty());
}

void frmImport::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape && event->modifiers() == Qt::NoModifier) {
        if (!event->isAutoRepeat()) {
            m_cancel->click();
        }
        return;
    }
    QWidget::keyPressEvent(event);
}

void frmImport::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    if (!event->spontaneous()) {
        // Not a button: the Enter of the file dialog may still be held.
        m_summary->setFocus();
    }
}

void frmImport::closeEvent(QCloseEvent* event)
{
    if (isCloseByUser(*event)) {
        event->ignore();
        hide();
    }
}
