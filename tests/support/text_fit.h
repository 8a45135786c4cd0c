#pragma once

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QStyle>

/// The names of the controls on a screen whose text does not fit into them.
inline QStringList textsCutOff(const QWidget& screen)
{
    QStringList names;
    const auto check = [&](const QWidget* control, QSize needed, QSize room) {
        if (control->isVisible() && needed.width() > 0
            && (needed.width() > room.width() || needed.height() > room.height()))
            names << control->objectName();
    };
    const auto textSize = [](const QWidget* control, const QString& text) {
        // A line is higher than what stands in it: it has room for marks that Spanish lacks.
        const QFontMetrics metrics = control->fontMetrics();
        return QSize(metrics.size(Qt::TextSingleLine, text).width(),
            metrics.tightBoundingRect(QStringLiteral("Ñ¿gjÉ(")).height());
    };
    for (const QLineEdit* box : screen.findChildren<QLineEdit*>()) {
        constexpr int Inner = 4; // what a line edit keeps for itself
        const QMargins margins = box->textMargins();
        check(box, textSize(box, box->text()),
            box->size() - QSize(margins.left() + margins.right() + Inner, 0));
    }
    for (const QLabel* label : screen.findChildren<QLabel*>())
        check(label, textSize(label, label->buddy() ? label->text().remove(u'&') : label->text()),
            label->size());
    for (const QRadioButton* option : screen.findChildren<QRadioButton*>())
        check(option, option->sizeHint(), option->size());
    for (const QCheckBox* option : screen.findChildren<QCheckBox*>()) {
        const int box = option->style()->pixelMetric(QStyle::PM_IndicatorWidth, nullptr, option);
        check(option, textSize(option, option->text().remove(u'&')) + QSize(box, 0),
            option->size());
    }
    for (const QGroupBox* group : screen.findChildren<QGroupBox*>())
        check(group, textSize(group, group->title().remove(u'&')), group->size());
    for (const QPushButton* button : screen.findChildren<QPushButton*>()) {
        constexpr int Edges = 4;
        check(button, textSize(button, button->text().remove(u'&')),
            button->size() - QSize(Edges, Edges));
    }
    return names;
}
