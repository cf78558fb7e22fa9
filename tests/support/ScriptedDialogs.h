#pragma once

#include "system/ErrorReport.h"
#include "widgets/FileDialogs.h"
#include "widgets/MessageBoxes.h"

#include <QQueue>
#include <QStringList>
#include <functional>

/// Message boxes, file dialogs and error reports that answer as a test has announced. Strict: an
/// unannounced one fails the test at once, an unused announcement fails it at the end (destructor).
class ScriptedDialogs final : public MessageBoxes, public FileDialogs, public ErrorReport
{
public:
    ~ScriptedDialogs() override;

    // What is expected next, in this order.
    void expectTell(Icon icon, const QString& text);
    /// A message with the exclamation icon whose text contains `part`.
    void expectExclamationWith(const QString& part);
    void expectAsk(const QString& question, bool yes);
    void expectUnsaved(const QString& text, Unsaved answer, const std::function<void()>& whileOpen = {});
    void expectWhichTimes(const QString& question, Times answer);
    /// `answer` is the chosen file, empty for cancelled; `whileOpen` runs while the dialog is "open".
    void expectOpen(const QString& answer, std::function<void(const FileDialogRequest&)> whileOpen = {});
    void expectSave(const QString& answer, std::function<void(const FileDialogRequest&)> whileOpen = {});
    /// An error report whose text contains `part`, in whatever letter case; `whileOpen` runs before it is
    /// answered.
    void expectError(const QString& part, const std::function<void()>& whileOpen = {});
    bool allUsed() const { return m_expected.isEmpty(); }

    void tell(QWidget* owner, Icon icon, const QString& text) override;
    bool ask(QWidget* owner, const QString& question) override;
    Unsaved askAboutUnsaved(QWidget* owner, const QString& text) override;
    Times askWhichTimes(QWidget* owner, const QString& question) override;
    QString open(QWidget* owner, const FileDialogRequest& request) override;
    QString save(QWidget* owner, const FileDialogRequest& request) override;
    void report(const QString& text) override;

private:
    enum class Kind { Tell, TellPart, Ask, AskAboutUnsaved, AskWhichTimes, Open, Save, Error };
    struct Expectation {
        Kind kind;
        QString text;
        Icon icon = Icon::None;
        bool yes = false;
        std::function<void(const FileDialogRequest&)> whileOpen;
        Unsaved unsaved = Unsaved::Keep;
        Times times = Times::None;
    };
    /// The next expectation when it is of that kind; otherwise fails the test.
    bool take(Kind kind, const QString& shown, Expectation& expected);
    QString answerFile(Kind kind, const FileDialogRequest& request);

    QQueue<Expectation> m_expected;
};
