#pragma once

#include <QByteArray>
#include <QString>
#include <vector>

/// An entry of the contents or of the index of a help file.
struct HelpEntry {
    QString name;
    QString topic; ///< the object that it opens, perhaps with "#" and a place in it; empty for a mere heading
    std::vector<HelpEntry> children;
};

/// Reads a sitemap (.hhc, .hhk). What is no entry is passed over, and so is a tag of more than 4,096 letters;
/// depth and number of the entries are bounded.
std::vector<HelpEntry> parseSitemap(const QString& html);

/// The text of an HTML object in the encoding that it names, else UTF-8.
QString htmlText(const QByteArray& bytes);
