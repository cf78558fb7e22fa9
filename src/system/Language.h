#pragma once

#include <QGuiApplication>
#include <QStringList>
#include <QTranslator>

/// Which of the `shipped` catalogues (names such as "de" or "zh_CN") suits a user whose languages are
/// `uiLanguages`, best first. Empty for English, the language of the texts in the code, which is also used
/// when none suits. The region does not matter, the script does: readers of traditional Chinese do not get
/// simplified Chinese.
QString catalogueFor(const QStringList& uiLanguages, const QStringList& shipped);

/// The system's short date format with a four-digit year.
QString shortDateFormat();

/// The language of the program's texts. Must not outlive the application object; interface thread only.
class Language
{
public:
    /// The names of the catalogues that ship.
    static QStringList shipped();
    /// The file of a shipped catalogue.
    static QString fileOf(const QString& catalogue);

    /// Switches the application to a shipped catalogue, or to English for an empty name: its texts, Qt's
    /// own texts where the system has them, and the layout direction.
    void speak(const QString& catalogue);
    /// `speak` for the system's language.
    void speakAsTheSystem();

private:
    QTranslator m_qtTexts;
    QTranslator m_own;
    /// The direction for languages that read from left to right; the option -reverse may turn it around.
    Qt::LayoutDirection m_usual = QGuiApplication::layoutDirection();
};
