#include "tests/support/PaintRecorder.h"

#include <QWidget>

class PaintRecorder::Engine : public QPaintEngine
{
public:
    Engine(QVector<Text> &texts, QVector<Pixmap> &pixmaps)
        : QPaintEngine(AllFeatures)
        , m_texts(texts)
        , m_pixmaps(pixmaps)
    {}

    bool begin(QPaintDevice *) override { return true; }
    bool end() override { return true; }
    void updateState(const QPaintEngineState &change) override
    {
        if (change.state() & DirtyTransform)
            m_transform = change.transform();
        if (change.state() & DirtyPen)
            m_color = change.pen().color();
    }
    void drawPixmap(const QRectF &place, const QPixmap &pixmap, const QRectF &) override
    {
        m_pixmaps.append({ pixmap, m_transform.mapRect(place) });
    }
    void drawPath(const QPainterPath &) override {}
    void drawPolygon(const QPointF *, int, PolygonDrawMode) override {}
    void drawTextItem(const QPointF &point, const QTextItem &item) override
    {
        m_texts.append({ item.text(), m_transform.map(point), item.font(), m_color });
    }
    Type type() const override { return User; }

private:
    QVector<Text> &m_texts;
    QVector<Pixmap> &m_pixmaps;
    QTransform m_transform;
    QColor m_color;
};

PaintRecorder::PaintRecorder(QWidget &widget)
    : m_engine(std::make_unique<Engine>(m_texts, m_pixmaps))
    , m_size(widget.size())
{
    widget.render(this, QPoint(), QRegion(), QWidget::DrawChildren);
}

PaintRecorder::~PaintRecorder() = default;

QStringList PaintRecorder::textList() const
{
    QStringList list;
    for (const Text &text : m_texts)
        list << text.text;
    return list;
}

PaintRecorder::Text PaintRecorder::find(const QString &text) const
{
    for (const Text &each : m_texts) {
        if (each.text == text)
            return each;
    }
    return Text();
}

QPaintEngine *PaintRecorder::paintEngine() const
{
    return m_engine.get();
}

int PaintRecorder::metric(PaintDeviceMetric metric) const
{
    switch (metric) {
    case PdmWidth:
        return m_size.width();
    case PdmHeight:
        return m_size.height();
    case PdmDpiX:
    case PdmDpiY:
    case PdmPhysicalDpiX:
    case PdmPhysicalDpiY:
        return 96;
    case PdmDevicePixelRatio:
        return 1;
    case PdmWidthMM:
        return m_size.width() * 254 / 960;
    case PdmHeightMM:
        return m_size.height() * 254 / 960;
    case PdmDepth:
        return 32;
    default:
        return QPaintDevice::metric(metric);
    }
}
