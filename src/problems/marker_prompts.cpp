#include "problems/marker_prompts.h"

#include "problems/bank_editor.h"
#include "ui/boxes.h"

using namespace Qt::StringLiterals;

namespace problems {

QString askDatum(ui::HandlerGuard& owner)
{
    const QString title = u"Insertar dato variable"_s;
    const QString minimum = ui::InputBox::ask(owner, u"valor mínimo posible: "_s, title);
    if (minimum.isEmpty())
        return {};
    const QString maximum = ui::InputBox::ask(owner, u"valor máximo posible: "_s, title);
    return maximum.isEmpty() ? QString() : u'[' + minimum + u'_' + maximum + u']';
}

QString askComputed(ui::HandlerGuard& owner, const QString& promptEnd)
{
    const QString prompt =
        // The two blanks before "y" are meant.
        u"Escriba la expresión a insertar. Utilice &1 para insertar el primer dato, "
        "&2 para el segundo  y así sucesivamente hasta &9"_s;
    const QString expression =
        ui::InputBox::ask(owner, prompt + promptEnd, u"Reinsertar dato variable"_s);
    if (!hasLooseAmpersand(expression))
        return expression.isEmpty() ? QString() : u'{' + expression + u'}';
    ui::MessageBox::show(owner,
        u"Error en la expresión, no debe dejar espacios en blanco tras el signo &"_s, u"Error"_s,
        ui::Icon::Critical);
    return {};
}

} // namespace problems
