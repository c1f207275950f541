#ifndef PELORIN_TESTS_PAINTRECORDER_H
#define PELORIN_TESTS_PAINTRECORDER_H

#include <QPaintDevice>
#include <QPaintEngine>
#include <QPixmap>
#include <QPointF>
#include <QStringList>
#include <QVector>

#include <memory>

class QWidget;

/// A paper on which a widget is painted as on a printer, and which remembers the texts and where
/// they begin, and the pixmaps. It tells what a widget writes without guessing at pixels, and
/// whether it draws a pixmap that it has kept.
class PaintRecorder : public QPaintDevice
{
public:
    struct Text
    {
        QString text;
        QPointF baseline; ///< left end of the base line, in widget coordinates
        QFont font;
        QColor color;
    };

    struct Pixmap
    {
        QPixmap pixmap;
        QRectF place; ///< in widget coordinates
    };

    /// Paints \a widget, which need not be shown, onto a new paper.
    explicit PaintRecorder(QWidget &widget);
    ~PaintRecorder() override;

    /// In the order in which they were painted.
    const QVector<Text> &texts() const { return m_texts; }
    QStringList textList() const;
    /// The first text that reads \a text; a text without a string if there is none.
    Text find(const QString &text) const;
    /// In the order in which they were painted.
    const QVector<Pixmap> &pixmaps() const { return m_pixmaps; }

    QPaintEngine *paintEngine() const override;

protected:
    int metric(PaintDeviceMetric metric) const override;

private:
    class Engine;
    std::unique_ptr<Engine> m_engine;
    QVector<Text> m_texts;
    QVector<Pixmap> m_pixmaps;
    QSize m_size;
};

#endif
