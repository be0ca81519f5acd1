#pragma once

#include <string>
#include <string_view>

namespace lumaris {

// Show and fixture files are Windows-1252 on disk; the desk holds UTF-8. The five bytes
// Windows-1252 leaves undefined (0x81, 0x8D, 0x8F, 0x90, 0x9D) map to the C1
// controls of the same number, so every byte sequence survives a load and a save.
std::string windows_1252_to_utf8(std::string_view bytes);

// A character Windows-1252 cannot hold, and every byte of malformed UTF-8, is
// written as '?'.
std::string utf8_to_windows_1252(std::string_view text);

}  // namespace lumaris
