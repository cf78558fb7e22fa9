#pragma once

#include <functional>
#include <grp.h>
#include <sys/wait.h>
#include <unistd.h>

/// Runs `action` in a process that does not have root's rights on files, and returns its exit status; root
/// becomes another user for it.
inline int asAnOrdinaryUser(const std::function<bool()>& action)
{
    constexpr uid_t nobody = 65534;
    const pid_t process = fork();
    if (process == 0) {
        const bool isOrdinary =
            geteuid() != 0 || (setgroups(0, nullptr) == 0 && setgid(nobody) == 0 && setuid(nobody) == 0);
        _exit(!isOrdinary ? 2 : action() ? 0 : 1);
    }
    int status = -1;
    return waitpid(process, &status, 0) == process && WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}
