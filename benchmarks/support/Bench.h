#pragma once

#include <QString>
#include <functional>
#include <optional>
#include <vector>

/// User and system CPU time that this process has taken so far, in all threads; seconds.
double cpuSeconds();
/// The memory of this process, pages that it shares counted in proportion; bytes.
double proportionalBytes();
/// Gives freed memory back to the system, so that what is measured next is what is in use.
void returnFreedMemory();

/// One benchmark program: measures, and prints one line a result for script/bench, an object in JSON.
///
/// With `--smoke` every size is tiny and every repetition is made once: that proves that the benchmark still
/// runs, and its numbers say nothing.
class Bench
{
public:
    using Action = std::function<void()>;

    Bench(int argc, char** argv);

    bool isSmoke() const { return m_smoke; }
    /// `full`, or `tiny` for a smoke test.
    int size(int full, int tiny) const { return m_smoke ? tiny : full; }

    /// Medians of CPU time in milliseconds, measured alternately.
    struct Medians {
        double ours = 0;
        double reference = 0;
    };
    /// Runs both actions alternately, `repetitions` times each, after a first run that is not counted.
    Medians alternate(int repetitions, const Action& ours, const Action& reference) const;
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
