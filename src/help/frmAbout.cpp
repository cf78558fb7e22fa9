#include "help/frmAbout.h"

#include "system/ErrorReport.h"
#include "system/ProgramFolder.h"
#include "system/Registry.h"
#include "system/Shell.h"
#include "widgets/FormServices.h"
#include "widgets/LetterScale.h"
#include "widgets/MessageBoxes.h"
#include "widgets/NamedControls.h"
#include "widgets/PictureLabel.h"

#include <QBoxLayout>
#include <QCloseEvent>
#include <QFileInfo>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>

namespace
{

constexpr int BufferSize = 1024;
constexpr QSize ProgramPicture(64, 64);
constexpr QSize LogoPicture(144, 48);
constexpr int TextWidth = 470;

QLabel* arialLabel(const char* name, const QString& text, qreal scale, bool bold)
{
    QLabel* made = named(plainLabel(text), name);
    QFont font = made->font();
    font.setFamily(QStringLiteral("Arial"));
    font.setPointSizeF(font.pointSizeF() * scale);
    font.setBold(bold);
    made->setFont(font);
    made->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    return made;
}

QLabel* picture(const char* name, const QIcon& icon, QSize size)
{
    auto* made = new PictureLabel(size);
    made->setObjectName(QLatin1String(name));
    made->setPicture(icon);
    // The product's name is read from the label beside it.
    made->setAccessibleName(QStringLiteral("Ambertask"));
    return made;
}

QLabel* paragraph(const char* name, const QString& text)
{
    QLabel* made = named(plainLabel(text), name);
    made->setWordWrap(true);
    made->setMinimumWidth(withLetters(TextWidth, made->font()));
    return made;
}

/// The bytes that a query keeps; the terminating zero is not part of the value.
QByteArray keptBytes(const QByteArray& data)
{
    return data.endsWith('\0') ? data.chopped(1) : data;
}

/// The decimal value of a double word. Its bytes are joined from last to first, each in hexadecimal without
/// a leading zero, so that 01 02 and 12 give the same. Empty when the result is no number.
QString decimalText(const QByteArray& bytes)
{
    QString hexadecimal;
    for (auto byte = bytes.rbegin(); byte != bytes.rend(); ++byte) {
        hexadecimal += QString::number(static_cast<uchar>(*byte), 16);
    }
    bool isNumber = false;
    const qulonglong number = hexadecimal.toULongLong(&isNumber, 16);
    return isNumber ? QString::number(number) : QString();
}

} // namespace

frmAbout::frmAbout(const FormServices& services, Registry& registry, const AboutPictures& pictures)
    : m_services(services), m_registry(registry)
{
    setObjectName(QStringLiteral("frmAbout"));
    setWindowTitle(tr("About Ambertask"));
    setWindowFlags(Qt::Dialog | Qt::MSWindowsFixedSizeDialogHint | Qt::CustomizeWindowHint
        | Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint);
    layOut(pictures);
}

void frmAbout::layOut(const AboutPictures& pictures)
{
    // One word in two labels, which read from left to right in every language.
    auto* product = new QWidget;
    product->setLayoutDirection(Qt::LeftToRight);
    auto* name = new QHBoxLayout(product);
    name->setContentsMargins({});
    name->setSpacing(0);
    name->addWidget(arialLabel("Label1", QStringLiteral("Amber"), 2.2, true));
    name->addWidget(arialLabel("Label2", QStringLiteral("task"), 2.2, false));

    auto* title = new QVBoxLayout;
    title->setSpacing(2);
    title->addStretch(1);
    title->addWidget(product, 0, Qt::AlignLeading);
    title->addWidget(arialLabel("Label3", tr("Version 1.1"), 1.1, false));
    title->addStretch(1);

    auto* head = new QHBoxLayout;
    head->setSpacing(16);
    head->addWidget(picture("Picture1", pictures.program, ProgramPicture));
    head->addLayout(title);
    head->addStretch();
    head->addWidget(picture("Picture2", pictures.logo, LogoPicture));

    auto* line = new QFrame;
    line->setObjectName(QStringLiteral("Line1"));
    line->setFrameStyle(QFrame::HLine | QFrame::Sunken);

    auto* ok = new QPushButton(tr("&OK"));
    ok->setObjectName(QStringLiteral("cmdOK"));
    // Enter presses the button as Space does while it has the focus.
    ok->setAutoDefault(true);
    connectGuarded(ok, &QPushButton::clicked, this, &frmAbout::cmdOK_Click, m_services.errors);

    connect(new QShortcut(QKeySequence::Cancel, this), &QShortcut::activated, this, &QWidget::close);

    auto* all = new QVBoxLayout(this);
    all->setContentsMargins(20, 20, 20, 16);
    all->setSpacing(12);
    all->addLayout(head);
    all->addWidget(paragraph(
        "lblDescription", tr("Ambertask is a simple and powerful task management software program.")));
    all->addWidget(line);
    all->addWidget(paragraph("lblDisclaimer",
        tr("Ambertask comes without any warranty. Your tasks stay on this computer; keep a backup of what "
           "you "
           "would miss.")));
    all->addWidget(ok, 0, Qt::AlignRight);
    all->setSizeConstraint(QLayout::SetFixedSize);
    ok->setFocus();
}

void frmAbout::cmdOK_Click()
{
    close();
}

void frmAbout::closeEvent(QCloseEvent* event)
{
    event->accept();
    emit unloadRequested();
}

void frmAbout::StartSysInfo()
{
    QString path;
    if (!findSysInfo(path) || !m_services.shell.startNormal(path)) {
        m_services.messages.tell(
            this, MessageBoxes::Icon::None, tr("System Information Is Unavailable At This Time"));
    }
}

bool frmAbout::findSysInfo(QString& path) const
{
    if (GetKeyValue(RegistryValues::LocalMachine, QStringLiteral("SOFTWARE\\Microsoft\\Shared Tools\\MSINFO"),
            QStringLiteral("PATH"), path)) {
        return true;
    }
    QString folder;
    if (!GetKeyValue(RegistryValues::LocalMachine,
            QStringLiteral("SOFTWARE\\Microsoft\\Shared Tools Location"), QStringLiteral("MSINFO"), folder)) {
        return false;
    }
    path = pathIn(folder, QStringLiteral("MSINFO32.EXE"));
    return QFileInfo(path).isFile();
}

bool frmAbout::GetKeyValue(
    quint32 KeyRoot, const QString& KeyName, const QString& SubKeyRef, QString& KeyVal) const
{
    const std::unique_ptr<RegistryKey> key = m_registry.openKey(KeyRoot, KeyName, RegistryValues::AllAccess);
    if (key == nullptr) {
        return false;
    }
    const std::optional<RegistryValue> value = key->query(SubKeyRef.toLocal8Bit(), BufferSize);
    if (!value) {
        return false;
    }
    const QByteArray kept = keptBytes(value->data);
    if (value->type == RegistryValues::Text) {
        KeyVal = QString::fromLocal8Bit(kept);
    } else if (value->type == RegistryValues::DoubleWord) {
        const QString number = decimalText(kept);
        // The value was read even if its bytes are no number.
        KeyVal = number.isEmpty() ? KeyVal : number;
    }
    return true;
}
