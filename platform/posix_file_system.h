#pragma once

#include "platform/file_system.h"

namespace lumaris {

// The computer's own files, through POSIX calls.
class PosixFileSystem final : public FileSystem {
 public:
  FileStatus read_file(const std::string& path, std::size_t limit, std::string& contents) override;
  std::string save_target(const std::string& path) override;
  FileStatus create_temporary(const std::string& target, std::string& temp_path,
                              int& handle) override;
  FileStatus write_all(int handle, std::string_view bytes) override;
  FileStatus sync(int handle) override;
  FileStatus close(int handle) override;
  FileStatus rename(const std::string& from, const std::string& to) override;
  void remove(const std::string& path) override;
  void sync_folder(const std::string& path) override;
};

// The folder part of a path ("." for a bare file name).
std::string folder_of(const std::string& path);

}  // namespace lumaris
