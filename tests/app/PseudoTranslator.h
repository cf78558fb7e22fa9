#pragma once

#include <QTranslator>

/// A language that nobody speaks: every text with accents, in brackets and twice as long. What shows without
/// brackets has not come through translation; what is cut off would be so in some real language.
class PseudoTranslator final : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(
        const char* context, const char* source, const char* disambiguation, int number) const override;

    /// Whether `text` has come through this translator.
    static bool isPseudo(const QString& text) { return text.startsWith(u'['); }
};
