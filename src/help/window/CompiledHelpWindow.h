#pragma once

#include "help/HelpWindow.h"

#include <QDateTime>
#include <memory>

class ContentsPane;
class HelpBook;
class IndexPane;
class QLabel;
class QPushButton;
class QTabWidget;
class QuietLine;
class SearchPane;
class TopicView;
struct PrintResult;

/// The help window over a compiled help file.
class CompiledHelpWindow final : public HelpWindow
{
    Q_OBJECT

public:
    /// `host` outlives the window. `hasPrinter` returns whether there is a printer; the first print calls
    /// it.
    CompiledHelpWindow(HelpHost& host, std::function<bool()> hasPrinter);
    ~CompiledHelpWindow() override;

    void setFile(const QString& file) override;
    void showDefaultTopic() override;
    void showContents() override;
    void showIndex() override;
    void showSearch() override;
    void showContext(qint32 context) override;

private:
    QWidget* makeBar();
    QWidget* makeTabs();
    void connectPanes();
    void addKeys();
    void load();
    void openHome();
    void openFirstIfNone();
    void sayMissing();
    QString damagedText() const;
    void setTextSize(int steps);
    void btnPrint_Click();
    void writeTopicPdf();
    void tellHowItEnded(const PrintResult& result);

    HelpHost& m_host;
    std::function<bool()> m_hasPrinter;
    QString m_file;
    QDateTime m_written;
    std::unique_ptr<HelpBook> m_book;
    QLabel* m_damaged;
    QTabWidget* m_tabs;
    ContentsPane* m_contents;
    IndexPane* m_index;
    SearchPane* m_search;
    TopicView* m_topic;
    QuietLine* m_quietLine;
    QPushButton* m_back = nullptr;
    QPushButton* m_forward = nullptr;
    QPushButton* m_home = nullptr;
    QPushButton* m_print = nullptr;
    QPushButton* m_smaller = nullptr;
    QPushButton* m_larger = nullptr;
};
