#include "help/window/HelpPanes.h"

#include "help/window/HelpBook.h"
#include "widgets/NamedControls.h"

#include <QBoxLayout>
#include <QCoreApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTreeWidgetItemIterator>

namespace
{

constexpr int TopicRole = Qt::UserRole;

int rowHeight(const QWidget& view)
{
    constexpr int Air = 8;
    return view.fontMetrics().height() + Air;
}

void addEntries(QTreeWidget& tree, QTreeWidgetItem* parent, const std::vector<HelpEntry>& entries)
{
    for (const HelpEntry& entry : entries) {
        auto* item = parent == nullptr ? new QTreeWidgetItem(&tree) : new QTreeWidgetItem(parent);
        item->setText(0, entry.name);
        item->setData(0, TopicRole, entry.topic);
        item->setSizeHint(0, QSize(0, rowHeight(tree)));
        addEntries(tree, item, entry.children);
    }
}

QString withoutPlace(const QString& topic)
{
    return objectPath(topic.section(u'#', 0, 0));
}

} // namespace

ChoiceList::ChoiceList(QWidget* parent) : QListWidget(parent)
{
    setUniformItemSizes(true);
    setTextElideMode(Qt::ElideRight);
    connect(this, &QListWidget::itemClicked, this, &ChoiceList::chosen);
}

void ChoiceList::addChoice(const QString& text, const QString& topic)
{
    auto* item = new QListWidgetItem(text, this);
    item->setData(TopicRole, topic);
    item->setSizeHint(QSize(0, rowHeight(*this)));
}

void ChoiceList::keyPressEvent(QKeyEvent* event)
{
    if ((event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) && currentItem() != nullptr) {
        emit chosen(currentItem());
        return;
    }
    QListWidget::keyPressEvent(event);
}

ContentsPane::ContentsPane(QWidget* parent) : QTreeWidget(parent)
{
    setObjectName(QStringLiteral("treContents"));
    setAccessibleName(tr("Contents"));
    header()->hide();
    setFrameShape(QFrame::NoFrame);
    connect(this, &QTreeWidget::currentItemChanged, this, [this](const QTreeWidgetItem* item) {
        if (item != nullptr && !item->data(0, TopicRole).toString().isEmpty()) {
            emit topicChosen(item->data(0, TopicRole).toString());
        }
    });
}

void ContentsPane::fill(const HelpBook* book)
{
    const QSignalBlocker blocker(this);
    clear();
    if (book != nullptr) {
        addEntries(*this, nullptr, book->contents());
        expandAll();
    }
}

void ContentsPane::select(const QString& topic)
{
    const auto shows = [&topic](const QTreeWidgetItem* item) {
        const QString own = item->data(0, TopicRole).toString();
        return !own.isEmpty() && withoutPlace(own).compare(topic, Qt::CaseInsensitive) == 0;
    };
    if (currentItem() != nullptr && shows(currentItem())) {
        return;
    }
    const QSignalBlocker blocker(this);
    for (QTreeWidgetItemIterator item(this); *item != nullptr; ++item) {
        if (shows(*item)) {
            setCurrentItem(*item);
            scrollToItem(*item);
            return;
        }
    }
    setCurrentItem(nullptr);
}

IndexPane::IndexPane(QWidget* parent) : QWidget(parent), m_input(new QLineEdit), m_list(new ChoiceList)
{
    m_input->setObjectName(QStringLiteral("txtIndex"));
    m_input->setAccessibleName(tr("First letters of a keyword"));
    m_input->installEventFilter(this);
    m_list->setObjectName(QStringLiteral("lstIndex"));
    m_list->setAccessibleName(tr("Index"));
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(labelFor(m_input, tr("&Keyword")));
    layout->addWidget(m_input);
    layout->addWidget(m_list, 1);
    connect(m_input, &QLineEdit::textEdited, this, &IndexPane::selectFirstThatBegins);
    connect(m_list, &ChoiceList::chosen, this,
        [this](const QListWidgetItem* item) { emit topicChosen(item->data(TopicRole).toString()); });
}

void IndexPane::fill(const HelpBook* book)
{
    m_input->clear();
    m_list->clear();
    if (book != nullptr) {
        for (const HelpEntry& entry : book->index()) {
            m_list->addChoice(entry.name, entry.topic);
        }
    }
}

void IndexPane::focusInput()
{
    m_input->setFocus();
    m_input->selectAll();
}

bool IndexPane::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_input && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        // These keys work the list while the input keeps the focus.
        if (key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_Return || key == Qt::Key_Enter) {
            QCoreApplication::sendEvent(m_list, event);
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

void IndexPane::selectFirstThatBegins(const QString& text)
{
    for (int row = 0; row < m_list->count(); ++row) {
        if (m_list->item(row)->text().startsWith(text, Qt::CaseInsensitive)) {
            m_list->setCurrentRow(row);
            m_list->scrollToItem(m_list->item(row), QAbstractItemView::PositionAtTop);
            return;
        }
    }
    m_list->setCurrentItem(nullptr);
}

SearchPane::SearchPane(QWidget* parent)
    : QWidget(parent), m_input(new QLineEdit), m_start(new QPushButton(tr("List &topics"))),
      m_result(new QLabel), m_list(new ChoiceList)
{
    m_input->setObjectName(QStringLiteral("txtSearch"));
    m_input->setAccessibleName(tr("Words to search for"));
    m_start->setObjectName(QStringLiteral("btnSearch"));
    m_start->setEnabled(false);
    m_result->setObjectName(QStringLiteral("lblResult"));
    m_result->setTextFormat(Qt::PlainText);
    m_result->setWordWrap(true);
    m_list->setObjectName(QStringLiteral("lstHits"));
    m_list->setAccessibleName(tr("Topics found"));
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(labelFor(m_input, tr("&Words")));
    layout->addWidget(m_input);
    layout->addWidget(m_start);
    layout->addWidget(m_result);
    layout->addWidget(m_list, 1);
    connect(m_input, &QLineEdit::returnPressed, this, &SearchPane::search);
    connect(m_start, &QPushButton::clicked, this, &SearchPane::search);
    connect(m_input, &QLineEdit::textChanged, this,
        [this](const QString& text) { m_start->setEnabled(!HelpBook::wordsOf(text).isEmpty()); });
    connect(m_list, &ChoiceList::chosen, this,
        [this](const QListWidgetItem* item) { emit hitChosen(item->data(TopicRole).toString(), m_words); });
}

void SearchPane::fill(const HelpBook* book)
{
    m_book = book;
    clearQuery();
}

void SearchPane::clearQuery()
{
    m_input->clear();
    m_list->clear();
    m_result->clear();
    m_words.clear();
}

void SearchPane::focusInput()
{
    m_input->setFocus();
    m_input->selectAll();
}

void SearchPane::search()
{
    m_list->clear();
    m_words = HelpBook::wordsOf(m_input->text());
    if (m_book == nullptr || m_words.isEmpty()) {
        m_result->clear();
        return;
    }
    for (const HelpHit& hit : m_book->find(m_input->text())) {
        m_list->addChoice(hit.title, hit.topic);
    }
    const int found = m_list->count();
    m_result->setText(found == 0 ? tr("No topic contains all of these words.")
            : found == 1         ? tr("1 topic found.")
                                 : tr("%n topics found.", nullptr, found));
    if (found > 0) {
        m_list->setCurrentRow(0);
        m_list->setFocus();
        emit hitChosen(m_list->item(0)->data(TopicRole).toString(), m_words);
    }
}
