#pragma once

#include <QList>
#include <QMetaType>

/// A part of a text: where it begins and how long it is, in QChars.
struct TextPart {
    qsizetype begin = 0;
    qsizetype size = 0;

    bool operator==(const TextPart& other) const = default;
};

Q_DECLARE_METATYPE(QList<TextPart>)
