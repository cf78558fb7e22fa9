#include "widgets/ComboBox.h"

#include "widgets/AccessibleControls.h"
#include "widgets/AccessibleEntries.h"

#include <QAbstractItemModel>
#include <QCoreApplication>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QStyle>
#include <QStyleHints>
#include <QStyleOption>
#include <QWheelEvent>
#include <utility>

namespace
{

bool writesLetter(const QKeyEvent& event)
{
    return !event.text().isEmpty() && event.text().front().isPrint()
        && !event.modifiers().testAnyFlags(Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
}

} // namespace

ComboBox::ComboBox(QWidget* parent) : QComboBox(parent)
{
    installAccessibleControls();
    // No focus by the wheel, which passes over the box when the page is scrolled.
    setFocusPolicy(Qt::StrongFocus);
    connect(this, &QComboBox::currentIndexChanged, this, [this] { tellChosenEntry(*this); });
}

void ComboBox::keepEntriesWhole()
{
    m_width = Width::OfEntries;
    // Not by QComboBox::AdjustToContents, which makes the list (nine widgets) before anybody opens it.
    setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed);
    const QAbstractItemModel* entries = model();
    connect(entries, &QAbstractItemModel::rowsInserted, this, &QWidget::updateGeometry);
    connect(entries, &QAbstractItemModel::rowsRemoved, this, &QWidget::updateGeometry);
    connect(entries, &QAbstractItemModel::dataChanged, this, &QWidget::updateGeometry);
    connect(entries, &QAbstractItemModel::modelReset, this, &QWidget::updateGeometry);
    updateGeometry();
}

void ComboBox::keepNarrow(int letters)
{
    m_width = Width::OfLetters;
    m_letters = letters;
    updateGeometry();
}

QSize ComboBox::sizeHint() const
{
    return m_width == Width::QtsOwn ? QComboBox::sizeHint() : ownSize();
}

QSize ComboBox::minimumSizeHint() const
{
    return m_width == Width::QtsOwn ? QComboBox::minimumSizeHint() : ownSize();
}

QSize ComboBox::ownSize() const
{
    constexpr int air = 2; // pixels above and below the text, as QComboBox adds
    constexpr int besidePicture = 4;
    const QFontMetrics metrics = fontMetrics();
    QSize size(0, metrics.height() + air);
    if (m_width == Width::OfLetters) {
        const QSize picture = iconSize();
        size = QSize(m_letters * metrics.horizontalAdvance(u'X') + picture.width() + besidePicture,
            qMax(size.height(), picture.height() + air));
    } else {
        for (int i = 0; i < count(); ++i) {
            size.setWidth(qMax(size.width(), metrics.horizontalAdvance(itemText(i))));
        }
    }
    QStyleOptionComboBox option;
    initStyleOption(&option);
    return style()->sizeFromContents(QStyle::CT_ComboBox, &option, size, this);
}

void ComboBox::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::StyleChange || event->type() == QEvent::PaletteChange) {
        m_owesListColours = true;
    }
    if (event->type() == QEvent::PaletteChange) {
        // Qt 6.4.2 would make a menu and style it to get the colours of the list; postponed until it opens.
        update();
        return;
    }
    // Workaround: Qt 6.4.2 would make the list to style it (tst_qt_workarounds,
    // aComboMakesItsListToStyleIt). Postponed until after the first painting; nobody can open it before.
    if (event->type() == QEvent::StyleChange && !m_painted) {
        m_owesStyle = true;
        update();
        updateGeometry();
        return;
    }
    QComboBox::changeEvent(event);
}

void ComboBox::focusInEvent(QFocusEvent* event)
{
    QComboBox::focusInEvent(event);
    // After Qt has told of the box itself.
    QMetaObject::invokeMethod(
        this, [this] { tellChosenEntry(*this); }, Qt::QueuedConnection);
}

void ComboBox::showPopup()
{
    if (std::exchange(m_owesListColours, false)) {
        QEvent change(QEvent::PaletteChange);
        QComboBox::changeEvent(&change);
    }
    QComboBox::showPopup();
}

void ComboBox::paintEvent(QPaintEvent* event)
{
    QComboBox::paintEvent(event);
    if (!std::exchange(m_painted, true) && m_owesStyle) {
        QMetaObject::invokeMethod(this, &ComboBox::takeStyle, Qt::QueuedConnection);
    }
}

void ComboBox::takeStyle()
{
    QEvent change(QEvent::StyleChange);
    QCoreApplication::sendEvent(this, &change);
}

void ComboBox::choose(int row)
{
    if (!isEnabled() || row < 0 || row >= count()) {
        return;
    }
    hidePopup();
    setCurrentIndex(row);
    emit activated(row);
    emit textActivated(itemText(row));
}

bool ComboBox::goesOnWriting(const QKeyEvent& event) const
{
    const auto patience = static_cast<quint64>(QGuiApplication::styleHints()->keyboardInputInterval());
    return m_lastLetter.has_value() && event.timestamp() - *m_lastLetter < patience;
}

void ComboBox::wheelEvent(QWheelEvent* event)
{
    if (hasFocus()) {
        QComboBox::wheelEvent(event);
    } else {
        event->ignore();
    }
}

void ComboBox::keyPressEvent(QKeyEvent* event)
{
    if (!writesLetter(*event)) {
        m_lastLetter.reset();
        QComboBox::keyPressEvent(event);
        return;
    }
    const bool opensList = event->key() == Qt::Key_Space && !goesOnWriting(*event);
    if (opensList) {
        m_lastLetter.reset();
        QComboBox::keyPressEvent(event);
        return;
    }
    m_lastLetter = event->timestamp();
    if (event->key() != Qt::Key_Space) {
        QComboBox::keyPressEvent(event);
        return;
    }
    // As another character: QComboBox recognizes by its code the key that opens the list.
    QKeyEvent blank(QEvent::KeyPress, Qt::Key_nobreakspace, event->modifiers(), event->text());
    QComboBox::keyPressEvent(&blank);
}
