#pragma once

#include "exchange/Exchange.h"

/// The exchange as the module offers it.
class TaskExchange final : public Exchange
{
public:
    /// `shortDate` is the form of the dates in CSV files that are not in the ISO form.
    explicit TaskExchange(QString shortDate) : m_shortDate(std::move(shortDate)) { }

    qint64 exportTo(QIODevice& device, ExchangeFormat format, const ExportChoice& choice,
        const DatabaseEngine& engine, Progress* progress) override;
    qint64 exportTo(const QString& file, ExchangeFormat format, const ExportChoice& choice,
        const DatabaseEngine& engine, Progress* progress) override;
    ImportPlan plan(
        QIODevice& device, ExchangeFormat format, const DatabaseEngine& engine, Progress* progress) override;
    ImportPlan plan(const QString& file, ExchangeFormat format, const DatabaseEngine& engine,
        Progress* progress) override;
    ImportResult carryOut(const ImportPlan& plan, const DatabaseEngine& engine, Progress* progress) override;

private:
    QString m_shortDate;
};
