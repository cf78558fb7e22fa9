#include "app/CommandLine.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace
{

using Command = CommandLine::Command;
using Fault = CommandLine::Fault;

/// The options of Qt 6.4 and of its platforms that are followed by a value. Each may have one dash or two.
constexpr std::array<std::string_view, 16> OptionsOfQtWithValue{"platform", "platformpluginpath",
    "platformtheme", "plugin", "qwindowgeometry", "geometry", "qwindowtitle", "title", "qwindowicon", "icon",
    "session", "style", "stylesheet", "qmljsdebugger", "display", "name"};
constexpr std::array<std::string_view, 4> OptionsOfQtAlone{"reverse", "widgetcount", "nograb", "dograb"};

template <std::size_t Count>
bool isAmong(const std::array<std::string_view, Count>& names, const QString& name)
{
    return std::any_of(names.begin(), names.end(), [&name](std::string_view known) {
        return name == QLatin1String(known.data(), static_cast<qsizetype>(known.size()));
    });
}

/// Goes through the words and remembers the first fault.
class Reader
{
public:
    explicit Reader(const QStringList& words) : m_words(words) { }

    CommandLine read()
    {
        while (m_next < m_words.size() && m_read.command != Command::Help
            && m_read.command != Command::Version) {
            take(m_words.at(m_next++));
        }
        finish();
        return m_read;
    }

private:
    void take(const QString& word)
    {
        if (m_onlyWords || !word.startsWith(u'-') || word == QLatin1String(CommandLine::StandardStream)) {
            notePlain(Fault::WordTooMany, word);
        } else if (word == QLatin1String("--")) {
            m_onlyWords = true;
        } else {
            takeOption(word);
        }
    }

    void takeOption(const QString& word)
    {
        const bool hasTwoDashes = word.startsWith(QLatin1String("--"));
        const QString name = word.section(u'=', 0, 0).mid(hasTwoDashes ? 2 : 1);
        const qsizetype sign = word.indexOf(u'=');
        m_option = word.left(sign);
        m_value = sign < 0 ? std::nullopt : std::optional(word.mid(sign + 1));
        if (isAmong(OptionsOfQtWithValue, name)) {
            m_next += m_value ? 0 : 1;
            return;
        }
        if (isAmong(OptionsOfQtAlone, name)) {
            return;
        }
        if (!hasTwoDashes) {
            notePlain(Fault::UnknownOption, m_option);
        } else if (!takeOwn(name)) {
            note(Fault::UnknownOption, m_option);
        }
    }

    bool takeOwn(const QString& name)
    {
        if (name == QLatin1String("export") || name == QLatin1String("import")) {
            begin(name == QLatin1String("export") ? Command::Export : Command::Import);
            takeValue(m_read.file);
        } else if (name == QLatin1String("format")) {
            takeFormat();
        } else if (name == QLatin1String("list")) {
            takeSwitch(m_lists);
            begin(Command::List);
        } else if (name == QLatin1String("help")) {
            m_read.command = Command::Help;
        } else if (name == QLatin1String("version")) {
            m_read.command = Command::Version;
        } else if (name == QLatin1String("json")) {
            takeSwitch(m_read.json);
        } else if (name == QLatin1String("yes")) {
            takeSwitch(m_read.yes);
        } else if (name == QLatin1String("with-programs")) {
            takeSwitch(m_read.withPrograms);
        } else {
            return false;
        }
        return true;
    }

    void begin(Command command)
    {
        if (m_read.command != Command::Start) {
            note(Fault::TwoCommands, m_option, m_commandOption);
        }
        m_read.command = command;
        m_commandOption = m_option;
    }

    void takeSwitch(bool& isOn)
    {
        isOn = true;
        if (m_value) {
            note(Fault::WithValue, m_option);
        }
    }

    void takeValue(QString& value)
    {
        if (!m_value && m_next < m_words.size()) {
            m_value = m_words.at(m_next++);
        }
        value = m_value.value_or(QString());
        if (value.isEmpty()) {
            note(Fault::WithoutValue, m_option);
        }
    }

    void takeFormat()
    {
        QString name;
        takeValue(name);
        // As the name of a file ends.
        m_format = name.contains(u'.') ? std::nullopt : exchangeFormatOf(u'.' + name);
        m_formatOption = m_option;
        if (!m_format && !name.isEmpty()) {
            note(Fault::UnknownFormat, name);
        }
    }

    void finish()
    {
        // Whoever asks for help may have mistyped the rest.
        if (m_read.command == Command::Help || m_read.command == Command::Version) {
            m_read.fault = Fault::None;
            return;
        }
        checkTogether();
        if (m_read.fault != Fault::None) {
            m_read.command = Command::Refuse;
        }
    }

    void checkTogether()
    {
        const bool moves = m_read.command == Command::Export || m_read.command == Command::Import;
        if (!m_formatOption.isEmpty() && !moves) {
            note(Fault::NeedsAnother, m_formatOption, QStringLiteral("--export"));
        }
        if (m_read.json && m_read.command != Command::List) {
            note(Fault::NeedsAnother, QStringLiteral("--json"), QStringLiteral("--list"));
        }
        if (m_read.yes && m_read.command != Command::Import) {
            note(Fault::NeedsAnother, QStringLiteral("--yes"), QStringLiteral("--import"));
        }
        if (m_read.withPrograms && m_read.command != Command::Import) {
            note(Fault::NeedsAnother, QStringLiteral("--with-programs"), QStringLiteral("--import"));
        }
        if (m_read.command == Command::Start) {
            return;
        }
        if (m_plainFault != Fault::None) {
            note(m_plainFault, m_plainWord);
        }
        if (moves) {
            const auto format = m_format ? m_format : exchangeFormatOf(m_read.file);
            m_read.format = format.value_or(ExchangeFormat::ICalendar);
            if (!format) {
                note(Fault::NoFormat, m_read.file);
            }
        }
    }

    void note(Fault fault, const QString& word, const QString& other = {})
    {
        if (m_read.fault == Fault::None) {
            m_read.fault = fault;
            m_read.word = word;
            m_read.other = other;
        }
    }

    /// A fault only together with a command.
    void notePlain(Fault fault, const QString& word)
    {
        if (m_plainFault == Fault::None) {
            m_plainFault = fault;
            m_plainWord = word;
        }
    }

    const QStringList& m_words;
    qsizetype m_next = 0;
    CommandLine m_read;
    QString m_option; ///< the one that is being read
    std::optional<QString> m_value; ///< what follows it behind a "="
    QString m_commandOption;
    QString m_formatOption;
    std::optional<ExchangeFormat> m_format;
    Fault m_plainFault = Fault::None;
    QString m_plainWord;
    bool m_lists = false;
    bool m_onlyWords = false;
};

/// A paragraph of the help.
QString optionText(const QString& option, const QString& does)
{
    return QStringLiteral("  %1\n      %2\n").arg(option, does);
}

} // namespace

