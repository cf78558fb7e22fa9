#include "platform/printing/ProgressBox.h"

#include <QBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>

namespace
{

constexpr int LeastWidth = 320;

} // namespace

ProgressBox::ProgressBox(QWidget& owner, const QString& text, int steps)
    : QDialog(&owner), m_bar(new QProgressBar)
{
    setObjectName(QStringLiteral("ProgressBox"));
    setWindowTitle(QStringLiteral("Ambertask"));
    setWindowModality(Qt::WindowModal);
    setWindowFlag(Qt::WindowStaysOnTopHint, owner.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    auto* label = new QLabel(text);
    label->setTextFormat(Qt::PlainText);
    label->setBuddy(m_bar);
    m_bar->setObjectName(QStringLiteral("barProgress"));
    m_bar->setAccessibleName(text);
    m_bar->setRange(0, steps);
    m_bar->setMinimumWidth(LeastWidth);
    auto* cancel = new QPushButton(tr("&Cancel"));
    cancel->setObjectName(QStringLiteral("btnCancel"));
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(label);
    layout->addWidget(m_bar);
    layout->addWidget(cancel, 0, Qt::AlignRight);
    layout->setSizeConstraint(QLayout::SetFixedSize);
}

void ProgressBox::setDone(int steps)
{
    m_bar->setValue(steps);
}
