#include "help/window/CompiledHelpWindow.h"

#include "help/window/HelpBook.h"
#include "help/window/HelpPanes.h"
#include "help/window/TopicPages.h"
#include "help/window/TopicView.h"
#include "widgets/QuietLine.h"
#include "widgets/WrappingRow.h"
#include "widgets/printing/WindowPrinting.h"

#include <QBoxLayout>
#include <QDir>
#include <QFileInfo>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QSplitter>
#include <QTabWidget>
#include <algorithm>

namespace
{

enum Tab { ContentsTab, IndexTab, SearchTab };

constexpr int SmallestText = -3;
constexpr int LargestText = 12;
// In characters and lines, so that the size follows the font.
constexpr QSize FirstSize(68, 45);
constexpr int PaneWidth = 19;

/// A title as a file name: what is neither letter nor digit becomes a blank.
QString fileNameOf(QString title)
{
    std::replace_if(
        title.begin(), title.end(), [](QChar c) { return !c.isLetterOrNumber(); }, QChar(u' '));
    return title.simplified();
}

} // namespace

CompiledHelpWindow::CompiledHelpWindow(HelpHost& host, std::function<bool()> hasPrinter)
    : m_host(host), m_hasPrinter(std::move(hasPrinter)), m_damaged(new QLabel), m_tabs(new QTabWidget),
      m_contents(new ContentsPane), m_index(new IndexPane), m_search(new SearchPane), m_topic(new TopicView),
      m_quietLine(new QuietLine(QStringLiteral("lblHelpNote"), this))
{
    setObjectName(QStringLiteral("HelpWindow"));
    setWindowTitle(tr("Ambertask Help"));
    m_topic->setObjectName(QStringLiteral("txtTopic"));
    m_topic->setAccessibleName(tr("Topic"));
    auto* splitter = new QSplitter;
    splitter->addWidget(makeTabs());
    splitter->addWidget(m_topic);
    splitter->setStretchFactor(1, 1);
    splitter->setChildrenCollapsible(false);
    const int line = fontMetrics().height();
    splitter->setSizes({PaneWidth * line, (FirstSize.width() - PaneWidth) * line});
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(makeBar());
    layout->addWidget(splitter, 1);
    layout->addWidget(m_quietLine);
    resize(FirstSize * line);
    connectPanes();
    addKeys();
    setTextSize(0);
}

CompiledHelpWindow::~CompiledHelpWindow() = default;

QWidget* CompiledHelpWindow::makeBar()
{
    auto* bar = new QWidget;
    auto* layout = new WrappingRow(bar);
    layout->setContentsMargins(0, 0, 0, 0);
    const auto add = [layout](const char* name, const QString& caption, const QKeySequence& key) {
        auto* button = new QPushButton(caption);
        button->setObjectName(QLatin1String(name));
        button->setToolTip(key.toString(QKeySequence::NativeText));
        button->setAutoDefault(false);
        layout->addWidget(button);
        return button;
    };
    m_back = add("btnBack", tr("&Back"), Qt::ALT | Qt::Key_Left);
    m_forward = add("btnForward", tr("&Forward"), Qt::ALT | Qt::Key_Right);
    m_home = add("btnHome", tr("&Home"), Qt::ALT | Qt::Key_Home);
    m_print = add("btnPrint", tr("&Print..."), QKeySequence::Print);
    layout->addGap();
    m_smaller = add("btnSmaller", tr("&Smaller text"), Qt::CTRL | Qt::Key_Minus);
    m_larger = add("btnLarger", tr("La&rger text"), Qt::CTRL | Qt::Key_Plus);
    m_back->setEnabled(false);
    m_forward->setEnabled(false);
    connect(m_back, &QPushButton::clicked, m_topic, &QTextBrowser::backward);
    connect(m_forward, &QPushButton::clicked, m_topic, &QTextBrowser::forward);
    connect(m_home, &QPushButton::clicked, this, &CompiledHelpWindow::openHome);
    connect(m_print, &QPushButton::clicked, this, &CompiledHelpWindow::btnPrint_Click);
    connect(m_smaller, &QPushButton::clicked, this, [this] { setTextSize(m_topic->textSize() - 1); });
    connect(m_larger, &QPushButton::clicked, this, [this] { setTextSize(m_topic->textSize() + 1); });
    connect(m_topic, &QTextBrowser::backwardAvailable, m_back, &QWidget::setEnabled);
    connect(m_topic, &QTextBrowser::forwardAvailable, m_forward, &QWidget::setEnabled);
    return bar;
}

