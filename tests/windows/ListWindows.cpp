// Writes into the file that is named what windows are visible on the desktop, for the journey under Wine:
// process, place, whether it is in front, title; one a line, the topmost first.
#include <cstdio>
#include <windows.h>

namespace
{

BOOL CALLBACK tell(HWND window, LPARAM output)
{
    auto* file = reinterpret_cast<std::FILE*>(output);
    RECT place{};
    if (IsWindowVisible(window) != 0 && GetWindowRect(window, &place) != 0) {
        DWORD process = 0;
        GetWindowThreadProcessId(window, &process);
        wchar_t title[256] = L"";
        GetWindowTextW(window, title, 256);
        char text[1024] = "";
        WideCharToMultiByte(CP_UTF8, 0, title, -1, text, sizeof(text), nullptr, nullptr);
        std::fprintf(file, "%lu %ld %ld %ld %ld %d %s\n", process, place.left, place.top,
            place.right - place.left, place.bottom - place.top, window == GetForegroundWindow() ? 1 : 0,
            text);
    }
    return TRUE;
}

} // namespace

int main(int argc, char** argv)
{
    std::FILE* file = argc > 1 ? std::fopen(argv[1], "w") : nullptr;
    if (file == nullptr) {
        return 1;
    }
    EnumWindows(tell, reinterpret_cast<LPARAM>(file));
    return std::fclose(file) == 0 ? 0 : 1;
}
