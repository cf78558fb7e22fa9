#pragma once

#include "system/Language.h"
#include "tests/app/PseudoTranslator.h"

#include <QCoreApplication>

/// The name of the language that nobody speaks.
inline const QString Pseudo = QStringLiteral("twice as long");

/// The language of the application while it lives: one that ships, English for an empty name, or `Pseudo`.
class Speaking
{
public:
    explicit Speaking(const QString& language)
    {
        if (language == Pseudo) {
            QCoreApplication::installTranslator(&m_pseudo);
        } else {
            m_language.speak(language);
        }
    }
    ~Speaking()
    {
        QCoreApplication::removeTranslator(&m_pseudo);
        m_language.speak({});
    }
    Speaking(const Speaking&) = delete;
    Speaking& operator=(const Speaking&) = delete;

private:
    Language m_language;
    PseudoTranslator m_pseudo;
};
