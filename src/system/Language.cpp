#include "system/Language.h"

#include <QCoreApplication>
#include <QDir>
#include <QGuiApplication>
#include <QLibraryInfo>
#include <QLocale>

namespace
{

const QLatin1String Folder(":/translations");
const QLatin1String Prefix("ambertask_");
const QLatin1String Suffix(".qm");

} // namespace

QString catalogueFor(const QStringList& uiLanguages, const QStringList& shipped)
{
    for (const QString& name : uiLanguages) {
        const QLocale wanted(name);
        if (wanted.language() == QLocale::English || wanted.language() == QLocale::C) {
            return {};
        }
        for (const QString& catalogue : shipped) {
            const QLocale offered(catalogue);
            if (offered.language() == wanted.language() && offered.script() == wanted.script()) {
                return catalogue;
            }
        }
    }
    return {};
}

QString shortDateFormat()
{
    QString format = QLocale().dateFormat(QLocale::ShortFormat);
    if (!format.contains(QLatin1String("yyyy"))) {
        format.replace(QLatin1String("yy"), QLatin1String("yyyy"));
    }
    return format;
}

QStringList Language::shipped()
{
    QStringList names;
    // Nothing else is in the folder; a name filter would take a regular expression at each start.
    for (const QString& file : QDir(Folder).entryList()) {
        names.append(file.mid(Prefix.size()).chopped(Suffix.size()));
    }
    return names;
}

QString Language::fileOf(const QString& catalogue)
{
    return Folder + u'/' + Prefix + catalogue + Suffix;
}

void Language::speak(const QString& catalogue)
{
    QCoreApplication::removeTranslator(&m_qtTexts);
    QCoreApplication::removeTranslator(&m_own);
    if (catalogue.isEmpty()) {
        QGuiApplication::setLayoutDirection(m_usual);
        return;
    }
    // Distributions keep Qt's catalogues where Qt says; who ships Qt with the program puts them beside it.
    const QString ofQt = QLatin1String("qtbase_") + catalogue;
    if (m_qtTexts.load(ofQt, QLibraryInfo::path(QLibraryInfo::TranslationsPath))
        || m_qtTexts.load(ofQt, QCoreApplication::applicationDirPath() + QLatin1String("/translations"))) {
        QCoreApplication::installTranslator(&m_qtTexts);
    }
    if (m_own.load(fileOf(catalogue))) {
        QCoreApplication::installTranslator(&m_own);
    }
    const Qt::LayoutDirection direction = QLocale(catalogue).textDirection();
    QGuiApplication::setLayoutDirection(direction == Qt::RightToLeft ? direction : m_usual);
}

void Language::speakAsTheSystem()
{
    speak(catalogueFor(QLocale::system().uiLanguages(), shipped()));
}
