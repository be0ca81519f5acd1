#include "platform/atomic_save.h"

#include <gtest/gtest.h>

#include <tuple>
#include <sched.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <fstream>

#include "tests/support/faulty_file_system.h"
#include "tests/support/show_builders.h"
#include "tests/support/temp_folder.h"

namespace lumaris {
namespace {

using Step = FaultyFileSystem::Step;

void write_bytes(const std::string& path, const std::string& bytes) {
  std::ofstream(path, std::ios::binary) << bytes;
}

class AtomicSaveTest : public ::testing::Test {
 protected:
  AtomicSaveTest() : path(folder.file("show.xml")) { write_bytes(path, kOld); }

  static constexpr const char* kOld = "<Lumaris_XML>\rold show\r</Lumaris_XML>\r\r\n";
  TempFolder folder;
  std::string path;
  FaultyFileSystem files;
};

TEST_F(AtomicSaveTest, ReplacesTheFileAndLeavesNothingBehind) {
  // What a save killed half-way left: gone with the next save of that show only.
  const pid_t gone_desk = fork();
  if (gone_desk == 0) _exit(0);
  waitpid(gone_desk, nullptr, 0);
  const std::string stale = ".show.xml.saving-" + std::to_string(gone_desk) + "-3";
  write_bytes(folder.file(stale), "half");
  const std::string other_show = ".other.xml.saving-" + std::to_string(gone_desk) + "-0";
  write_bytes(folder.file(other_show), "half");
  const FileStatus status = save_file_atomically(files, path, "new bytes");
  EXPECT_TRUE(status.ok) << status.reason;
  EXPECT_EQ(file_contents(path), "new bytes");
  EXPECT_EQ(folder.names(), (std::vector<std::string>{other_show, "show.xml"}));
  // Flushed before the rename, and the rename made durable after it.
  EXPECT_EQ(files.calls(), (std::vector<std::string>{"create temporary", "write", "sync", "close",
                                                     "rename", "sync folder"}));
  PosixFileSystem real;
  const FileStatus gone = save_file_atomically(real, folder.file("gone/show.xml"), "x");
  EXPECT_EQ(std::tuple(gone.ok, gone.reason), std::tuple(false, "No such file or directory"));
}

TEST_F(AtomicSaveTest, EveryFailingStepOrAFullDiskKeepsTheOldFileByteForByte) {
  for (const Step step : {Step::CreateTemporary, Step::Write, Step::Sync, Step::Close, Step::Rename}) {
    files.fail(step, "Input/output error");
    const FileStatus status = save_file_atomically(files, path, "new bytes");
    EXPECT_EQ(std::tuple(status.ok, status.reason, file_contents(path), folder.names(), files.leftovers().empty()),
              std::tuple(false, "Input/output error", kOld, std::vector<std::string>{"show.xml"}, true));
  }
  files.fill_after(10);
  const FileStatus status = save_file_atomically(files, path, std::string(5000, 'x'));
  EXPECT_EQ(std::tuple(status.ok, status.reason, file_contents(path), folder.names()),
            std::tuple(false, "No space left on device", kOld, std::vector<std::string>{"show.xml"}));
}

// A show reached through a symbolic link is saved into the file the link names,
// which keeps its permissions; the link stays a link.
TEST_F(AtomicSaveTest, SavingThroughALinkReplacesItsTargetAndKeepsTheTargetsMode) {
  ASSERT_EQ(::mkdir(folder.file("shows").c_str(), 0755), 0);
  const std::string target = folder.file("shows/gala.xml");
  write_bytes(target, kOld);
  ASSERT_EQ(::chmod(target.c_str(), 0640), 0);
  const std::string link = folder.file("current.xml");
  ASSERT_EQ(::symlink("shows/gala.xml", link.c_str()), 0);  // relative to the link's folder

  const FileStatus status = save_file_atomically(files, link, "new bytes");
  ASSERT_TRUE(status.ok) << status.reason;
  struct stat info {};
  ASSERT_EQ(::lstat(link.c_str(), &info), 0);
  EXPECT_EQ(std::tuple(S_ISLNK(info.st_mode), file_contents(target)), std::tuple(true, "new bytes"));
  ASSERT_EQ(::stat(target.c_str(), &info), 0);
  EXPECT_EQ(info.st_mode & 07777, 0640u);
  EXPECT_EQ(folder.names(), (std::vector<std::string>{"current.xml", "show.xml", "shows"}));
}

// A real file system without space: a 64 KiB tmpfs in a mount namespace of a
// child process. Needs the right to mount; skipped where that is not given.
TEST_F(AtomicSaveTest, ATinyTmpfsRunsOutOfSpaceAndKeepsTheOldFile) {
  const std::string big(200 * 1024, 'x');
  const pid_t child = fork();
  ASSERT_GE(child, 0);
  if (child == 0) {
    if (unshare(CLONE_NEWNS) != 0) _exit(77);
    if (mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0) _exit(77);
    if (mount("tmpfs", folder.path().c_str(), "tmpfs", 0, "size=64k") != 0) _exit(77);
    const std::string old_show = "<Lumaris_XML>\rsmall\r</Lumaris_XML>\r\r\n";
    write_bytes(path, old_show);
    PosixFileSystem real;
    const FileStatus status = save_file_atomically(real, path, big);
    if (status.ok) _exit(1);
    if (status.reason != "No space left on device") _exit(2);
    if (file_contents(path) != old_show) _exit(3);
    if (folder.names() != std::vector<std::string>{"show.xml"}) _exit(4);
    _exit(0);
  }
  int wait_status = 0;
  ASSERT_EQ(waitpid(child, &wait_status, 0), child);
  ASSERT_TRUE(WIFEXITED(wait_status));
  if (WEXITSTATUS(wait_status) == 77) GTEST_SKIP() << "cannot mount a tmpfs here";
  EXPECT_EQ(WEXITSTATUS(wait_status), 0);
  EXPECT_EQ(file_contents(path), kOld);  // the parent's view never changed
}

}  // namespace
}  // namespace lumaris
