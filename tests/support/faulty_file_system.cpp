#include "tests/support/faulty_file_system.h"

#include <algorithm>

namespace lumaris {

void FaultyFileSystem::fail(Step step, std::string reason, bool always) {
  faults_.push_back({step, std::move(reason), always});
}

std::optional<FileStatus> FaultyFileSystem::injected(Step step) {
  const auto fault = std::find_if(faults_.begin(), faults_.end(),
                                  [step](const Fault& f) { return f.step == step; });
  if (fault == faults_.end()) return std::nullopt;
  FileStatus status = FileStatus::failure(fault->reason);
  if (!fault->always) faults_.erase(fault);
  return status;
}

FileStatus FaultyFileSystem::read_file(const std::string& path, std::size_t limit,
                                       std::string& contents) {
  if (auto status = injected(Step::Read)) return *status;
  return real_.read_file(path, limit, contents);
}

std::string FaultyFileSystem::save_target(const std::string& path) { return real_.save_target(path); }

FileStatus FaultyFileSystem::create_temporary(const std::string& target, std::string& temp_path,
                                              int& handle) {
  calls_.push_back("create temporary");
  if (auto status = injected(Step::CreateTemporary)) return *status;
  FileStatus status = real_.create_temporary(target, temp_path, handle);
  if (status.ok) open_temporaries_.push_back(temp_path);
  return status;
}

FileStatus FaultyFileSystem::write_all(int handle, std::string_view bytes) {
  calls_.push_back("write");
  if (auto status = injected(Step::Write)) return *status;
  if (space_left_ && bytes.size() > *space_left_) {
    real_.write_all(handle, bytes.substr(0, *space_left_));
    space_left_ = 0;
    return FileStatus::failure("No space left on device");
  }
  if (space_left_) *space_left_ -= bytes.size();
  return real_.write_all(handle, bytes);
}

FileStatus FaultyFileSystem::sync(int handle) {
  calls_.push_back("sync");
  if (auto status = injected(Step::Sync)) return *status;
  return real_.sync(handle);
}

FileStatus FaultyFileSystem::close(int handle) {
  calls_.push_back("close");
  const FileStatus closed = real_.close(handle);
  if (auto status = injected(Step::Close)) return *status;
  return closed;
}

FileStatus FaultyFileSystem::rename(const std::string& from, const std::string& to) {
  calls_.push_back("rename");
  if (auto status = injected(Step::Rename)) return *status;
  FileStatus status = real_.rename(from, to);
  if (status.ok) std::erase(open_temporaries_, from);
  return status;
}

void FaultyFileSystem::remove(const std::string& path) {
  std::erase(open_temporaries_, path);
  real_.remove(path);
}

void FaultyFileSystem::sync_folder(const std::string& path) {
  calls_.push_back("sync folder");
  real_.sync_folder(path);
}

}  // namespace lumaris
