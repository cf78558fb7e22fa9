#include "system/WaveBackend.h"

#include "system/windows/Api.h"

#include <QFileInfo>
#include <algorithm>
#include <mmsystem.h>
#include <vector>

namespace
{

constexpr std::size_t MostAtOnce = 32;
constexpr wchar_t WindowClass[] = L"AmbertaskSounds";

bool send(const QString& command, HWND listener = nullptr)
{
    return mciSendStringW(command.toStdWString().c_str(), nullptr, 0, listener) == 0;
}

/// A wave that plays, as a device of the media control interface. Closing it stops it.
class Wave
{
public:
    explicit Wave(quint32 number) : m_alias(QStringLiteral("ambertask%1").arg(number)) { }

    /// Starts to play; `listener` is told when the end is reached. False when that file cannot be played.
    bool play(const QString& file, HWND listener)
    {
        m_isOpen = send(QStringLiteral("open \"%1\" type waveaudio alias %2").arg(file, m_alias));
        m_device = m_isOpen ? mciGetDeviceIDW(m_alias.toStdWString().c_str()) : 0;
        return m_isOpen && send(QStringLiteral("play %1 notify").arg(m_alias), listener);
    }
    void close()
    {
        if (std::exchange(m_isOpen, false)) {
            send(QStringLiteral("close %1").arg(m_alias));
        }
    }
    MCIDEVICEID device() const { return m_device; }

private:
    QString m_alias;
    MCIDEVICEID m_device = 0;
    bool m_isOpen = false;
};

/// The name of the file for the interface, which takes no path of more than 127 letters.
QString nameForControl(const QString& file)
{
    constexpr std::size_t LongestName = 127;
    std::wstring name = nativePath(file);
    if (name.size() > LongestName) {
        std::wstring brief(name.size() + 1, L'\0');
        brief.resize(GetShortPathNameW(name.c_str(), brief.data(), static_cast<DWORD>(brief.size())));
        name = brief.empty() ? name : brief;
    }
    return QString::fromStdWString(name);
}

class MediaControl final : public WaveBackend
{
public:
    MediaControl();
    ~MediaControl() override;
    MediaControl(const MediaControl&) = delete;
    MediaControl& operator=(const MediaControl&) = delete;

    void play(const QString& file) override;
    void stopAll() override;

private:
    static LRESULT CALLBACK receive(HWND window, UINT message, WPARAM why, LPARAM device);
    void end(MCIDEVICEID device);

    /// Never seen: it is told which sounds have ended.
    HWND m_window = nullptr;
    std::vector<Wave> m_waves;
    quint32 m_started = 0;
};

MediaControl::MediaControl()
{
    WNDCLASSW windowClass{};
    windowClass.lpfnWndProc = receive;
    windowClass.hInstance = GetModuleHandleW(nullptr);
    windowClass.lpszClassName = WindowClass;
    RegisterClassW(&windowClass);
    m_window = CreateWindowExW(
        0, WindowClass, nullptr, 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, windowClass.hInstance, nullptr);
    SetWindowLongPtrW(m_window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
}

MediaControl::~MediaControl()
{
    stopAll();
    DestroyWindow(m_window);
}

void MediaControl::play(const QString& file)
{
    // A device of that name would be opened.
    if (!QFileInfo(file).isFile()) {
        return;
    }
    if (m_waves.size() >= MostAtOnce) {
        m_waves.front().close();
        m_waves.erase(m_waves.begin());
    }
    Wave wave(++m_started);
    if (wave.play(nameForControl(file), m_window)) {
        m_waves.push_back(wave);
    } else {
        wave.close();
    }
}

void MediaControl::stopAll()
{
    for (Wave& wave : m_waves) {
        wave.close();
    }
    m_waves.clear();
}

LRESULT CALLBACK MediaControl::receive(HWND window, UINT message, WPARAM why, LPARAM device)
{
    auto* control = reinterpret_cast<MediaControl*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (message != MM_MCINOTIFY || control == nullptr) {
        return DefWindowProcW(window, message, why, device);
    }
    // Closing a sound that plays is told, too.
    if (why == MCI_NOTIFY_SUCCESSFUL || why == MCI_NOTIFY_FAILURE) {
        control->end(static_cast<MCIDEVICEID>(device));
    }
    return 0;
}

void MediaControl::end(MCIDEVICEID device)
{
    const auto ended = std::find_if(
        m_waves.begin(), m_waves.end(), [device](const Wave& wave) { return wave.device() == device; });
    if (ended == m_waves.end()) {
        return;
    }
    ended->close();
    m_waves.erase(ended);
    if (m_waves.empty() && onDone) {
        onDone();
    }
}

} // namespace

std::unique_ptr<WaveBackend> makeWaveBackend(const Modules& /*modules*/)
{
    return std::make_unique<MediaControl>();
}