CommandLine CommandLine::read(const QStringList& arguments)
{
    return Reader(arguments).read();
}

QString CommandLine::complaint() const
{
    switch (fault) {
    case Fault::UnknownOption:
        return tr("There is no option \"%1\".").arg(word);
    case Fault::WithoutValue:
        return tr("The option \"%1\" needs a value.").arg(word);
    case Fault::WithValue:
        return tr("The option \"%1\" takes no value.").arg(word);
    case Fault::UnknownFormat:
        return tr("There is no format \"%1\"; the formats are \"ics\" and \"csv\".").arg(word);
    case Fault::NoFormat:
        return word == QLatin1String(StandardStream)
            ? tr("With \"-\" the format has to be said, by \"--format ics\" or \"--format csv\".")
            : tr("The name \"%1\" ends neither in \".ics\" nor in \".csv\"; say the format by "
                 "\"--format ics\" or \"--format csv\".")
                  .arg(word);
    case Fault::NeedsAnother:
        return tr("The option \"%1\" goes with \"%2\" only.").arg(word, other);
    case Fault::TwoCommands:
        return tr("The options \"%1\" and \"%2\" do not go together.").arg(other, word);
    case Fault::WordTooMany:
        return tr("The word \"%1\" is one too many.").arg(word);
    case Fault::None:
        break;
    }
    return {};
}

QString CommandLine::help()
{
    const QStringList usage{QStringLiteral("Ambertask"), QStringLiteral("Ambertask --list [--json]"),
        tr("Ambertask --export FILE [--format ics|csv]"),
        tr("Ambertask --import FILE [--format ics|csv] [--yes] [--with-programs]"),
        QStringLiteral("Ambertask --help | --version")};
    return usage.join(u'\n') + QStringLiteral("\n\n")
        + tr("Without an option the organizer starts with its window. With one of these it does what it is "
             "told "
             "and ends, without a window, also while a copy runs:")
        + QStringLiteral("\n\n")
        + optionText(QStringLiteral("--list"),
            tr("Writes all tasks, each on a line, with tabs between the fields, which the first line names. "
               "In "
               "texts \\t stands for a tab, \\n for a line break and \\\\ for \\."))
        + optionText(QStringLiteral("--list --json"), tr("Writes all tasks as an array of JSON objects."))
        + optionText(tr("--export FILE"), tr("Writes all tasks to FILE, as iCalendar (.ics) or CSV (.csv)."))
        + optionText(tr("--import FILE"),
            tr("Says what an import of FILE would do and imports nothing; the status is 1."))
        + optionText(tr("--import FILE --yes"),
            tr("Imports FILE, without the programs that its tasks would start; it names them."))
        + optionText(tr("--import FILE --yes --with-programs"), tr("Imports these programs as well."))
        + optionText(tr("--format ics|csv"),
            tr("The format of FILE, where its name does not tell. FILE can be \"-\" then, for standard "
               "output "
               "or standard input."))
        + optionText(QStringLiteral("--help"), tr("Writes this text."))
        + optionText(QStringLiteral("--version"), tr("Writes the version.")) + u'\n'
        + tr("The status is 0, 1 when something has failed, and 2 when the command line is wrong.") + u'\n';
}
