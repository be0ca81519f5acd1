#include "platform/atomic_save.h"

namespace lumaris {

FileStatus save_file_atomically(FileSystem& files, const std::string& path, std::string_view bytes) {
  // Through a link to the file it names, so that the link stays a link.
  const std::string target = files.save_target(path);
  std::string temp_path;
  int handle = -1;
  FileStatus status = files.create_temporary(target, temp_path, handle);
  if (!status.ok) return status;
  status = files.write_all(handle, bytes);
  if (status.ok) status = files.sync(handle);
  // Some file systems report a failed write only when the file is closed.
  const FileStatus closed = files.close(handle);
  if (status.ok) status = closed;
  if (status.ok) status = files.rename(temp_path, target);
  if (!status.ok) {
    files.remove(temp_path);
    return status;
  }
  files.sync_folder(target);
  return status;
}

}  // namespace lumaris
