#pragma once

#include "WordsModel.h"
#include "widgets/GridView.h"

#include <QTest>

/// A grid of words in an active window.
struct ShownGrid {
    explicit ShownGrid(std::initializer_list<const char*> words = {"one", "two", "three"})
    {
        fill(words);
        grid.setGridModel(&model);
        grid.resize(500, 300);
        grid.show();
        QVERIFY(QTest::qWaitForWindowActive(&grid));
    }
    void fill(std::initializer_list<const char*> words)
    {
        QStringList texts;
        for (const char* word : words) {
            texts.append(QString::fromLatin1(word));
        }
        model.setWords(texts, columns());
    }
    QPoint placeOf(int row) const { return grid.visualRect(model.index(row, 1)).center(); }

    WordsModel model;
    GridView grid;
};
