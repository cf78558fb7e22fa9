#pragma once

#include "system/HelperProcess.h"

#include <QImage>
#include <QStringList>

inline constexpr char PictureProgram[] = "ambertask_pictures";

/// Reads picture files one after the other without blocking the interface: in a separate process that runs
/// while there is something to read, or, where that is not possible, one picture at a time between events.
/// Twenty large pictures would hold up a start for half a minute; a thread would be the only one of the
/// program, and a hostile picture would crash it. Interface thread only.
class PictureReader final : public QObject
{
    Q_OBJECT

public:
    /// `program` returns the path of the reader program; empty for none.
    explicit PictureReader(const ProgramPath& program, QObject* parent = nullptr);

    /// Nothing is read before this call.
    void begin();
    void request(const QString& path);

signals:
    /// `picture` fits the square of a rendition.
    void read(const QString& path, const QImage& picture);
    /// `why` is a sentence that names the file.
    void refused(const QString& path, const QString& why);
    /// There is nothing left to read. Also sent after `begin` when there was nothing.
    void finished();

private:
    void readNext();
    void readHere();
    void takeAnswer(const QByteArray& bytes);
    void take(const QImage& picture, const QString& why);
    void lose();

    bool m_hasProcess;
    bool m_isGreeted = false; ///< the process that runs has answered
    HelperProcess m_process;
    bool m_hasBegun = false;
    bool m_isAsked = false; ///< the first of the paths has been sent
    QStringList m_paths;
    QByteArray m_answer;
};
