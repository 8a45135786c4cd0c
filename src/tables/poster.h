#pragma once

#include "ui/memo.h"

class QSyntaxHighlighter;

namespace tables {

class RowLayout;

/// A school poster behind the two halves of a table: paper between two rods, every other row
/// tinted across both halves.
class Poster : public QWidget, public ui::Scalable {
public:
    static constexpr int Rows = 5;

    explicit Poster(QWidget* parent);

    /// Where a poster hangs whose rows take this place, in twips.
    static ui::TwipRect around(const ui::TwipRect& rows);

protected:
    void paintEvent(QPaintEvent* event) override;
};

/// Half a table: each of its lines stands in the middle of its half of the poster, and what comes
/// before the product is quieter than the product.
class PosterHalf : public ui::Memo {
public:
    enum class Side { Left, Right };

    PosterHalf(Side side, QWidget* parent);

    void setFactor(double factor) override;

protected:
    bool event(QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void layOutRows();

    Side m_side;
    RowLayout* m_rows;
    QSyntaxHighlighter* m_quieter = nullptr; ///< of what comes before the product
};

} // namespace tables
