#pragma once

#include <QColor>
#include <QWidget>

namespace games {

/// What becomes of a number, shown where it was for a moment: drops fly and the points rise from
/// a hit, the points of a miss shake in red, an escape splashes on the ground. It lets clicks
/// through, deletes itself, and does not come up at all where the style turns motion off.
class RainSplash : public QWidget {
    Q_OBJECT

public:
    enum class Kind { Hit, Miss, Ground };

    /// For half a second or so. centre: in pixels on the canvas; text: may be empty.
    static void show(
        QWidget& canvas, Kind kind, QPoint centre, const QColor& colour, const QString& text);

    Kind kind() const { return m_kind; }
    QString text() const { return m_text; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    RainSplash(QWidget& canvas, Kind kind, const QColor& colour, QString text);

    void drawDrops(QPainter& painter) const;
    void drawPoints(QPainter& painter) const;

    Kind m_kind;
    QColor m_colour;
    QString m_text;
    double m_factor;
    double m_progress = 0; ///< 0 to 1
};

} // namespace games
