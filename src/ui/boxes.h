#pragma once

#include <QString>

namespace ui {

class HandlerGuard;

enum class Icon { None, Information, Exclamation, Critical };

/// Boxes of a screen, with Spanish buttons. Each waits for its answer in an event loop of
/// its own; while it waits, no other handler of the screen starts and its timers' ticks are
/// dropped. When the screen was unloaded meanwhile, ScreenUnloaded is thrown: a handler
/// never goes on behind a box on a screen that is gone. A box that a timer brings up takes no
/// key and no click for its first moment.
class MessageBox {
public:
    /// Shows a text, exactly as given, with "Aceptar"; below it notes on the text.
    static void show(HandlerGuard& owner, const QString& text,
        const QString& title = programTitle(), Icon icon = Icon::None, const QString& notes = {});

    /// Asks with "Sí" and "No"; true for "Sí". There is no way out but an answer.
    static bool ask(
        HandlerGuard& owner, const QString& text, const QString& title = programTitle());

    static QString programTitle();
};

class InputBox {
public:
    /// Asks for a text with "Aceptar" and "Cancelar"; empty when cancelled.
    static QString ask(HandlerGuard& owner, const QString& prompt, const QString& title);
};

} // namespace ui
