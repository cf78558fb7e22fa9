#include "widgets/HeldKeys.h"

#include <QAbstractNativeEventFilter>
#include <QCoreApplication>
#include <QKeyEvent>
#include <xcb/xcb.h>

/// Sees the events of the X server before Qt does.
///
/// Workaround: X repeats a held key as a release and a press of one moment. Qt 6.4.2 (QXcbKeyboard) takes
/// them for a repetition only when the press has arrived by the time it reads the release
/// (test_several_tasks, test_held_keys_change_once).
class HeldKeys::Watch final : public QAbstractNativeEventFilter
{
public:
    Watch() { QCoreApplication::instance()->installNativeEventFilter(this); }
    ~Watch() override { QCoreApplication::instance()->removeNativeEventFilter(this); }
    Watch(const Watch&) = delete;
    Watch& operator=(const Watch&) = delete;

    bool nativeEventFilter(const QByteArray& type, void* message, qintptr*) override
    {
        if (type == "xcb_generic_event_t") {
            // Presses and releases are of one structure.
            const auto& key = *static_cast<const xcb_key_press_event_t*>(message);
            constexpr int SentByAnother = 0x80;
            switch (key.response_type & ~SentByAnother) {
            case XCB_KEY_PRESS:
                if (key.detail != m_code || key.time != m_releasedAt) {
                    m_code = key.detail;
                    m_pressedAt = key.time;
                }
                break;
            case XCB_KEY_RELEASE:
                if (key.detail == m_code) {
                    m_releasedAt = key.time;
                }
                break;
            default:
                break;
            }
        }
        return false;
    }

    bool isRepetition(const QKeyEvent& press) const
    {
        // The server's time starts anew after 49 days.
        const auto heldFor =
            static_cast<qint32>(static_cast<xcb_timestamp_t>(press.timestamp()) - m_pressedAt);
        return m_code != 0 && press.nativeScanCode() == m_code && heldFor > 0;
    }

private:
    xcb_keycode_t m_code = 0; ///< of the key that was pressed last; 0 before the first
    xcb_timestamp_t m_pressedAt = 0; ///< by the user
    xcb_timestamp_t m_releasedAt = 0;
};

HeldKeys::HeldKeys() : m_watch(std::make_unique<Watch>())
{
}
HeldKeys::~HeldKeys() = default;

bool HeldKeys::isUntold(const QKeyEvent& press) const
{
    // What Qt sends anew, once assistive technology has seen it, has lost its time.
    return press.spontaneous() && !press.isAutoRepeat() && m_watch->isRepetition(press);
}
