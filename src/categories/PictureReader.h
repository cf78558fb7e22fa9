#pragma once

#include "platform/HelperProcess.h"

#include <QImage>
#include <QStringList>

inline constexpr char PictureProgram[] = "ambertask_pictures";

/// Reads picture files one after the other without holding up the interface: in a process of its own, which
/// runs while there is something to read, and where that cannot be, one picture at a time between two events.
/// Interface thread only.
class PictureReader final : public QObject
{
    Q_OBJECT

public:
    /// `program` answers the path of the reading executable; empty for none.
    explicit PictureReader(const ProgramPath& program, QObject* parent = nullptr);

    /// Nothing is read before.
    void begin();
    void request(const QString& path);

signals:
    /// Made to fit the square of a rendition.
    void read(const QString& path, const QImage& picture);
    /// `why` is a sentence that names the file.
    void refused(const QString& path, const QString& why);
    /// Nothing more is to be read. Sent after `begin` in any case.
    void finished();

private:
    void readNext();
    void readHere();
    void takeAnswer(const QByteArray& bytes);
    void take(const QImage& picture, const QString& why);
    void lose();

    bool m_hasProcess;
    bool m_isGreeted = false; ///< the process works
    HelperProcess m_process;
    bool m_hasBegun = false;
    bool m_isAsked = false; ///< the first of the paths
    QStringList m_paths;
    QByteArray m_answer;
};
