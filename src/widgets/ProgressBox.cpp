#include "widgets/ProgressBox.h"

#include "widgets/NamedControls.h"
#include <QBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>

namespace
{

/// Range of the bar: a number of bytes may exceed an int.
constexpr int Steps = 1000;
constexpr int BoxWidth = 360;

} // namespace

ProgressBox::ProgressBox(QWidget* owner, const QString& text) : QDialog(owner), m_bar(new QProgressBar)
{
    setObjectName(QStringLiteral("progress"));
    setWindowTitle(QStringLiteral("Ambertask"));
    setWindowModality(Qt::ApplicationModal);
    if (owner != nullptr && owner->window()->windowFlags().testFlag(Qt::WindowStaysOnTopHint)) {
        setWindowFlag(Qt::WindowStaysOnTopHint);
    }
    QLabel* label = plainLabel(text);
    m_bar->setAccessibleName(text);
    m_bar->setTextVisible(false);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(label);
    layout->addWidget(m_bar);
    auto* cancel = new QPushButton(tr("&Cancel"));
    cancel->setObjectName(QStringLiteral("btnCancel"));
    layout->addWidget(cancel, 0, Qt::AlignRight);
    connect(cancel, &QPushButton::clicked, this, &ProgressBox::reject);
    setMinimumWidth(BoxWidth);
}

void ProgressBox::setProgress(qint64 done, qint64 total)
{
    m_bar->setRange(0, total == 0 ? 0 : Steps);
    m_bar->setValue(total == 0 ? 0 : static_cast<int>(done * Steps / total));
}

// The close box and Escape call reject(), too.
void ProgressBox::reject()
{
    m_cancelled = true;
    QDialog::reject();
}
