#include "tests/translations/Catalogue.h"

#include <QFile>
#include <QLocale>
#include <QRegularExpression>
#include <QXmlStreamReader>
#include <algorithm>

namespace
{

QString word(const QString& text)
{
    return QLatin1Char('"') + text + QLatin1Char('"');
}

QStringList all(const QString& pattern, const QString& text)
{
    QStringList found;
    for (auto matches = QRegularExpression(pattern).globalMatch(text); matches.hasNext();) {
        found.append(matches.next().captured());
    }
    found.sort();
    return found;
}

/// The letters behind a "&" that is not doubled.
qsizetype mnemonics(const QString& text)
{
    return all(QStringLiteral("(?<!&)&[^&\\s]"), text).size();
}

bool endsWithOneOf(const QString& text, QStringView ends)
{
    const QString end = text.trimmed();
    return !end.isEmpty() && ends.contains(end.back());
}

bool endsWithEllipsis(const QString& text)
{
    return text.endsWith(QLatin1String("...")) || text.endsWith(u'\u2026');
}

/// In these forms the number is clear from the grammar: none, one and two of the Arabic ones.
bool mayLeaveOutNumber(const QString& language, qsizetype form)
{
    return language == QLatin1String("ar") && form <= 2;
}

class Look
{
public:
    Look(const Message& message, const QString& language) : m_message(message), m_language(language)
    {
        for (qsizetype form = 0; form < message.forms.size(); ++form) {
            m_form = message.forms[form];
            if (m_form.isEmpty()) {
                note(QStringLiteral("is not translated"));
                continue;
            }
            lookAtMarkers(form);
            lookAtMnemonic();
            lookAtEnd();
            lookAtFilter();
            lookAtCustoms();
        }
    }

    QStringList faults;

private:
    void note(const QString& fault)
    {
        faults.append(QStringLiteral("%1: %2 -> %3 %4")
                          .arg(m_message.context, word(m_message.source), word(m_form), fault));
    }
    void requireSame(const QString& pattern, const QString& fault)
    {
        if (all(pattern, m_message.source) != all(pattern, m_form)) {
            note(fault);
        }
    }

