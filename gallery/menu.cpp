#include "gallery.h"
#include "pictures.h"

using namespace Qt::StringLiterals;

void gallery::addMenu(Gallery& gallery)
{
    gallery.add(u"menu"_s, u"Form1"_s);
    gallery.add(u"menu-acerca-de"_s, u"Form1"_s, [](Stage& stage) {
        stage.photographBox([&] { stage.pick(u"MnuAce"_s); }, u"Aceptar"_s);
    });
}
