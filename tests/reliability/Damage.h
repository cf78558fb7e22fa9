#pragma once

#include <QByteArray>
#include <QString>
#include <random>
#include <vector>

/// What can have happened to a file outside of the program: one changed byte, or an end that comes too early.
struct Damage {
    QString what; ///< for messages: enough to do it again
    QByteArray bytes; ///< the file as it is then
};

/// The file with the byte at `position` changed by `mask`.
Damage flipped(const QByteArray& bytes, qsizetype position, int mask);
/// Only the first `length` bytes of the file.
Damage cut(const QByteArray& bytes, qsizetype length);

/// For a file of pages (a database): of every page all bytes of its head and `chances` bytes of the rest, one
/// bit or all bits of each; all bits of the file's own head; the tables' definitions on the first page; cuts
/// at, just before, just behind and in the middle of every page.
std::vector<Damage> damagedPages(const QByteArray& bytes, int pageSize, int chances, std::mt19937& chance);
/// For any other file: `flips` changed bytes and `cuts` ends, evenly spread; more by `factor()`.
std::vector<Damage> damagedAnywhere(const QByteArray& bytes, int flips, int cuts, std::mt19937& chance);

/// How many times more than usual is tried: the number in the environment variable AMBERTASK_SWEEPS, else 1.
int factor();
/// `count` of the damages, or more by `factor()`, chosen by chance.
std::vector<Damage> someOf(std::vector<Damage> all, std::size_t count, std::mt19937& chance);
