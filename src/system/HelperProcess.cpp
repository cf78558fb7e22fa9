#include "system/HelperProcess.h"

#include <QProcess>
#include <utility>

HelperProcess::HelperProcess(ProgramPath program, QObject* parent)
    : QObject(parent), m_program(std::move(program))
{
}

HelperProcess::~HelperProcess()
{
    end();
}

void HelperProcess::write(const QByteArray& bytes)
{
    if (m_process == nullptr) {
        start();
    }
    if (m_process != nullptr) {
        m_process->write(bytes);
    }
}

void HelperProcess::start()
{
    m_process = new QProcess(this);
    m_process->setProcessChannelMode(QProcess::ForwardedErrorChannel);
    connect(m_process, &QProcess::readyReadStandardOutput, this,
        [this] { emit answered(m_process->readAllStandardOutput()); });
    connect(m_process, &QProcess::finished, this, &HelperProcess::lose);
    connect(m_process, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart) {
            lose();
        }
    });
    m_process->start(m_program(), QStringList());
}

void HelperProcess::lose()
{
    end();
    emit lost();
}

void HelperProcess::end()
{
    QProcess* process = std::exchange(m_process, nullptr);
    if (process == nullptr) {
        return;
    }
    process->disconnect(this);
    process->kill();
    // Otherwise QProcess would wait in its destructor; deleteLater(), as this may run in a handler of its
    // own signal.
    process->waitForFinished();
    process->deleteLater();
}
