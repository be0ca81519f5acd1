// The desktop console's own cost in real time, under a display (run it under
// xvfb-run -a). It builds the desk as the program does (real platform, Art-Net to
// 127.0.0.1), opens the windows of a scenario, runs the event loop for a while
// and prints the process CPU time spent as a share of one core. It prints
// figures only; nothing is asserted.
//   lumaris_desk_cpu idle [SECONDS]   main desk, playback desk and output monitor shown
//   lumaris_desk_cpu artnet [SECONDS] the same with Art-Net universe 0 enabled
//   lumaris_desk_cpu foreign [SECONDS] the same, and another console (a child process)
//                                     sending ArtDmx at 44 Hz and ArtPoll every 2.5 s
//   lumaris_desk_cpu chase [SECONDS]  a 5 s fade chase running, sequence desk open
//   lumaris_desk_cpu steps [STEPS]    step lengths of a 0.3 s chase: p50, p99, max
#include <arpa/inet.h>
#include <netinet/in.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <time.h>
#include <unistd.h>

#include <QApplication>
#include <QPushButton>
#include <QTimer>
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "app/sequence_desk_window.h"
#include "app/desk_app.h"
#include "app/palette.h"
#include "app/program_options.h"
#include "app/real_platform.h"
#include "console/output_cycle.h"
#include "net/art_net_node.h"
#include "net/art_net_setup.h"
#include "core/output_monitor.h"
#include "playback/playback_desk.h"
#include "sequence/chase_runtime.h"
#include "sequence/sequence_desk.h"

