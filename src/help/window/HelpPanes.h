#pragma once

#include <QListWidget>
#include <QTreeWidget>

class HelpBook;
class QLabel;
class QLineEdit;
class QPushButton;
struct HelpEntry;

/// A list whose entries are chosen by a click or by Enter on every desktop.
class ChoiceList : public QListWidget
{
    Q_OBJECT

public:
    explicit ChoiceList(QWidget* parent = nullptr);
    void addChoice(const QString& text, const QString& topic);

signals:
    void chosen(QListWidgetItem* item);

protected:
    void keyPressEvent(QKeyEvent* event) override;
};

/// The contents of a help file as a tree; the selected entry is the topic that is shown.
class ContentsPane : public QTreeWidget
{
    Q_OBJECT

public:
    explicit ContentsPane(QWidget* parent = nullptr);
    void fill(const HelpBook* book);
    /// Selects the entry of a topic without opening it.
    void select(const QString& topic);

signals:
    void topicChosen(const QString& topic);
};

/// The index of a help file: typing selects the first entry that begins with it, Enter opens that.
class IndexPane : public QWidget
{
    Q_OBJECT

public:
    explicit IndexPane(QWidget* parent = nullptr);
    void fill(const HelpBook* book);
    void focusInput();

signals:
    void topicChosen(const QString& topic);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void selectFirstThatBegins(const QString& text);

    QLineEdit* m_input;
    ChoiceList* m_list;
};

/// The full-text search of a help file.
class SearchPane : public QWidget
{
    Q_OBJECT

public:
    explicit SearchPane(QWidget* parent = nullptr);
    void fill(const HelpBook* book);
    void clearQuery();
    void focusInput();

signals:
    void hitChosen(const QString& topic, const QStringList& words);

private:
    void search();

    const HelpBook* m_book = nullptr;
    QLineEdit* m_input;
    QPushButton* m_start;
    QLabel* m_result;
    ChoiceList* m_list;
    QStringList m_words;
};
