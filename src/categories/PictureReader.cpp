#include "categories/PictureReader.h"

#include "categories/PackedPicture.h"
#include "categories/PictureFile.h"
#include "system/RuntimeError.h"

#include <QFile>
#include <QTimer>
#include <QtEndian>
#include <utility>

PictureReader::PictureReader(const ProgramPath& program, QObject* parent)
    : QObject(parent), m_hasProcess(program != nullptr), m_process(program)
{
    connect(&m_process, &HelperProcess::answered, this, &PictureReader::takeAnswer);
    connect(&m_process, &HelperProcess::lost, this, &PictureReader::lose);
}

void PictureReader::begin()
{
    m_hasBegun = true;
    QTimer::singleShot(0, this, &PictureReader::readNext);
}

void PictureReader::request(const QString& path)
{
    if (m_paths.contains(path)) {
        return;
    }
    m_paths.append(path);
    if (m_hasBegun && m_paths.size() == 1) {
        QTimer::singleShot(0, this, &PictureReader::readNext);
    }
}

void PictureReader::readNext()
{
    if (m_isAsked) {
        return;
    }
    if (m_paths.isEmpty()) {
        m_process.end();
        m_isGreeted = false;
        emit finished();
        return;
    }
    m_isAsked = true;
    if (!m_hasProcess) {
        readHere();
        return;
    }
    m_process.write(QFile::encodeName(m_paths.constFirst()) + '\0');
}

void PictureReader::readHere()
{
    try {
        take(PictureFile(m_paths.constFirst()).load(RenditionEdge), {});
    } catch (const RuntimeError& error) {
        take({}, error.text());
    }
}

void PictureReader::takeAnswer(const QByteArray& bytes)
{
    constexpr qsizetype HeadSize = 4;
    m_answer += bytes;
    while (m_answer.size() >= HeadSize) {
        const qsizetype size = qFromLittleEndian<quint32>(m_answer.constData());
        if (m_answer.size() < HeadSize + size) {
            return;
        }
        const QByteArray answer = m_answer.mid(HeadSize, size);
        m_answer.remove(0, HeadSize + size);
        m_isGreeted = true;
        if (!answer.isEmpty() && m_isAsked) {
            const QImage picture = unpackedPicture(answer);
            take(picture, picture.isNull() ? QString::fromUtf8(answer) : QString());
        }
    }
}

void PictureReader::lose()
{
    m_answer.clear();
    if (!m_isAsked) {
        return;
    }
    if (std::exchange(m_isGreeted, false)) {
        // The picture has crashed its reader; do not read it in this process.
        take({}, PictureFile::refusal(m_paths.constFirst()));
    } else {
        m_hasProcess = false;
        readHere();
    }
}

void PictureReader::take(const QImage& picture, const QString& why)
{
    m_isAsked = false;
    const QString path = m_paths.takeFirst();
    if (picture.isNull()) {
        emit refused(path, why);
    } else {
        emit read(path, picture);
    }
    QTimer::singleShot(0, this, &PictureReader::readNext);
}
