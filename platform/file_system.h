#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>

namespace lumaris {

// The outcome of one file operation: ok, or the reason it failed in words the
// operator can act on ("No space left on device").
struct FileStatus {
  bool ok = true;
  std::string reason;

  static FileStatus success() { return {}; }
  static FileStatus failure(std::string why) { return {false, std::move(why)}; }
};

// The few file operations the show file needs. Saving goes through a temporary
// file in the target's folder so that the old file survives any failure.
class FileSystem {
 public:
  virtual ~FileSystem() = default;

  // Reads the whole file. Files larger than `limit` bytes are refused.
  virtual FileStatus read_file(const std::string& path, std::size_t limit,
                               std::string& contents) = 0;
  // The file that a save to `path` replaces: `path` itself, or the file its
  // symbolic links lead to (which need not exist yet).
  virtual std::string save_target(const std::string& path) = 0;
  // Creates a new, empty file in the folder of `target` that no one else uses,
  // with the permissions of `target` when that exists.
  virtual FileStatus create_temporary(const std::string& target, std::string& temp_path,
                                      int& handle) = 0;
  virtual FileStatus write_all(int handle, std::string_view bytes) = 0;
  // Flushes the file's data to the disk.
  virtual FileStatus sync(int handle) = 0;
  virtual FileStatus close(int handle) = 0;
  // Replaces `to` by `from` in one step.
  virtual FileStatus rename(const std::string& from, const std::string& to) = 0;
  virtual void remove(const std::string& path) = 0;
  // Makes a rename in the folder of `path` durable; failures only cost durability.
  virtual void sync_folder(const std::string& path) = 0;
};

}  // namespace lumaris