QWidget* CompiledHelpWindow::makeTabs()
{
    m_tabs->setObjectName(QStringLiteral("tabHelp"));
    // The pane is wide enough for its tabs instead.
    m_tabs->setUsesScrollButtons(false);
    m_tabs->addTab(m_contents, tr("&Contents"));
    m_tabs->addTab(m_index, tr("&Index"));
    m_tabs->addTab(m_search, tr("S&earch"));
    m_damaged->setObjectName(QStringLiteral("lblDamaged"));
    m_damaged->setTextFormat(Qt::PlainText);
    m_damaged->setWordWrap(true);
    m_damaged->hide();
    auto* pane = new QWidget;
    auto* layout = new QVBoxLayout(pane);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_damaged);
    layout->addWidget(m_tabs, 1);
    return pane;
}

void CompiledHelpWindow::connectPanes()
{
    const auto open = [this](const QString& topic) {
        m_topic->openTopic(topic);
    };
    connect(m_contents, &ContentsPane::topicChosen, this, open);
    connect(m_index, &IndexPane::topicChosen, this, open);
    connect(m_search, &SearchPane::hitChosen, m_topic, &TopicView::openTopic);
    connect(m_topic, &TopicView::webPageRequested, this,
        [this](const QString& address) { m_host.openWebPage(address); });
    connect(m_topic, &QTextBrowser::sourceChanged, this, [this] { m_contents->select(m_topic->topic()); });
}

void CompiledHelpWindow::addKeys()
{
    const auto onKey = [this](const QKeySequence& key, auto&& action) {
        connect(new QShortcut(key, this), &QShortcut::activated, this, action);
    };
    onKey(Qt::ALT | Qt::Key_Left, [this] { m_back->click(); });
    onKey(Qt::ALT | Qt::Key_Right, [this] { m_forward->click(); });
    onKey(Qt::ALT | Qt::Key_Home, [this] { m_home->click(); });
    onKey(QKeySequence::Print, [this] { m_print->click(); });
    onKey(Qt::CTRL | Qt::Key_Plus, [this] { m_larger->click(); });
    onKey(Qt::CTRL | Qt::Key_Equal, [this] { m_larger->click(); });
    onKey(Qt::CTRL | Qt::Key_Minus, [this] { m_smaller->click(); });
    onKey(Qt::CTRL | Qt::Key_0, [this] { setTextSize(0); });
    onKey(Qt::CTRL | Qt::Key_F, [this] {
        if (m_book != nullptr) {
            m_tabs->setCurrentIndex(SearchTab);
            m_search->focusInput();
        }
    });
    onKey(Qt::Key_Escape, [this] { close(); });
}

void CompiledHelpWindow::setTextSize(int steps)
{
    m_topic->setTextSize(std::clamp(steps, SmallestText, LargestText));
    m_smaller->setEnabled(m_topic->textSize() > SmallestText);
    m_larger->setEnabled(m_topic->textSize() < LargestText);
}

void CompiledHelpWindow::setFile(const QString& file)
{
    const QDateTime written = QFileInfo(file).lastModified();
    if (m_book == nullptr || file != m_file || written != m_written) {
        m_file = file;
        m_written = written;
        load();
    }
}

void CompiledHelpWindow::load()
{
    m_topic->setBook(nullptr);
    m_search->fill(nullptr);
    m_book = HelpBook::open(m_file);
    m_topic->setBook(m_book.get());
    m_contents->fill(m_book.get());
    m_index->fill(m_book.get());
    m_search->fill(m_book.get());
    const bool readable = m_book != nullptr;
    m_tabs->parentWidget()->setVisible(readable);
    m_damaged->setText(damagedText());
    m_damaged->setVisible(readable && !m_book->isWhole());
    m_home->setEnabled(readable);
    m_print->setEnabled(readable);
    setWindowTitle(readable && !m_book->title().isEmpty() ? m_book->title() : tr("Ambertask Help"));
    if (readable) {
        openHome();
    } else {
        sayMissing();
    }
    m_topic->clearHistory();
}

