#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/posix_file_system.h"

namespace lumaris {

// The computer's files, with one step of a save made to fail on demand, as a
// full disk, a read-only folder or a vanished folder would make it fail, and a
// record of the steps a save took.
class FaultyFileSystem final : public FileSystem {
 public:
  enum class Step { Read, CreateTemporary, Write, Sync, Close, Rename };

  // The next time `step` runs it fails with `reason` (and every time after, when `always`).
  void fail(Step step, std::string reason, bool always = false);
  // Writes stop after `bytes` bytes and then fail, as a disk that fills up.
  void fill_after(std::size_t bytes) { space_left_ = bytes; }

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

  // Temporary files created and not yet renamed or removed.
  const std::vector<std::string>& leftovers() const { return open_temporaries_; }
  // The save's steps in the order they ran ("write", "sync", "rename", ...).
  const std::vector<std::string>& calls() const { return calls_; }

 private:
  std::optional<FileStatus> injected(Step step);

  struct Fault {
    Step step;
    std::string reason;
    bool always;
  };
  PosixFileSystem real_;
  std::vector<Fault> faults_;
  std::optional<std::size_t> space_left_;
  std::vector<std::string> open_temporaries_;
  std::vector<std::string> calls_;
};

}  // namespace lumaris
