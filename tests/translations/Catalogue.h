#pragma once

#include <QList>
#include <QString>
#include <QStringList>

/// A text of the program and what a catalogue says for it.
struct Message {
    QString context;
    QString source;
    QString comment; ///< tells texts apart that read the same in English
    QStringList forms; ///< the translation; of a text with a number one form for each plural of the language
    bool hasNumber = false;
    bool isFinished = true;
    bool isVanished = false; ///< the program has no such text any more
};

/// The messages of a .ts file. Empty when it cannot be read.
QList<Message> messagesOf(const QString& file);

/// What is wrong with the translation of `message` into `language`, one line each: nothing translated, a
/// place marker, a mnemonic, an ellipsis, a colon or a line break lost or made up, a file filter changed,
/// quotes and blanks against the custom of the language.
QStringList faultsOf(const Message& message, const QString& language);
