#pragma once

#include <QList>
#include <QString>

class QWidget;

/// A text as it is painted, and the pixels of its font on the display.
struct PaintedText {
    QString text;
    double pixels;
};

/// What a widget paints, without its children: the texts, in the fonts that it really uses.
QList<PaintedText> textsPaintedBy(QWidget& widget);
