#pragma once

#include <QGuiApplication>
#include <QStringList>
#include <QTranslator>

/// The name among `shipped` (such as "de" or "zh_CN") of the catalogue for a user who reads `uiLanguages`
/// (best first). Empty for English, which is what the texts in the code are and what everybody gets whose
/// languages do not ship. Region does not matter, script does: no simplified Chinese for readers of
/// traditional Chinese.
QString catalogueFor(const QStringList& uiLanguages, const QStringList& shipped);

/// The language that the program speaks. Lives as long as the application object and not longer; interface
/// thread only.
class Language
{
public:
    /// The names of the catalogues that ship.
    static QStringList shipped();
    /// The file of a shipped catalogue.
    static QString fileOf(const QString& catalogue);

    /// Makes the application speak the language of a shipped catalogue, English for an empty name: texts,
    /// Qt's own texts where the system has them, and the direction of reading.
    void speak(const QString& catalogue);
    /// `speak` for the system's language.
    void speakAsTheSystem();

private:
    QTranslator m_qtTexts;
    QTranslator m_own;
    /// Of what is not read from right to left by itself: the command line may turn it round (-reverse).
    Qt::LayoutDirection m_usual = QGuiApplication::layoutDirection();
};
