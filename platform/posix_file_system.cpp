#include "platform/posix_file_system.h"

#include <dirent.h>
#include <fcntl.h>
#include <signal.h>
#include <sys/stat.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <cstdlib>
#include <cstring>

namespace lumaris {

namespace {

constexpr const char* kTooLarge = "File too large";
constexpr const char* kNotAFile = "Not a regular file";

FileStatus from_errno(int error) { return FileStatus::failure(std::strerror(error)); }

std::string base_name_of(const std::string& path) {
  const std::size_t slash = path.find_last_of('/');
  return slash == std::string::npos ? path : path.substr(slash + 1);
}

// "8 MB", or the bytes of a limit that is no whole number of megabytes.
std::string limit_text(std::size_t limit) {
  constexpr std::size_t kMegabyte = 1024u * 1024u;
  if (limit % kMegabyte == 0) return std::to_string(limit / kMegabyte) + " MB";
  return std::to_string(limit) + " bytes";
}

std::atomic<unsigned> temporary_counter{0};

constexpr const char* kSavingMark = ".saving-";

// Removes what saves of `target` killed half-way left behind: its temporaries
// whose process no longer runs. A save still running in another desk keeps its own.
void remove_stale_temporaries(const std::string& folder, const std::string& target) {
  const std::string prefix = "." + base_name_of(target) + kSavingMark;
  DIR* listing = ::opendir(folder.c_str());
  if (listing == nullptr) return;
  while (const dirent* entry = ::readdir(listing)) {
    const std::string name = entry->d_name;
    if (name.compare(0, prefix.size(), prefix) != 0) continue;
    char* end = nullptr;
    const long pid = std::strtol(name.c_str() + prefix.size(), &end, 10);
    if (pid <= 0 || *end != '-') continue;
    if (::kill(static_cast<pid_t>(pid), 0) == 0 || errno != ESRCH) continue;
    ::unlink((folder + "/" + name).c_str());
  }
  ::closedir(listing);
}

}  // namespace

std::string folder_of(const std::string& path) {
  const std::size_t slash = path.find_last_of('/');
  if (slash == std::string::npos) return ".";
  if (slash == 0) return "/";
  return path.substr(0, slash);
}

FileStatus PosixFileSystem::read_file(const std::string& path, std::size_t limit,
                                      std::string& contents) {
  contents.clear();
  // Without O_NONBLOCK, opening a fifo waits for a writer that may never come.
  const int fd = ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
  if (fd < 0) return from_errno(errno);
  struct stat info {};
  if (::fstat(fd, &info) != 0) {
    const int error = errno;
    ::close(fd);
    return from_errno(error);
  }
  // A device or a fifo could feed us forever.
  if (!S_ISREG(info.st_mode)) {
    ::close(fd);
    return FileStatus::failure(S_ISDIR(info.st_mode) ? std::strerror(EISDIR) : kNotAFile);
  }
  ::fcntl(fd, F_SETFL, ::fcntl(fd, F_GETFL) & ~O_NONBLOCK);
  char buffer[65536];
  for (;;) {
    const ssize_t got = ::read(fd, buffer, sizeof buffer);
    if (got < 0) {
      if (errno == EINTR) continue;
      const int error = errno;
      ::close(fd);
      contents.clear();
      return from_errno(error);
    }
    if (got == 0) break;
    contents.append(buffer, static_cast<std::size_t>(got));
    if (contents.size() > limit) {
      ::close(fd);
      contents.clear();
      return FileStatus::failure(std::string(kTooLarge) + " (more than " + limit_text(limit) + ")");
    }
  }
  ::close(fd);
  return FileStatus::success();
}

std::string PosixFileSystem::save_target(const std::string& path) {
  std::string target = path;
  // As many links as the kernel itself follows before it gives up.
  for (int hops = 0; hops < 40; ++hops) {
    struct stat info {};
    if (::lstat(target.c_str(), &info) != 0 || !S_ISLNK(info.st_mode)) return target;
    std::string link(static_cast<std::size_t>(info.st_size > 0 ? info.st_size : 4096) + 1, '\0');
    const ssize_t length = ::readlink(target.c_str(), link.data(), link.size());
    if (length <= 0 || static_cast<std::size_t>(length) >= link.size()) return target;
    link.resize(static_cast<std::size_t>(length));
    // A relative link is relative to the folder that holds it.
    target = link.front() == '/' ? link : folder_of(target) + "/" + link;
  }
  return target;
}

FileStatus PosixFileSystem::create_temporary(const std::string& target, std::string& temp_path,
                                             int& handle) {
  const std::string folder = folder_of(target);
  struct stat existing {};
  const bool replaces = ::stat(target.c_str(), &existing) == 0;
  remove_stale_temporaries(folder, target);
  const std::string stem = folder + "/." + base_name_of(target) + kSavingMark +
                           std::to_string(::getpid()) + "-";
  for (int attempt = 0; attempt < 100; ++attempt) {
    temp_path = stem + std::to_string(temporary_counter.fetch_add(1));
    // 0666 under the umask, as any new file the desk writes.
    const int fd = ::open(temp_path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    if (fd >= 0) {
      // The replaced file keeps its permissions: a show kept private stays private.
      if (replaces && ::fchmod(fd, existing.st_mode & 07777) != 0) {
        const int error = errno;
        ::close(fd);
        ::unlink(temp_path.c_str());
        temp_path.clear();
        return from_errno(error);
      }
      handle = fd;
      return FileStatus::success();
    }
    if (errno != EEXIST) {
      const int error = errno;
      temp_path.clear();
      return from_errno(error);
    }
  }
  temp_path.clear();
  return from_errno(EEXIST);
}

FileStatus PosixFileSystem::write_all(int handle, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t written = ::write(handle, bytes.data(), bytes.size());
    if (written < 0) {
      if (errno == EINTR) continue;
      return from_errno(errno);
    }
    bytes.remove_prefix(static_cast<std::size_t>(written));
  }
  return FileStatus::success();
}

FileStatus PosixFileSystem::sync(int handle) {
  if (::fsync(handle) != 0) return from_errno(errno);
  return FileStatus::success();
}

FileStatus PosixFileSystem::close(int handle) {
  if (::close(handle) != 0) return from_errno(errno);
  return FileStatus::success();
}

FileStatus PosixFileSystem::rename(const std::string& from, const std::string& to) {
  if (::rename(from.c_str(), to.c_str()) != 0) return from_errno(errno);
  return FileStatus::success();
}

void PosixFileSystem::remove(const std::string& path) { ::unlink(path.c_str()); }

void PosixFileSystem::sync_folder(const std::string& path) {
  const int fd = ::open(folder_of(path).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (fd < 0) return;
  ::fsync(fd);
  ::close(fd);
}

}  // namespace lumaris
