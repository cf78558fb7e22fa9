#pragma once

#include <QString>
#include <functional>
#include <optional>
#include <vector>

/// User and system CPU time that this process has taken so far, in all threads; seconds.
double cpuSeconds();
/// Memory of this process that is backed by no file, so that what other processes share or give up does not
/// count; bytes.
double anonymousBytes();
/// Gives freed memory back to the system, so that the next measurement shows memory in use.
void returnFreedMemory();

/// One benchmark program: measures, and prints one JSON object a line for script/bench.
///
/// With `--smoke` every size is tiny and everything runs once: that proves that the benchmark still runs;
/// its numbers mean nothing.
class Bench
{
public:
    using Action = std::function<void()>;

    Bench(int argc, char** argv);

    bool isSmoke() const { return m_smoke; }
    /// `full`, or `tiny` for a smoke test.
    int size(int full, int tiny) const { return m_smoke ? tiny : full; }

    /// In milliseconds of CPU time, unless the title says otherwise.
    struct Medians {
        double ours = 0;
        double reference = 0;
    };
    /// Runs both actions alternately, `repetitions` times each, after a first run that is not counted.
    Medians alternate(int repetitions, const Action& ours, const Action& reference) const;
    using Measurement = std::function<double()>;
    /// Medians of what two measurements return, made alternately after a first run of each that is not
    /// counted.
    Medians alternateValues(int repetitions, const Measurement& ours, const Measurement& reference) const;
    /// The median of CPU time of an action, in milliseconds.
    double median(int repetitions, const Action& action) const;

    /// A result that is a ratio; `target` is the largest ratio wanted, if any.
    void ratio(const QString& what, const Medians& medians, std::optional<double> target,
        const QString& unit = QStringLiteral("ms"));
    /// A result that stands for itself; `target` is the largest value wanted.
    void value(const QString& what, double value, double target, const QString& unit);

private:
    bool m_smoke = false;
};
