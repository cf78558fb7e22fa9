#pragma once

#include "reliability/FileCalls.h"

#include <dlfcn.h>

// What the functions that stand in for those of the C library are made of.

/// The function of that name in the libraries behind this executable.
template <typename Function> Function* libraryFunction(const char* name)
{
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

/// One call that may be watched. While it is handled, nothing else is.
class WatchedCall
{
public:
    explicit WatchedCall(const char* path);
    explicit WatchedCall(int handle);
    ~WatchedCall();
    WatchedCall(const WatchedCall&) = delete;
    WatchedCall& operator=(const WatchedCall&) = delete;

    /// Whether the observer is to be told.
    explicit operator bool() const { return m_watches; }
    FileCallObserver* operator->() const { return m_observer; }
    const std::string& path() const { return m_path; }
    /// Sets `errno` when the call is refused.
    bool refused(FileCall call) const;

private:
    FileCallObserver* m_observer;
    std::string m_path;
    bool m_watches = false;
};

/// A call that only needs to be let through.
template <typename Key, typename Call> auto passWatched(Key pathOrHandle, FileCall kind, Call call)
{
    const WatchedCall watched(pathOrHandle);
    return watched.refused(kind) ? -1 : call();
}
