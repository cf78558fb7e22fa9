#pragma once

#include "system/RuntimeError.h"

/// The user has cancelled a long operation, or the program is about to end.
class Cancelled : public RuntimeError
{
    Q_DECLARE_TR_FUNCTIONS(Cancelled)

public:
    Cancelled() : RuntimeError(tr("The operation was cancelled.")) { }
};

/// A long operation tells it how far it is.
class Progress
{
public:
    Progress() = default;
    virtual ~Progress() = default;
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;

    /// `done` of `total`, in any unit; a `total` of 0 means unknown. To be called often, between short
    /// steps. Throws Cancelled.
    virtual void advance(qint64 done, qint64 total) = 0;
};
