#pragma once

#include <QHash>
#include <QString>

/// Small things that the user has arranged and that the next start finds again: names and values in a text
/// file of lines "name=value". What cannot be read is as if it had never been written; what cannot be written
/// is lost without a word. The file is replaced as a whole: of two programs that keep it, the last one wins.
class StateFile
{
public:
    /// Reads the file. Without a path nothing is read or written.
    explicit StateFile(QString path);

    /// Empty for an unknown name.
    QString value(const QString& name) const { return m_values.value(name); }
    /// Neither text has a line break; an empty value takes the name away.
    void set(const QString& name, const QString& value);
    /// The names that begin with `prefix`.
    QStringList names(const QString& prefix) const;
    /// Writes the file if its content has changed since it was read or written.
    void save();

private:
    QByteArray content() const;

    QString m_path;
    QHash<QString, QString> m_values;
    QByteArray m_saved;
};
