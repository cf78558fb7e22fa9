#pragma once

#include "system/WaveBackend.h"

#include <QObject>
#include <QString>
#include <memory>

/// The multimedia control: set the properties, then send the commands "Open" and "Play". Each "Play" starts
/// at once and may overlap the sound before; "Close" stops all. Interface thread only; never blocks, never
/// fails.
class MMControl : public QObject
{
    Q_OBJECT

public:
    explicit MMControl(WaveBackendFactory factory, QObject* parent = nullptr);
    ~MMControl() override;

    bool Notify = false;
    bool Wait = false;
    bool Shareable = false;
    QString DeviceType;
    QString FileName;

    /// "Open", "Play" or "Close"; anything else does nothing.
    void Command(const QString& command);

signals:
    /// Playback has ended by itself.
    void Done();

private:
    WaveBackendFactory m_factory;
    std::unique_ptr<WaveBackend> m_backend;
    QString m_openFile;
};
