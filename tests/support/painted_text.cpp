#include "support/painted_text.h"

#include <QFontInfo>
#include <QPaintDevice>
#include <QPaintEngine>
#include <QWidget>

#include <cmath>

namespace {

/// Keeps texts and drops everything else.
class TextKeeper final : public QPaintEngine {
public:
    TextKeeper()
        : QPaintEngine(AllFeatures)
    {
    }

    QList<PaintedText> texts;

    bool begin(QPaintDevice*) override { return true; }
    bool end() override { return true; }
    Type type() const override { return User; }
    void updateState(const QPaintEngineState& now) override
    {
        if (now.state() & DirtyTransform)
            m_scale = std::sqrt(std::abs(now.transform().determinant()));
    }
    void drawPixmap(const QRectF&, const QPixmap&, const QRectF&) override { }
    void drawImage(const QRectF&, const QImage&, const QRectF&, Qt::ImageConversionFlags) override
    {
    }
    void drawPolygon(const QPointF*, int, PolygonDrawMode) override { }
    void drawPath(const QPainterPath&) override { }
    void drawTextItem(const QPointF&, const QTextItem& item) override
    {
        if (!item.text().trimmed().isEmpty())
            texts << PaintedText{item.text(), m_scale * QFontInfo(item.font()).pixelSize()};
    }

private:
    double m_scale = 1;
};

class Sheet final : public QPaintDevice {
public:
    explicit Sheet(QSize size)
        : m_size(size)
    {
    }

    mutable TextKeeper keeper;

    QPaintEngine* paintEngine() const override { return &keeper; }

protected:
    int metric(PaintDeviceMetric metric) const override
    {
        constexpr int Dpi = 96;
        switch (metric) {
        case PdmWidth:
            return m_size.width();
        case PdmHeight:
            return m_size.height();
        case PdmDpiX:
        case PdmDpiY:
        case PdmPhysicalDpiX:
        case PdmPhysicalDpiY:
            return Dpi;
        case PdmDepth:
            return 32;
        case PdmDevicePixelRatio:
            return 1;
        case PdmDevicePixelRatioScaled:
            return static_cast<int>(devicePixelRatioFScale());
        default:
            return 0;
        }
    }

private:
    QSize m_size;
};

} // namespace

QList<PaintedText> textsPaintedBy(QWidget& widget)
{
    Sheet sheet(widget.size());
    widget.render(&sheet, {}, {}, QWidget::RenderFlags());
    return sheet.keeper.texts;
}
