#pragma once

#include "data/RepeatRules.h"
#include "system/RuntimeError.h"

#include <QRegularExpression>
#include <algorithm>

/// Rules every so many days: "FREQ=DAILY", with INTERVAL and COUNT. No other is usable.
class FakeRepeatRules final : public RepeatRules
{
public:
    std::optional<Moment> next(const Repeat& repeat, Moment after) const override
    {
        const auto rule = read(repeat.rule);
        if (!rule) {
            return std::nullopt;
        }
        const std::chrono::seconds step = std::chrono::days(rule->interval);
        const qint64 passed = after < repeat.first ? 0 : (after - repeat.first) / step + 1;
        const Moment found = repeat.first + step * passed;
        return passed < rule->count && found < End ? std::optional(found) : std::nullopt;
    }
    int count(const Repeat& repeat, Moment after, Moment until, int most) const override
    {
        int counted = 0;
        for (auto moment = next(repeat, after); moment && *moment <= until && counted < most;
             moment = next(repeat, *moment)) {
            ++counted;
        }
        return counted;
    }
    bool isUsable(const std::string& rule) const override { return read(rule).has_value(); }

private:
    struct Rule {
        qint64 interval;
        qint64 count;
    };
    static constexpr Moment End = std::chrono::local_days(std::chrono::year(10000) / 1 / 1);

    static std::optional<Rule> read(const std::string& text)
    {
        static const QRegularExpression known(
            QStringLiteral("^FREQ=DAILY(;INTERVAL=(?<interval>\\d+))?(;COUNT=(?<count>\\d+))?$"));
        const auto match = known.match(QString::fromStdString(text));
        if (!match.hasMatch()) {
            return std::nullopt;
        }
        const auto number = [&match](const char* name, qint64 otherwise) {
            const QString digits = match.captured(QLatin1String(name));
            return digits.isEmpty() ? otherwise : digits.toLongLong();
        };
        return Rule{std::max<qint64>(number("interval", 1), 1), number("count", 10'000'000)};
    }
};

/// Repeating with these rules.
inline Repeating::Load fakeRepeatRules()
{
    return [] {
        return std::make_unique<FakeRepeatRules>();
    };
}

/// Repeating whose module is missing.
inline Repeating::Load missingRepeatRules()
{
    return []() -> std::unique_ptr<RepeatRules> {
        throw RuntimeError(QStringLiteral("The module is missing."));
    };
}
