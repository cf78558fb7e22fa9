#pragma once

#include "exchange/Exchange.h"

#include <QCoreApplication>
#include <QString>
#include <QStringList>
#include <optional>

/// What the words behind the program's name ask for.
struct CommandLine {
    Q_DECLARE_TR_FUNCTIONS(CommandLine)

public:
    enum class Command {
        Start, ///< nothing: the program starts with its window
        Help,
        Version,
        List,
        Export,
        Import,
        Refuse ///< cannot be told, see `fault`
    };
    enum class Fault {
        None,
        UnknownOption,
        WithoutValue, ///< an option that needs one
        WithValue, ///< an option that takes none
        UnknownFormat,
        NoFormat, ///< of the file `word`
        NeedsAnother, ///< an option that goes with `other` alone
        TwoCommands,
        WordTooMany
    };
    /// The file that stands for standard input or output.
    static constexpr char StandardStream[] = "-";

    Command command = Command::Start;
    QString file; ///< of an export or import
    ExchangeFormat format = ExchangeFormat::ICalendar;
    bool json = false;
    bool yes = false;
    bool withPrograms = false;

    Fault fault = Fault::None;
    QString word; ///< of the command line, which the fault is about
    QString other; ///< another one

    /// Reads `arguments`, the program's name not among them. Options that Qt or its platforms take are left
    /// to them. Without a command, words that are no options and options with one dash ask for nothing, as
    /// desktops may pass them; an option with two dashes that nobody knows is refused, or a mistyped command
    /// would open a window, or do nothing while a copy runs.
    static CommandLine read(const QStringList& arguments);

    /// A sentence about the fault.
    QString complaint() const;
    static QString help();
};
