#pragma once

#include <string>
#include <string_view>

#include "platform/file_system.h"

namespace lumaris {

// Replaces the file at `path` by `bytes` so that it holds either the old bytes
// or the new ones, never a mixture or nothing: the new bytes go to a temporary
// file in the same folder, are flushed to disk and then renamed over the old
// file. On failure the temporary file is removed and the old file is untouched.
// A symbolic link is saved through: the file it names is replaced, keeping its
// permissions, and the link stays as it was.
FileStatus save_file_atomically(FileSystem& files, const std::string& path, std::string_view bytes);

}  // namespace lumaris
