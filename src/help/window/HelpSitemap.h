#pragma once

#include <QByteArray>
#include <QString>
#include <vector>

/// An entry of the contents or of the index of a help file.
struct HelpEntry {
    QString name;
    QString topic; ///< the object that it opens, possibly with "#" and an anchor; empty for a mere heading
    std::vector<HelpEntry> children;
};

/// Reads a sitemap (.hhc, .hhk). Ignores what is no entry and tags of more than 4,096 characters; depth and
/// number of entries are limited.
std::vector<HelpEntry> parseSitemap(const QString& html);

/// The text of an HTML object in the encoding that it names, by default UTF-8.
QString htmlText(const QByteArray& bytes);
