#include "widgets/LongText.h"

#include "widgets/PlainText.h"

#include <QCoreApplication>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextDocument>
#include <QValidator>
#include <limits>

namespace
{

/// QPlainTextEdit shapes a paragraph as a whole.
constexpr qsizetype LongestParagraph = 20'000;
constexpr qsizetype ShownOfParagraph = 10'000;
constexpr qsizetype MostInAll = 1'200'000;
/// An ellipsis that no keyboard types. One character: no key can delete half of it.
constexpr QChar Mark(0x22EF);

qsizetype shownLength(const QString& text)
{
    for (qsizetype begin = 0; begin < qMin(text.size(), MostInAll);) {
        const qsizetype found = text.indexOf(u'\n', begin);
        const qsizetype end = found < 0 ? text.size() : found;
        if (end - begin > LongestParagraph) {
            return lengthOfPart(text, begin + ShownOfParagraph);
        }
        begin = end + 1;
    }
    return lengthOfPart(text, MostInAll);
}

/// The part of the text that an edit does not show. A validator, because that sees pasted text before the
/// edit shapes it.
class Rest final : public QValidator
{
    Q_DECLARE_TR_FUNCTIONS(Rest)

public:
    explicit Rest(QWidget& edit) : QValidator(&edit), m_edit(edit) { }

    State validate(QString& text, int& position) const override
    {
        if (shownLength(text) < text.size()) {
            text = cut(wholeOf(text));
            position = static_cast<int>(qMin(qsizetype(position), text.size()));
        }
        return Acceptable;
    }

    QString cut(const QString& whole) const
    {
        const qsizetype length = shownLength(whole);
        m_rest = whole.mid(length);
        m_edit.setToolTip(m_rest.isEmpty()
                ? QString()
                : tr("Only the beginning is shown. The \"\u22ef\" stands for the rest."));
        return m_rest.isEmpty() ? whole : whole.left(length) + Mark;
    }

    QString wholeOf(const QString& shown) const
    {
        const qsizetype mark = m_rest.isEmpty() ? -1 : shown.lastIndexOf(Mark);
        return mark < 0 ? shown : QString(shown).replace(mark, 1, m_rest);
    }

private:
    QWidget& m_edit;
    mutable QString m_rest;
};

/// No other edit of the program has a validator.
Rest* foundRest(const QWidget& edit)
{
    return static_cast<Rest*>(edit.findChild<QValidator*>(QString(), Qt::FindDirectChildrenOnly));
}

Rest& restOf(QWidget& edit)
{
    auto* rest = foundRest(edit);
    return rest == nullptr ? *new Rest(edit) : *rest;
}

QString withRest(const QWidget& edit, const QString& shown)
{
    const auto* rest = foundRest(edit);
    return rest == nullptr ? shown : rest->wholeOf(shown);
}

} // namespace

void takeLongTexts(QLineEdit& edit)
{
    // QLineEdit cuts at 32,767 characters otherwise.
    edit.setMaxLength(std::numeric_limits<int>::max());
    edit.setValidator(&restOf(edit));
}

void setWholeText(QLineEdit& edit, const QString& text)
{
    edit.setText(restOf(edit).cut(text));
}

void setWholeText(QPlainTextEdit& edit, const QString& text)
{
    edit.setPlainText(restOf(edit).cut(text));
}

QString wholeText(const QLineEdit& edit)
{
    return withRest(edit, edit.text());
}

QString wholeText(const QPlainTextEdit& edit)
{
    QString text = edit.document()->toRawText();
    text.replace(QChar::ParagraphSeparator, u'\n');
    text.replace(QChar::LineSeparator, u'\n');
    return withRest(edit, text);
}
