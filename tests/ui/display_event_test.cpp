#include "support/screen_bench.h"
#include "ui/display_event.h"

#include <array>
#include <cstring>

using ui::DisplayEvent;

namespace {

constexpr quint32 Window = 0x00A0'0007;

/// A message of the display, by numbers put at their places.
class Message {
public:
    template <typename Number> Message& put(std::size_t offset, Number number)
    {
        std::memcpy(m_bytes.data() + offset, &number, sizeof number);
        return *this;
    }
    DisplayEvent as(const char* type) const { return ui::readDisplayEvent(type, m_bytes.data()); }

private:
    std::array<char, 48> m_bytes{};
};

DisplayEvent x11(const Message& message)
{
    return message.as("xcb_generic_event_t");
}

/// The first parameter is 4 bytes behind the message's number, which it is aligned after.
Message windows(quint32 number, quint64 first, quint64 second)
{
    return Message()
        .put<quint64>(0, Window)
        .put<quint32>(8, number)
        .put<quint64>(16, first)
        .put<quint64>(24, second);
}

DisplayEvent read(const Message& message)
{
    return message.as("windows_generic_MSG");
}

void compare(const DisplayEvent& event, DisplayEvent::Kind kind)
{
    QCOMPARE(event.kind, kind);
    QCOMPARE(event.window, kind == DisplayEvent::Kind::Other ? 0 : quintptr{Window});
}

} // namespace

class DisplayEventTest : public QObject {
    Q_OBJECT

    using Kind = DisplayEvent::Kind;

private slots:
    void x11KeysAndButtonsPress()
    {
        compare(x11(Message().put<quint8>(0, 2).put(12, Window)), Kind::Key);
        compare(x11(Message().put<quint8>(0, 4).put(12, Window)), Kind::Press);
        compare(x11(Message().put<quint8>(0, 3).put(12, Window)), Kind::Other);
    }

    void x11ButtonsAndTouchesOfTheMousesExtensionPress()
    {
        const auto ofExtension = [](quint16 event) {
            return Message().put<quint8>(0, 35).put(8, event).put(24, Window);
        };
        compare(x11(ofExtension(4)), Kind::Press);
        compare(x11(ofExtension(18)), Kind::Press);
        compare(x11(ofExtension(6)), Kind::Other);
    }

    void x11FocusActivates()
    {
        compare(x11(Message().put<quint8>(0, 9).put(4, Window)), Kind::Activation);
        compare(x11(Message().put<quint8>(0, 10).put(4, Window)), Kind::Deactivation);
        for (const quint8 type : {quint8{9}, quint8{10}}) // of who is under the pointer
            compare(x11(Message().put(0, type).put<quint8>(1, 5).put(4, Window)), Kind::Other);
    }

    void x11EventSentByAnotherProgramCountsToo()
    {
        compare(x11(Message().put<quint8>(0, 9 | 0x80).put(4, Window)), Kind::Activation);
    }

    void x11RequestOfTheWindowManagerActivates()
    {
        Message request = Message().put<quint8>(0, 33).put(4, Window);
        request.put<quint32>(12, 241).put<quint32>(16, 1234);
        compare(x11(request), Kind::Activation);
        compare(x11(request.put<quint32>(20, 1)), Kind::Other);
    }

    void x11StateThatIsTakenFromAWindowDoesNotActivate()
    {
        compare(
            x11(Message().put<quint8>(0, 33).put(4, Window).put<quint32>(16, 277)), Kind::Other);
    }

    void windowsActivates()
    {
        constexpr quint64 minimised = 0x10000;
        compare(read(windows(0x0006, 1, 0)), Kind::Activation);
        compare(read(windows(0x0006, 2, 0)), Kind::Activation);
        compare(read(windows(0x0006, 0, 0)), Kind::Deactivation);
        compare(read(windows(0x0006, minimised, 0)), Kind::Deactivation);
    }

    void windowsTellsADisabledWindowOfAPress()
    {
        for (const quint64 button : {0x0201U, 0x0204U, 0x0207U})
            compare(read(windows(0x0020, 0, button << 16 | 0xFFFE)), Kind::Press);
        compare(read(windows(0x0020, 0, 0x0200U << 16 | 0xFFFE)), Kind::Other); // moved over
        compare(read(windows(0x0020, 0, 0x0201U << 16 | 1)), Kind::Other); // not disabled
    }

    void windowsSaysMoreThanIsHeard() { compare(read(windows(0x0201, 0, 0)), Kind::Other); }

    void otherSystemsAreNotRead()
    {
        compare(windows(0x0006, 1, 0).as("windows_dispatcher_MSG"), Kind::Other);
        compare(windows(0x0006, 1, 0).as("mac_generic_NSEvent"), Kind::Other);
    }
};

PIZARRIN_SCREEN_TEST_MAIN(DisplayEventTest)
#include "display_event_test.moc"
