#pragma once

#include <QHeaderView>
#include <QTest>

/// Drags the edge behind a column, counted with the hidden ones, to the right by so many pixels.
inline void dragEdge(const QHeaderView& header, int column, int by)
{
    const QPoint edge(
        header.sectionViewportPosition(column) + header.sectionSize(column) - 1, header.height() / 2);
    QTest::mousePress(header.viewport(), Qt::LeftButton, {}, edge);
    QTest::mouseMove(header.viewport(), edge + QPoint(by, 0));
    QTest::mouseRelease(header.viewport(), Qt::LeftButton, {}, edge + QPoint(by, 0));
}
