#pragma once

#include <QCoreApplication>
#include <QStringDecoder>
#include <string_view>

/// The texts of an exchange for the user.
struct ExchangeTexts {
    Q_DECLARE_TR_FUNCTIONS(ExchangeTexts)
};

inline QString textOf(std::string_view utf8)
{
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

/// Whether the bytes are a text: UTF-8, and no zero byte among them, which no store can hold.
inline bool isText(std::string_view bytes)
{
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString decoded =
        decoder.decode(QByteArrayView(bytes.data(), static_cast<qsizetype>(bytes.size())));
    return !decoder.hasError() && !decoded.contains(QChar(u'\0'));
}