void CompiledHelpWindow::sayMissing()
{
    m_topic->showMessage(tr("The help cannot be shown"),
        QFileInfo::exists(m_file) ? damagedText()
                                  : tr("The help file \"%1\" is not in the program's folder. Installing the "
                                       "program again brings it back; your tasks are kept.")
                                        .arg(QFileInfo(m_file).fileName()));
}

QString CompiledHelpWindow::damagedText() const
{
    return tr(
        "The help file \"%1\" is damaged or cannot be read. Installing the program again brings it back; "
        "your tasks are kept.")
        .arg(QFileInfo(m_file).fileName());
}

void CompiledHelpWindow::openHome()
{
    m_topic->openTopic(m_book->defaultTopic());
}

void CompiledHelpWindow::openFirstIfNone()
{
    if (m_book != nullptr && m_topic->topic().isEmpty()) {
        openHome();
    }
}

void CompiledHelpWindow::showDefaultTopic()
{
    if (m_book != nullptr) {
        openHome();
    }
    m_topic->setFocus();
}

void CompiledHelpWindow::showContents()
{
    openFirstIfNone();
    m_tabs->setCurrentIndex(ContentsTab);
    m_contents->setFocus();
}

void CompiledHelpWindow::showIndex()
{
    openFirstIfNone();
    m_tabs->setCurrentIndex(IndexTab);
    m_index->focusInput();
}

void CompiledHelpWindow::showSearch()
{
    openFirstIfNone();
    m_tabs->setCurrentIndex(SearchTab);
    m_search->clearQuery();
    m_search->focusInput();
}

void CompiledHelpWindow::showContext(qint32 context)
{
    if (m_book != nullptr) {
        const auto topic = m_book->topicOf(context);
        if (topic) {
            m_topic->openTopic(*topic);
        } else {
            m_topic->showMessage(
                tr("This page cannot be shown"), tr("The help file has no topic number %1.").arg(context));
        }
    }
    m_topic->setFocus();
}

void CompiledHelpWindow::btnPrint_Click()
{
    m_quietLine->hush();
    if (!m_hasPrinter()) {
        if (m_host.ask(this,
                tr("No printer is set up on this computer. Do you want to write this topic to a PDF file "
                   "instead?"))) {
            writeTopicPdf();
        }
        return;
    }
    const QPageLayout page = usualPage();
    const PrintRequest request{m_topic->documentTitle(), page,
        TopicPages(*m_topic->document(), printableArea(page)).pageCount(), 0, [this](QSizeF area) {
            return std::make_shared<TopicPages>(*m_topic->document(), area);
        }};
    tellHowItEnded(printThroughDialog(*this, request));
}

void CompiledHelpWindow::writeTopicPdf()
{
    const QString title = m_topic->documentTitle();
    const QString file = m_host.choosePdfFile(this, fileNameOf(title) + QStringLiteral(".pdf"));
    if (file.isEmpty()) {
        return;
    }
    const QPageLayout page = usualPage();
    const TopicPages pages(*m_topic->document(), printableArea(page));
    tellHowItEnded(writePdfFrom(*this, {file, title, page}, pages));
}

void CompiledHelpWindow::tellHowItEnded(const PrintResult& result)
{
    if (result.kind == PrintResult::Kind::Failed) {
        m_host.tellFailure(this,
            result.file.isEmpty()
                ? tr("The topic could not be printed.")
                : tr("The topic could not be written to \"%1\": %2.").arg(result.file, result.reason));
    } else if (result.kind == PrintResult::Kind::Done && !result.file.isEmpty()) {
        m_quietLine->say(tr("PDF saved to \"%1\"").arg(QDir::toNativeSeparators(result.file)));
    }
}
