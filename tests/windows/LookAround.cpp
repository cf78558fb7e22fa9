// Writes into the file that is named what the journey under Wine wants to know of the desktop that it runs
// on:
//   process <executable>
//   window <x> <y> <width> <height> <whether it is in front> <title>     visible ones, the topmost first
//   clipboard <the first line of its text>
//   end

#include <cstdio>
#include <windows.h>

#include <tlhelp32.h>

namespace
{

void write(std::FILE* file, const wchar_t* text)
{
    char bytes[1024] = "";
    WideCharToMultiByte(CP_UTF8, 0, text, -1, bytes, sizeof(bytes), nullptr, nullptr);
    std::fprintf(file, "%s\n", bytes);
}

void writeProcesses(std::FILE* file)
{
    const HANDLE processes = CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0);
    PROCESSENTRY32W process{};
    process.dwSize = sizeof(process);
    for (BOOL isOne = Process32FirstW(processes, &process); isOne != 0;
         isOne = Process32NextW(processes, &process)) {
        std::fprintf(file, "process ");
        write(file, process.szExeFile);
    }
    CloseHandle(processes);
}

BOOL CALLBACK writeWindow(HWND window, LPARAM output)
{
    auto* file = reinterpret_cast<std::FILE*>(output);
    RECT place{};
    if (IsWindowVisible(window) != 0 && GetWindowRect(window, &place) != 0) {
        wchar_t title[256] = L"";
        GetWindowTextW(window, title, 256);
        std::fprintf(file, "window %ld %ld %ld %ld %d ", place.left, place.top, place.right - place.left,
            place.bottom - place.top, window == GetForegroundWindow() ? 1 : 0);
        write(file, title);
    }
    return TRUE;
}

void writeClipboard(std::FILE* file)
{
    if (OpenClipboard(nullptr) == 0) {
        return;
    }
    if (const HANDLE handle = GetClipboardData(CF_UNICODETEXT); handle != nullptr) {
        const auto* text = static_cast<const wchar_t*>(GlobalLock(handle));
        wchar_t line[256] = L"";
        for (int i = 0; i < 255 && text[i] != L'\0' && text[i] != L'\r' && text[i] != L'\n'; ++i) {
            line[i] = text[i];
        }
        GlobalUnlock(handle);
        std::fprintf(file, "clipboard ");
        write(file, line);
    }
    CloseClipboard();
}

} // namespace

int main(int argc, char** argv)
{
    std::FILE* file = argc > 1 ? std::fopen(argv[1], "w") : nullptr;
    if (file == nullptr) {
        return 1;
    }
    writeProcesses(file);
    EnumWindows(writeWindow, reinterpret_cast<LPARAM>(file));
    writeClipboard(file);
    std::fprintf(file, "end\n");
    return std::fclose(file) == 0 ? 0 : 1;
}
