#include <gtest/gtest.h>

#include <signal.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <tuple>
#include <unistd.h>

#include <chrono>
#include <string>
#include <thread>

#include "platform/linux/x11_num_lock.h"

namespace lumaris {
namespace {

// A private X server for the test, when the machine has Xvfb.
class PrivateXServer {
 public:
  PrivateXServer() : display_(":" + std::to_string(200 + getpid() % 500)) {
    const std::string socket = "/tmp/.X11-unix/X" + display_.substr(1);
    pid_ = fork();
    if (pid_ == 0) {
      execlp("Xvfb", "Xvfb", display_.c_str(), "-nolisten", "tcp", "-noreset",
             static_cast<char*>(nullptr));
      _exit(127);
    }
    // Waiting for another process to open its socket: bounded, and no desk
    // timing depends on it.
    for (int i = 0; i < 100 && pid_ > 0; ++i) {
      int status = 0;
      if (waitpid(pid_, &status, WNOHANG) == pid_) {
        pid_ = -1;
        break;
      }
      struct stat found {};
      if (stat(socket.c_str(), &found) == 0) {
        ready_ = true;
        break;
      }
      std::this_thread::sleep_for(std::chrono::milliseconds(50));
    }
  }
  ~PrivateXServer() {
    if (pid_ <= 0) return;
    kill(pid_, SIGTERM);
    waitpid(pid_, nullptr, 0);
  }
  bool ready() const { return ready_; }
  const std::string& display() const { return display_; }

 private:
  std::string display_;
  pid_t pid_ = -1;
  bool ready_ = false;
};

TEST(X11NumLockTest, WithoutADisplayNothingIsAskedOrChanged) {
  X11NumLock num_lock(":1999");
  EXPECT_EQ(std::tuple(num_lock.connected(), num_lock.state()), std::tuple(false, std::nullopt));
  num_lock.set(true);  // nothing to do, nothing said
}

TEST(X11NumLockTest, SwitchesNumLockOnAndOffOnAnXDisplay) {
  PrivateXServer server;
  if (!server.ready()) GTEST_SKIP() << "no Xvfb on this machine";
  X11NumLock num_lock(server.display());
  ASSERT_TRUE(num_lock.connected());
  num_lock.set(false);
  EXPECT_EQ(num_lock.state(), false);
  num_lock.set(true);
  EXPECT_EQ(num_lock.state(), true);
  X11NumLock second_client(server.display());
  EXPECT_EQ(second_client.state(), true) << "the server's keyboard changed, not a copy";
}

}  // namespace
}  // namespace lumaris
