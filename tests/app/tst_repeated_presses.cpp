#include "app/Application.h"

#include "support/TestMain.h"

#include <QAbstractEventDispatcher>
#include <QKeyEvent>
#include <QTest>
#include <QWidget>
#include <cstdint>
#include <vector>
#include <xcb/xcb.h>

namespace
{

constexpr xcb_keycode_t TabCode = 23;
constexpr xcb_timestamp_t PressedAt = 1000;
constexpr xcb_timestamp_t RepeatedAt = 1500;
/// The times of X are of 32 bits: from here on, a time of zero lies ahead.
constexpr xcb_timestamp_t AfterAMonth = 0x90000000;

/// What arrives at a widget, and whether anything that listens to all events can see it as the user's own: on
/// Linux Qt hands only such keys to screen readers, and lets those wait that came before.
struct Arrived {
    QEvent::Type type;
    bool isSpontaneous;
    bool isAutoRepeat;
    bool operator==(const Arrived&) const = default;
};

class Listener : public QWidget
{
public:
    std::vector<Arrived> arrived;

protected:
    bool event(QEvent* event) override
    {
        if (event->type() == QEvent::KeyPress || event->type() == QEvent::ShortcutOverride) {
            const auto& key = static_cast<const QKeyEvent&>(*event);
            arrived.push_back({key.type(), key.spontaneous(), key.isAutoRepeat()});
            event->accept();
            return true;
        }
        return QWidget::event(event);
    }
};

/// As the X server reports it.
void report(std::uint8_t type, xcb_timestamp_t time)
{
    xcb_key_press_event_t event{};
    event.response_type = type;
    event.detail = TabCode;
    event.time = time;
    qintptr result = 0;
    QAbstractEventDispatcher::instance()->filterNativeEvent("xcb_generic_event_t", &event, &result);
}

/// As Qt delivers a press that it takes for one of its own; whether it was accepted.
bool deliver(QWidget& receiver, QEvent::Type type, xcb_timestamp_t time)
{
    QKeyEvent press(type, Qt::Key_Tab, Qt::NoModifier, TabCode, 0, 0, QStringLiteral("\t"));
    press.setTimestamp(time);
    press.ignore();
    QSpontaneKeyEvent::setSpontaneous(&press);
    QCoreApplication::instance()->notify(&receiver, &press);
    return press.isAccepted();
}

} // namespace

class RepeatedPressesTest : public TestCase
{
    Q_OBJECT

private slots:
    void aPressThatAHeldKeyRepeatsComesFromTheKeyboardToo()
    {
        Listener listener;
        report(XCB_KEY_PRESS, PressedAt);
        QVERIFY(deliver(listener, QEvent::KeyPress, PressedAt));
        report(XCB_KEY_RELEASE, RepeatedAt);
        report(XCB_KEY_PRESS, RepeatedAt);
        QVERIFY(deliver(listener, QEvent::ShortcutOverride, RepeatedAt));
        QVERIFY(deliver(listener, QEvent::KeyPress, RepeatedAt));
        QCOMPARE(listener.arrived,
            (std::vector<Arrived>{{QEvent::KeyPress, true, false}, {QEvent::KeyPress, true, true}}));
    }

    void aSecondStrokeIsNoRepetition()
    {
        Listener listener;
        report(XCB_KEY_PRESS, PressedAt);
        report(XCB_KEY_RELEASE, RepeatedAt);
        report(XCB_KEY_PRESS, RepeatedAt + 1);
        QVERIFY(deliver(listener, QEvent::KeyPress, RepeatedAt + 1));
        QCOMPARE(listener.arrived, (std::vector<Arrived>{{QEvent::KeyPress, true, false}}));
    }

    void aPressThatAssistiveTechnologyHandsBackIsNoRepetition()
    {
        Listener listener;
        report(XCB_KEY_PRESS, AfterAMonth);
        // Qt sends it again without its time, and not as an event of the keyboard.
        QKeyEvent press(QEvent::KeyPress, Qt::Key_Tab, Qt::NoModifier, TabCode, 0, 0, QStringLiteral("\t"));
        QCoreApplication::sendEvent(&listener, &press);
        QCOMPARE(listener.arrived.back(), (Arrived{QEvent::KeyPress, false, false}));
    }
};

int main(int argc, char** argv)
{
    RepeatedPressesTest test;
    return runTest<Application>(test, argc, argv);
}
#include "tst_repeated_presses.moc"
