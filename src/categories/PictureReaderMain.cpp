// A process beside the program that reads untrusted pictures and returns small renditions. It greets with
// an empty answer, then reads file names, each followed by a zero byte. Each answer is a length (four
// bytes, lowest first) and so many bytes: a packed picture, or a sentence that says why there is none. It
// ends with its input.

#include "categories/PackedPicture.h"
#include "categories/PictureFile.h"
#include "system/Language.h"
#include "system/RuntimeError.h"

#include <QCoreApplication>
#include <QFile>
#include <QLocale>
#include <QTranslator>
#include <QtEndian>
#include <array>
#include <cstdio>
#include <iostream>
#include <string>

namespace
{

void answer(const QByteArray& bytes)
{
    std::array<char, 4> head;
    qToLittleEndian(static_cast<quint32>(bytes.size()), head.data());
    std::fwrite(head.data(), 1, head.size(), stdout);
    std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), stdout);
    std::fflush(stdout);
}

QByteArray answerTo(const QString& path)
{
    try {
        return packedPicture(PictureFile(path).load(RenditionEdge));
    } catch (const RuntimeError& error) {
        return error.text().toUtf8();
    }
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    QTranslator catalogue;
    const QString language = catalogueFor(QLocale::system().uiLanguages(), Language::shipped());
    if (!language.isEmpty() && catalogue.load(Language::fileOf(language))) {
        QCoreApplication::installTranslator(&catalogue);
    }
    answer({});
    for (std::string name; std::getline(std::cin, name, '\0');) {
        answer(answerTo(QFile::decodeName(name.c_str())));
    }
    return 0;
}
