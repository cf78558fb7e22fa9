#include "system/Collation.h"

#include "system/windows/Api.h"

#include <QLocale>

namespace
{

constexpr int LongestDigit = 9;

/// The text with each number as digits that sort letter by letter as their values do: the length of the
/// number, in digits of which all but the last are 9, comes first.
QString withComparableNumbers(const QString& text)
{
    QString all;
    all.reserve(2 * text.size());
    QString number;
    const auto append = [&] {
        const qsizetype length = number.size();
        all += QString(length / LongestDigit, u'9') + QString::number(length % LongestDigit) + number;
        number.clear();
    };
    bool isNumber = false;
    for (const QChar letter : text) {
        const int digit = letter.digitValue();
        if (digit < 0 && isNumber) {
            append();
        }
        isNumber = digit >= 0;
        if (!isNumber) {
            all += letter;
        } else if (digit > 0 || !number.isEmpty()) {
            // Zeros in front change no value.
            number += QChar(u'0' + digit);
        }
    }
    if (isNumber) {
        append();
    }
    return all;
}

} // namespace

// Not by QCollator, whose keys of the system's bytes are read as UTF-16, with a tail that nobody has written.
// That of the C locale sorts by the numbers of the characters, which are those bytes.
QCollatorSortKey sortKey(const QCollator& collator, const QString& text)
{
    static const QCollator plain{QLocale::c()};
    const std::wstring locale = collator.locale().name().replace(u'_', u'-').toStdWString();
    const std::wstring letters = withComparableNumbers(text).toStdWString();
    const auto mapped = [&](wchar_t* bytes, int capacity) {
        return LCMapStringEx(locale.c_str(), LCMAP_SORTKEY | SORT_STRINGSORT, letters.data(),
            static_cast<int>(letters.size()), bytes, capacity, nullptr, nullptr, 0);
    };
    // The system takes no empty text, and counts the zero that ends the key.
    const int size = letters.empty() ? 0 : mapped(nullptr, 0);
    QByteArray bytes(size, '\0');
    if (size > 0) {
        mapped(reinterpret_cast<wchar_t*>(bytes.data()), size);
    }
    return plain.sortKey(QString::fromLatin1(bytes));
}