namespace {

double cpu_seconds() {
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  auto seconds = [](const timeval& t) { return static_cast<double>(t.tv_sec) + static_cast<double>(t.tv_usec) / 1e6; };
  return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

lumaris::SequenceDeskWindow& chases_window(lumaris::DeskApp& app) {
  for (const auto& window : app.windows()) {
    if (window->name() == "sequence-desk") return static_cast<lumaris::SequenceDeskWindow&>(*window);
  }
  std::fprintf(stderr, "no sequence desk window\n");
  std::exit(1);
}

// Chase 1: two steps of `step_s` seconds; channel 1 fades 0 -> 255 -> 0 over the
// whole step.
void make_fade_chase(lumaris::DeskApp& app, double step_s) {
  app.handle([&] {
    lumaris::ChaseRec& c = app.console().store().Chase_Table[0];
    c.Steps = 2;
    for (int step = 1; step <= 2; ++step) {
      c.Speed[step] = step_s;
      c.Time[step] = step_s;
      c.Fade[step][1] = lumaris::kChaseFade;
    }
    c.Data[1][1] = 0;
    c.Data[2][1] = 255;
    app.console().sequence_desk().Show();
  });
}

// Another console on the same network: ArtDmx of a changing universe 0 at 44 Hz
// and an ArtPoll every 2.5 s, to the node's port on 127.0.0.1. It runs in a
// child process so that its own CPU time is not counted as the desk's.
pid_t start_foreign_console() {
  const pid_t child = fork();
  if (child != 0) return child;
  const int fd = socket(AF_INET, SOCK_DGRAM, 0);
  sockaddr_in node{};
  node.sin_family = AF_INET;
  node.sin_port = htons(6454);
  node.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  std::vector<unsigned char> dmx = {'A', 'r', 't', '-', 'N', 'e', 't', 0, 0x00, 0x50, 0, 14, 0, 0, 0, 0, 2, 0};
  dmx.resize(18 + 512);
  const unsigned char poll[] = {'A', 'r', 't', '-', 'N', 'e', 't', 0, 0x00, 0x20, 0, 14, 0, 0};
  timespec next{};
  clock_gettime(CLOCK_MONOTONIC, &next);
  for (long frame = 0;; ++frame) {
    dmx[12] = static_cast<unsigned char>(frame);
    dmx[18] = static_cast<unsigned char>(frame * 3);
    sendto(fd, dmx.data(), dmx.size(), 0, reinterpret_cast<const sockaddr*>(&node), sizeof node);
    if (frame % 110 == 0) sendto(fd, poll, sizeof poll, 0, reinterpret_cast<const sockaddr*>(&node), sizeof node);
    next.tv_nsec += 1000000000L / 44;
    if (next.tv_nsec >= 1000000000L) {
      next.tv_nsec -= 1000000000L;
      ++next.tv_sec;
    }
    clock_nanosleep(CLOCK_MONOTONIC, TIMER_ABSTIME, &next, nullptr);
  }
}

double percentile(std::vector<double> values, double p) {
  std::sort(values.begin(), values.end());
  const auto at = static_cast<std::size_t>(std::ceil(p * static_cast<double>(values.size()))) - 1;
  return values[std::min(at, values.size() - 1)];
}

}  // namespace

int main(int argc, char** argv) {
  const std::string scenario = argc > 1 ? argv[1] : "idle";
  const int amount = argc > 2 ? std::atoi(argv[2]) : (scenario == "steps" ? 100 : 60);
  const pid_t foreign = scenario == "foreign" ? start_foreign_console() : 0;
  QApplication qt(argc, argv);
  lumaris::apply_stage_palette(qt);
  lumaris::ProgramOptions line;
  line.artnet_target = "127.0.0.1";
  lumaris::RealPlatform platform(line);
  lumaris::PlatformServices services;
  platform.fill(services);
  lumaris::DeskApp app(services);
  app.handle([&] { app.console().art_net().set_run_destination("127.0.0.1"); });
  app.start();
  app.show_main_window();

  std::vector<double> steps;
  if (scenario == "idle" || scenario == "artnet" || scenario == "foreign") {
    app.handle([&] {
      app.console().playback_desk().Show();
      app.console().output_monitor().Show();
      if (scenario != "idle") {
        // As a show with universe 0 enabled starts it.
        app.console().store().Art_Universes[0] = {true, 0};
        app.console().art_net_setup().Start_From_Show();
      }
    });
  } else if (scenario == "chase" || scenario == "steps") {
    make_fade_chase(app, scenario == "steps" ? 0.3 : 5.0);
    chases_window(app).Chase_Go_Button()->click();
    if (!app.console().sequence_desk().runtime().Chase_Running()) {
      std::fprintf(stderr, "the chase did not start\n");
      return 1;
    }
  } else {
    std::fprintf(stderr, "usage: lumaris_desk_cpu idle|artnet|foreign|chase [SECONDS] | steps [STEPS]\n");
    return 2;
  }

  if (scenario == "steps") {
    // The step changes inside the step timer's own event; the time after that
    // event is the step's start as the program sees it.
    const lumaris::SequenceDesk& desk = app.console().sequence_desk();
    int last_step = desk.Cur_Step();
    double last_ms = -1;
    app.scheduler().set_after_event([&] {
      if (desk.Cur_Step() != last_step) {
        const double now = app.scheduler().now_ms();
        if (last_ms >= 0) steps.push_back(now - last_ms);
        last_ms = now;
        last_step = desk.Cur_Step();
        if (static_cast<int>(steps.size()) >= amount) QCoreApplication::quit();
      }
      app.refresh_windows();
    });
    qt.exec();
    std::printf("steps %zu of %d ms: p50 %.2f ms, p99 %.2f ms, max %.2f ms, min %.2f ms\n",
                steps.size(), 301, percentile(steps, 0.5), percentile(steps, 0.99),
                *std::max_element(steps.begin(), steps.end()),
                *std::min_element(steps.begin(), steps.end()));
  } else {
    // Let start-up and the first paints settle before measuring.
    QTimer::singleShot(2000, [&] {
      const double cpu0 = cpu_seconds();
      const double wall0 = app.scheduler().now_ms();
      const long walks0 = app.walks();
      QTimer::singleShot(amount * 1000, [&, cpu0, wall0, walks0] {
        const double cpu = cpu_seconds() - cpu0;
        const double wall = (app.scheduler().now_ms() - wall0) / 1000.0;
        std::printf("%s: %.2f s CPU in %.1f s = %.2f%% of a core, %ld window walks\n", scenario.c_str(), cpu,
                    wall, 100.0 * cpu / wall, app.walks() - walks0);
        QCoreApplication::quit();
      });
    });
    qt.exec();
  }
  app.console().shutdown();
  if (foreign > 0) {
    kill(foreign, SIGKILL);
    waitpid(foreign, nullptr, 0);
  }
  return 0;
}
