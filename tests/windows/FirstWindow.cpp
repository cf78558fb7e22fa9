// Starts programs in turn and writes into the file that is named how many milliseconds each took until a
// window of its own was to be seen and answered:
//   FirstWindow <file> <rounds> <command line>...
//   <number of the program> <milliseconds>
//   end

#include <cstdio>
#include <cstdlib>
#include <windows.h>

namespace
{

struct Search {
    DWORD process;
    HWND found;
};

BOOL CALLBACK lookAt(HWND window, LPARAM wanted)
{
    auto* search = reinterpret_cast<Search*>(wanted);
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    if (process != search->process || IsWindowVisible(window) == 0) {
        return TRUE;
    }
    search->found = window;
    return FALSE;
}

/// Milliseconds; negative when no window comes.
double start(char* command)
{
    constexpr int LongestWait = 60000;
    LARGE_INTEGER frequency;
    LARGE_INTEGER begin;
    LARGE_INTEGER end;
    QueryPerformanceFrequency(&frequency);
    QueryPerformanceCounter(&begin);
    STARTUPINFOA how{};
    how.cb = sizeof(how);
    PROCESS_INFORMATION child{};
    if (CreateProcessA(nullptr, command, nullptr, nullptr, FALSE, 0, nullptr, nullptr, &how, &child) == 0) {
        return -1;
    }
    Search search{child.dwProcessId, nullptr};
    for (int waited = 0; search.found == nullptr && waited < LongestWait; ++waited) {
        Sleep(1);
        EnumWindows(lookAt, reinterpret_cast<LPARAM>(&search));
    }
    DWORD_PTR unused = 0;
    const bool isThere = search.found != nullptr
        && SendMessageTimeoutW(search.found, WM_NULL, 0, 0, SMTO_NORMAL, LongestWait, &unused) != 0;
    QueryPerformanceCounter(&end);
    TerminateProcess(child.hProcess, 0);
    WaitForSingleObject(child.hProcess, INFINITE);
    CloseHandle(child.hThread);
    CloseHandle(child.hProcess);
    // What the one leaves to others to be cleared away is not to fall to the next one.
    Sleep(300);
    const auto ticks = static_cast<double>(end.QuadPart - begin.QuadPart);
    return isThere ? 1000 * ticks / static_cast<double>(frequency.QuadPart) : -1;
}

} // namespace

int main(int argc, char** argv)
{
    std::FILE* file = argc > 3 ? std::fopen(argv[1], "w") : nullptr;
    if (file == nullptr) {
        return 1;
    }
    for (int round = std::atoi(argv[2]); round > 0; --round) {
        for (int program = 3; program < argc; ++program) {
            std::fprintf(file, "%d %f\n", program - 3, start(argv[program]));
        }
    }
    std::fprintf(file, "end\n");
    return std::fclose(file) == 0 ? 0 : 1;
}
