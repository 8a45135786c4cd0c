#pragma once

#include "core/errors.h"
#include "ui/screen.h"
#include "ui/screens.h"

#include <QMenu>

#include <functional>

/// A small screen with one control of each kind; its handlers do what a test wants.
class SampleScreen : public ui::Screen {
public:
    static QString screenName() { return QStringLiteral("Sample"); }

    explicit SampleScreen(ui::Screens& screens)
        : Screen(screens, screenName(), QStringLiteral("Muestra"), 4500, 3000)
    {
        entry = entryBox(
            QStringLiteral("Entry"), {300, 300, 1500, 510}, BoxFont, QStringLiteral("Respuesta"));
        shown = displayBox(QStringLiteral("Shown"), {2100, 300, 1500, 510}, BoxFont,
            QStringLiteral("Dato"), QStringLiteral("12"));
        lines = memo(QStringLiteral("Lines"), {300, 1050, 1500, 900}, ui::look::Instruction,
            QStringLiteral("Cálculos"));
        command = button(QStringLiteral("Command1"), QStringLiteral("&Hecho"),
            {2100, 1050, 1500, 600}, ui::look::Yellow);
        title = label(QStringLiteral("Label1"), QStringLiteral("&Resultado"),
            {300, 2250, 1500, 450}, ui::look::Instruction, entry);
        clock = timer(QStringLiteral("Timer1"), 10);
        QMenu* options = menu(QStringLiteral("MnuOpc"), QStringLiteral("&Opciones"));
        list = menuList(options, QStringLiteral("MnuOpcLis"), numberedCaptions(1, 3));
        on(command, &QPushButton::clicked, &SampleScreen::Command1_Click);
        on(clock, &QTimer::timeout, &SampleScreen::Timer1_Timer);
        onList(list, &SampleScreen::MnuOpcLis_Click);
    }

    void Command1_Click() { call(whenClicked); }
    void Timer1_Timer() { call(whenTicked); }
    void MnuOpcLis_Click(int Index) { picked << Index; }

    std::function<void()> whenClicked;
    std::function<void()> whenTicked;
    std::function<void()> whenUnloading;
    std::function<void()> whenLoading;
    QList<int> picked;

    ui::TextBox* entry;
    ui::TextBox* shown;
    ui::Memo* lines;
    ui::Button* command;
    QLabel* title;
    QTimer* clock;
    ui::MenuList list;

    using Screen::canvas;
    using Screen::countersBox;
    using Screen::moveTo;
    using Screen::onEnter;
    using Screen::onGotFocus;
    using Screen::onKeyDown;
    using Screen::onKeyPress;
    using Screen::onKeyUp;
    using Screen::placeOf;
    using Screen::setDesignSize;

protected:
    void Form_Load() override { call(whenLoading); }
    void Form_QueryUnload() override { call(whenUnloading); }

private:
    static constexpr ui::look::Font BoxFont{ui::look::Family::CourierNew, 28, true};

    static void call(const std::function<void()>& handler)
    {
        if (handler)
            handler();
    }
};
