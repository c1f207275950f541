#ifndef PELORIN_BENCHMARKS_REPAINT_H
#define PELORIN_BENCHMARKS_REPAINT_H

#include <QPoint>
#include <QtCore/qnamespace.h>

class QWidget;

/// Shows \a window and lets it settle.
void showAndSettle(QWidget &window);

/// Paints at once what is due in \a window, as the event loop would at the next frame.
void paintNow(QWidget &window);

void sendPress(QWidget &widget, QPoint position);
void sendMove(QWidget &widget, QPoint position);
void sendRelease(QWidget &widget, QPoint position);

#endif
