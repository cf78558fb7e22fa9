#include "support/Bench.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <algorithm>
#include <cstdio>
#include <cstring>
#include <ctime>
#include <malloc.h>

namespace
{

double medianOf(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    const std::size_t middle = values.size() / 2;
    return values.size() % 2 == 1 ? values[middle] : (values[middle - 1] + values[middle]) / 2;
}

double milliseconds(const Bench::Action& action)
{
    const double before = cpuSeconds();
    action();
    return (cpuSeconds() - before) * 1000;
}

void print(QJsonObject result)
{
    std::puts(QJsonDocument(result).toJson(QJsonDocument::Compact).constData());
    std::fflush(stdout);
}

} // namespace

double cpuSeconds()
{
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

double anonymousBytes()
{
    QFile file(QStringLiteral("/proc/self/smaps_rollup"));
    if (file.open(QIODevice::ReadOnly)) {
        for (const QByteArray& line : file.readAll().split('\n')) {
            if (line.startsWith("Anonymous:")) {
                return line.mid(10).replace("kB", "").trimmed().toDouble() * 1024;
            }
        }
    }
    return 0;
}

void returnFreedMemory()
{
    malloc_trim(0);
}

Bench::Bench(int argc, char** argv)
{
    for (int i = 1; i < argc; ++i) {
        m_smoke = m_smoke || std::strcmp(argv[i], "--smoke") == 0;
    }
}

Bench::Medians Bench::alternate(int repetitions, const Action& ours, const Action& reference) const
{
    return alternateValues(
        repetitions, [&ours] { return milliseconds(ours); },
        [&reference] { return milliseconds(reference); });
}

Bench::Medians Bench::alternateValues(
    int repetitions, const Measurement& ours, const Measurement& reference) const
{
    std::vector<double> oursTaken;
    std::vector<double> referenceTaken;
    reference();
    ours();
    for (int i = 0; i < size(repetitions, 1); ++i) {
        referenceTaken.push_back(reference());
        oursTaken.push_back(ours());
    }
    return {medianOf(oursTaken), medianOf(referenceTaken)};
}

double Bench::median(int repetitions, const Action& action) const
{
    std::vector<double> taken;
    action();
    for (int i = 0; i < size(repetitions, 1); ++i) {
        taken.push_back(milliseconds(action));
    }
    return medianOf(taken);
}

void Bench::ratio(
    const QString& what, const Medians& medians, std::optional<double> target, const QString& unit)
{
    print({{QStringLiteral("what"), what}, {QStringLiteral("ours"), medians.ours},
        {QStringLiteral("reference"), medians.reference},
        {QStringLiteral("ratio"), medians.ours / medians.reference},
        {QStringLiteral("target"), target ? QJsonValue(*target) : QJsonValue()},
        {QStringLiteral("unit"), unit}});
}

void Bench::value(const QString& what, double value, double target, const QString& unit)
{
    print({{QStringLiteral("what"), what}, {QStringLiteral("ours"), value},
        {QStringLiteral("target"), target}, {QStringLiteral("unit"), unit}});
}
