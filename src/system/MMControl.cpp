#include "system/MMControl.h"

MMControl::MMControl(WaveBackendFactory factory, QObject* parent)
    : QObject(parent), m_factory(std::move(factory))
{
}

MMControl::~MMControl() = default;

void MMControl::Command(const QString& command)
{
    if (command == QLatin1String("Open")) {
        m_openFile = FileName;
    } else if (command == QLatin1String("Play")) {
        if (m_backend == nullptr && m_factory) {
            m_backend = m_factory();
            if (m_backend != nullptr) {
                m_backend->onDone = [this] {
                    emit Done();
                };
            }
        }
        if (m_backend != nullptr && !m_openFile.isEmpty()) {
            m_backend->play(m_openFile);
        }
    } else if (command == QLatin1String("Close")) {
        m_openFile.clear();
        if (m_backend != nullptr) {
            m_backend->stopAll();
        }
    }
}
