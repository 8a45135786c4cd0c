#pragma once

#include "ui/scaling.h"

#include <QWidget>

namespace games {

/// A row of small pictures that light up one by one: stars for hits, hearts for lives. The
/// number itself stands beside them, or is read aloud.
class TokenRow : public QWidget, public ui::Scalable {
public:
    enum class Shape { Star, Heart };

    TokenRow(Shape shape, int tokens, QWidget* parent);

    /// Lights the first of them, as many as there are.
    void setLit(int tokens);
    int lit() const { return m_lit; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Shape m_shape;
    int m_tokens;
    int m_lit = 0;
};

} // namespace games
