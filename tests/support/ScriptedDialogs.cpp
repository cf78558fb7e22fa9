#include "support/ScriptedDialogs.h"

#include <QTest>

namespace
{

void fail(const QString& why)
{
    QTest::qFail(qPrintable(why), __FILE__, __LINE__);
}

std::function<void(const FileDialogRequest&)> withoutRequest(const std::function<void()>& whileOpen)
{
    if (!whileOpen) {
        return {};
    }
    return [whileOpen](const FileDialogRequest&) {
        whileOpen();
    };
}

} // namespace

ScriptedDialogs::~ScriptedDialogs()
{
    for (const Expectation& unused : std::as_const(m_expected)) {
        fail(QStringLiteral("announced but never shown: \"%1\"").arg(unused.text));
    }
}

void ScriptedDialogs::expectTell(Icon icon, const QString& text)
{
    m_expected.enqueue({Kind::Tell, text, icon, false, {}});
}

void ScriptedDialogs::expectExclamationWith(const QString& part)
{
    m_expected.enqueue({Kind::TellPart, part, Icon::Exclamation, false, {}});
}

void ScriptedDialogs::expectAsk(const QString& question, bool yes)
{
    m_expected.enqueue({Kind::Ask, question, Icon::None, yes, {}});
}

void ScriptedDialogs::expectUnsaved(
    const QString& text, Unsaved answer, const std::function<void()>& whileOpen)
{
    m_expected.enqueue({Kind::AskAboutUnsaved, text, Icon::None, false, withoutRequest(whileOpen), answer});
}

void ScriptedDialogs::expectWhichTimes(const QString& question, Times answer)
{
    m_expected.enqueue({Kind::AskWhichTimes, question, Icon::None, false, {}, Unsaved::Keep, answer});
}

void ScriptedDialogs::expectOpen(
    const QString& answer, std::function<void(const FileDialogRequest&)> whileOpen)
{
    m_expected.enqueue({Kind::Open, answer, Icon::None, false, std::move(whileOpen)});
}

void ScriptedDialogs::expectSave(
    const QString& answer, std::function<void(const FileDialogRequest&)> whileOpen)
{
    m_expected.enqueue({Kind::Save, answer, Icon::None, false, std::move(whileOpen)});
}

void ScriptedDialogs::expectError(const QString& part, const std::function<void()>& whileOpen)
{
    m_expected.enqueue({Kind::Error, part, Icon::None, false, withoutRequest(whileOpen)});
}

void ScriptedDialogs::tell(QWidget* /*owner*/, Icon icon, const QString& text)
{
    Expectation expected;
    if (!m_expected.isEmpty() && m_expected.head().kind == Kind::TellPart) {
        expected = m_expected.dequeue();
        if (icon != expected.icon || !text.contains(expected.text)) {
            fail(QStringLiteral("the message \"%1\" does not say \"%2\"").arg(text, expected.text));
        }
        return;
    }
    if (take(Kind::Tell, text, expected) && (expected.text != text || expected.icon != icon)) {
        fail(QStringLiteral("the message \"%1\" or its icon is not the announced \"%2\"")
                 .arg(text, expected.text));
    }
}

bool ScriptedDialogs::ask(QWidget* /*owner*/, const QString& question)
{
    Expectation expected;
    if (!take(Kind::Ask, question, expected)) {
        return false;
    }
    if (expected.text != question) {
        fail(QStringLiteral("the question \"%1\" is not the announced \"%2\"").arg(question, expected.text));
    }
    return expected.yes;
}

MessageBoxes::Unsaved ScriptedDialogs::askAboutUnsaved(QWidget* /*owner*/, const QString& text)
{
    Expectation expected;
    if (take(Kind::AskAboutUnsaved, text, expected) && expected.text != text) {
        fail(QStringLiteral("\"%1\" is not the announced \"%2\"").arg(text, expected.text));
    }
    if (expected.whileOpen) {
        expected.whileOpen({});
    }
    return expected.unsaved;
}

MessageBoxes::Times ScriptedDialogs::askWhichTimes(QWidget* /*owner*/, const QString& question)
{
    Expectation expected;
    if (take(Kind::AskWhichTimes, question, expected) && expected.text != question) {
        fail(QStringLiteral("\"%1\" is not the announced \"%2\"").arg(question, expected.text));
    }
    return expected.times;
}

QString ScriptedDialogs::open(QWidget* /*owner*/, const FileDialogRequest& request)
{
    return answerFile(Kind::Open, request);
}

QString ScriptedDialogs::save(QWidget* /*owner*/, const FileDialogRequest& request)
{
    return answerFile(Kind::Save, request);
}

void ScriptedDialogs::report(const QString& text)
{
    Expectation expected;
    if (!take(Kind::Error, text, expected)) {
        return;
    }
    if (!text.contains(expected.text, Qt::CaseInsensitive)) {
        fail(QStringLiteral("the error \"%1\" does not say \"%2\"").arg(text, expected.text));
    }
    if (expected.whileOpen) {
        expected.whileOpen({});
    }
}

bool ScriptedDialogs::take(Kind kind, const QString& shown, Expectation& expected)
{
    if (m_expected.isEmpty() || m_expected.head().kind != kind) {
        fail(QStringLiteral("not announced: \"%1\"").arg(shown));
        return false;
    }
    expected = m_expected.dequeue();
    return true;
}

QString ScriptedDialogs::answerFile(Kind kind, const FileDialogRequest& request)
{
    Expectation expected;
    if (!take(kind, request.filter, expected)) {
        return {};
    }
    if (expected.whileOpen) {
        expected.whileOpen(request);
    }
    return expected.text;
}
