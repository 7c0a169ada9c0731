#include "console.h"

#include <io.h>
#include <qt_windows.h>

namespace platform {

void print(std::FILE *stream, const QString &text)
{
    const auto handle = reinterpret_cast<HANDLE>(_get_osfhandle(_fileno(stream)));
    DWORD mode = 0;
    if (!GetConsoleMode(handle, &mode)) {
        std::fputs(text.toLocal8Bit().constData(), stream);
        std::fflush(stream);
        return;
    }
    // A console has an encoding of its own, usually not the local one. How much it takes in one
    // call is limited: 32,767 characters before Windows 8.
    const qsizetype most = 8000;
    DWORD written = 0;
    for (qsizetype at = 0; at < text.size(); at += most) {
        const QString piece = text.mid(at, most);
        WriteConsoleW(handle, piece.utf16(), DWORD(piece.size()), &written, nullptr);
    }
}

} // namespace platform
