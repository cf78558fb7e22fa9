#include "Damage.h"

#include <algorithm>

namespace
{

constexpr int AllBits = 0xff;
constexpr int FileHead = 100; ///< the first page begins with the head of the file
constexpr int PageHead = 12;
constexpr int CellPointers = 16; ///< bytes of the first of them

int anyBit(std::mt19937& chance)
{
    return 1 << (chance() % 8);
}

qsizetype anyOf(std::mt19937& chance, qsizetype count)
{
    return static_cast<qsizetype>(chance() % static_cast<std::uint32_t>(count));
}

} // namespace

Damage flipped(const QByteArray& bytes, qsizetype position, int mask)
{
    QByteArray changed = bytes;
    changed[position] = static_cast<char>(changed[position] ^ mask);
    return {
        QStringLiteral("byte %1 changed by %2").arg(position).arg(mask, 2, 16, QLatin1Char('0')), changed};
}

Damage cut(const QByteArray& bytes, qsizetype length)
{
    return {QStringLiteral("cut to %1 bytes").arg(length), bytes.left(length)};
}

std::vector<Damage> damagedPages(const QByteArray& bytes, int pageSize, int chances, std::mt19937& chance)
{
    std::vector<Damage> all;
    for (int position = 0; position < FileHead; ++position) {
        for (int bit = 0; bit < 8; ++bit) {
            all.push_back(flipped(bytes, position, 1 << bit));
        }
    }
    for (qsizetype page = 0; page < bytes.size(); page += pageSize) {
        const qsizetype head = page + (page == 0 ? FileHead : 0);
        for (qsizetype position = head; position < head + PageHead + CellPointers; ++position) {
            all.push_back(flipped(bytes, position, AllBits));
            all.push_back(flipped(bytes, position, anyBit(chance)));
        }
        if (page == 0) {
            // The tables' definitions, a text.
            for (qsizetype position = head; position < pageSize; ++position) {
                if (bytes[position] > ' ') {
                    all.push_back(flipped(bytes, position, anyBit(chance)));
                    all.push_back(flipped(bytes, position, anyBit(chance)));
                    all.push_back(flipped(bytes, position, anyBit(chance)));
                }
            }
        }
        const qsizetype rest = head + PageHead + CellPointers;
        for (int i = 0; i < chances; ++i) {
            const qsizetype position = rest + anyOf(chance, page + pageSize - rest);
            all.push_back(flipped(bytes, position, i % 2 == 0 ? AllBits : anyBit(chance)));
        }
        for (const qsizetype length : {page - 1, page, page + 1, page + pageSize / 2}) {
            if (length >= 0) {
                all.push_back(cut(bytes, length));
            }
        }
    }
    return all;
}

std::vector<Damage> damagedAnywhere(const QByteArray& bytes, int flips, int cuts, std::mt19937& chance)
{
    std::vector<Damage> all;
    flips *= factor();
    cuts *= factor();
    for (int i = 0; i < flips; ++i) {
        all.push_back(flipped(bytes, bytes.size() * i / flips, i % 2 == 0 ? anyBit(chance) : AllBits));
    }
    for (int i = 0; i < cuts; ++i) {
        all.push_back(cut(bytes, bytes.size() * i / cuts));
    }
    return all;
}

int factor()
{
    return std::max(qEnvironmentVariableIntValue("AMBERTASK_SWEEPS"), 1);
}

std::vector<Damage> someOf(std::vector<Damage> all, std::size_t count, std::mt19937& chance)
{
    std::shuffle(all.begin(), all.end(), chance);
    all.resize(std::min(all.size(), count * static_cast<std::size_t>(factor())));
    return all;
}