    void lookAtMarkers(qsizetype form)
    {
        // The sets count: a language may need a value twice.
        const auto markers = [](const QString& text) {
            QStringList found = all(QStringLiteral("%L?\\d+|%n"), text);
            found.removeDuplicates();
            return found;
        };
        QStringList owed = markers(m_message.source);
        if (m_message.hasNumber && mayLeaveOutNumber(m_language, form)
            && !m_form.contains(QLatin1String("%n"))) {
            owed.removeAll(QStringLiteral("%n"));
        }
        if (markers(m_form) != owed) {
            note(QStringLiteral("has other place markers"));
        }
    }
    void lookAtMnemonic()
    {
        if (mnemonics(m_message.source) != mnemonics(m_form)) {
            note(QStringLiteral("has lost its mnemonic, or has one too many"));
        }
        static const QRegularExpression suffix(QStringLiteral("\\(&[A-Z0-9]\\)"));
        if (m_language.startsWith(QLatin1String("zh")) && mnemonics(m_form) > 0
            && !suffix.match(m_form).hasMatch()) {
            note(QStringLiteral("needs its mnemonic as (&X)"));
        }
    }
    void lookAtEnd()
    {
        const QString& source = m_message.source;
        if (endsWithEllipsis(source) != endsWithEllipsis(m_form)) {
            note(QStringLiteral("has lost its ellipsis, or has one too many"));
        }
        const bool isSentence = endsWithOneOf(source, u".!?") && !endsWithEllipsis(source);
        if (isSentence
            != (endsWithOneOf(m_form, u".!?\u3002\uff01\uff1f\u061f") && !endsWithEllipsis(m_form))) {
            note(QStringLiteral("ends another way"));
        }
        if (endsWithOneOf(source, u":") != endsWithOneOf(m_form, u":\uff1a")) {
            note(QStringLiteral("has lost its colon, or has one too many"));
        }
        requireSame(QStringLiteral("\\n"), QStringLiteral("has other line breaks"));
        requireSame(QStringLiteral("^ | $"), QStringLiteral("begins or ends with another blank"));
    }
    void lookAtFilter()
    {
        requireSame(QStringLiteral("\\(\\*[^)]*\\)|\\|.*$"), QStringLiteral("has other file patterns"));
    }
    void lookAtCustoms()
    {
        const auto refuse = [this](const QString& pattern, const QString& fault) {
            QString plain = m_form;
            plain.remove(QRegularExpression(QStringLiteral("\\(\\*[^)]*\\)|\\|.*$|#.*#")));
            if (QRegularExpression(pattern).match(plain).hasMatch()) {
                note(fault);
            }
        };
        if (m_language == QLatin1String("fr")) {
            refuse(QStringLiteral("(^|[^\\x{a0}\\x{202f}\\n])[:;!?\\x{bb}]|\\x{ab}[^\\x{a0}\\x{202f}]"),
                QStringLiteral("needs a no-break blank at its punctuation"));
            refuse(QStringLiteral("'"), QStringLiteral("needs a typographic apostrophe"));
        } else if (m_language == QLatin1String("es")) {
            if (m_form.count(u'?') != m_form.count(u'\u00bf')
                || m_form.count(u'!') != m_form.count(u'\u00a1')) {
                note(QStringLiteral("needs its opening mark"));
            }
        } else if (m_language.startsWith(QLatin1String("zh"))) {
            refuse(QStringLiteral("[,;!?:]|\\.$"), QStringLiteral("needs full-width punctuation"));
        } else if (m_language == QLatin1String("ar")) {
            refuse(QStringLiteral("[?;,]"), QStringLiteral("needs Arabic punctuation"));
        }
        refuse(QStringLiteral("\\.\\.\\.|\\x{2026}{2}"), QStringLiteral("needs one ellipsis character"));
        refuse(QStringLiteral("\""), QStringLiteral("needs the quotes of the language"));
    }

    const Message& m_message;
    QString m_language;
    QString m_form;
};

Message readMessage(QXmlStreamReader& xml, const QString& context)
{
    Message message;
    message.context = context;
    message.hasNumber = xml.attributes().value(QLatin1String("numerus")) == QLatin1String("yes");
    while (xml.readNextStartElement()) {
        if (xml.name() == QLatin1String("source")) {
            message.source = xml.readElementText();
        } else if (xml.name() == QLatin1String("comment")) {
            message.comment = xml.readElementText();
        } else if (xml.name() == QLatin1String("translation")) {
            const auto type = xml.attributes().value(QLatin1String("type"));
            message.isFinished = type != QLatin1String("unfinished");
            message.isVanished = type == QLatin1String("vanished") || type == QLatin1String("obsolete");
            if (!message.hasNumber) {
                message.forms.append(xml.readElementText());
                continue;
            }
            while (xml.readNextStartElement()) {
                message.forms.append(xml.readElementText());
            }
        } else {
            xml.skipCurrentElement();
        }
    }
    return message;
}

} // namespace

QList<Message> messagesOf(const QString& file)
{
    QFile source(file);
    if (!source.open(QIODevice::ReadOnly)) {
        return {};
    }
    QXmlStreamReader xml(&source);
    QList<Message> messages;
    QString context;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement) {
            continue;
        }
        if (xml.name() == QLatin1String("name")) {
            context = xml.readElementText();
        } else if (xml.name() == QLatin1String("message")) {
            messages.append(readMessage(xml, context));
        }
    }
    return xml.hasError() ? QList<Message>() : messages;
}

QStringList faultsOf(const Message& message, const QString& language)
{
    return Look(message, language).faults;
}
