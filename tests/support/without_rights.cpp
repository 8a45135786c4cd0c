// For Windows. without_rights.exe PROGRAM ARGUMENT…: runs a program as somebody who is no
// administrator, and ends as that does; with 255 if it cannot be started.
#include <windows.h>

#include <array>
#include <cstddef>
#include <string>

namespace {

constexpr int NotStarted = 255;

/// Whoever runs this, without the group of the administrators. Nothing where that fails.
HANDLE tokenWithoutRights()
{
    HANDLE own = nullptr;
    if (!OpenProcessToken(GetCurrentProcess(), TOKEN_ALL_ACCESS, &own))
        return nullptr;
    alignas(SID) std::array<std::byte, SECURITY_MAX_SID_SIZE> administrators;
    DWORD size = sizeof administrators;
    CreateWellKnownSid(WinBuiltinAdministratorsSid, nullptr, &administrators, &size);
    SID_AND_ATTRIBUTES denied{&administrators, 0};
    HANDLE token = nullptr;
    CreateRestrictedToken(own, 0, 1, &denied, 0, nullptr, 0, nullptr, &token);
    return token;
}

/// What this was told to run, as it was written: an installer reads its last argument so.
std::wstring commandLine()
{
    const std::wstring line = GetCommandLineW();
    const std::size_t name = line.starts_with(L'"') ? line.find(L'"', 1) + 1 : line.find(L' ');
    return line.substr(line.find_first_not_of(L' ', name));
}

} // namespace

int main(int argc, char*[])
{
    const HANDLE token = tokenWithoutRights();
    STARTUPINFOW how{};
    how.cb = sizeof how;
    PROCESS_INFORMATION started;
    if (argc < 2 || token == nullptr
        || !CreateProcessAsUserW(token, nullptr, commandLine().data(), nullptr, nullptr, FALSE, 0,
            nullptr, nullptr, &how, &started))
        return NotStarted;
    DWORD code = NotStarted;
    WaitForSingleObject(started.hProcess, INFINITE);
    GetExitCodeProcess(started.hProcess, &code);
    return static_cast<int>(code);
}
