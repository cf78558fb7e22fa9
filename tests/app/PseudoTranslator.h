#pragma once

#include <QTranslator>

/// A made-up language: every text with accents, in brackets and twice as long. A text without brackets was
/// not translated; a text that is cut off would be cut off in some real language.
class PseudoTranslator final : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(
        const char* context, const char* source, const char* disambiguation, int number) const override;

    /// Whether `text` was translated by this translator.
    static bool isPseudo(const QString& text) { return text.startsWith(u'['); }
};
