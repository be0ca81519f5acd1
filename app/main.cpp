#include <QApplication>
#include <QCoreApplication>
#include <QDir>
#include <QTimer>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <iostream>

#include "app/display_probe.h"
#include "app/program_options.h"
#include "app/desk_app.h"
#include "app/palette.h"
#include "app/real_platform.h"
#include "app/terminal_input.h"
#include "app/widgets/screen_fit.h"
#include "console/console.h"
#include "core/main_desk.h"
#include "core/store.h"
#include "console/output_cycle.h"
#include "console/project/project_file.h"
#include "console/project/show_tools.h"
#include "net/art_net_node.h"
#include "platform/headless_dialogs.h"
#include "platform/line_printer.h"
#include "platform/log_stream.h"
#include "platform/qt/qt_scheduler.h"
#include "playback/playback_desk.h"
#include "playback/run_mode.h"

namespace {

using lumaris::ProgramOptions;

std::atomic<bool> stop_requested{false};

void request_stop(int) { stop_requested = true; }

// SIGINT, SIGTERM, SIGQUIT (Ctrl-\) and SIGHUP (the terminal went away) end the
// event loop; the caller then runs the exit path, which also gives the terminal
// its own settings back. The handler only sets a flag: nothing else is safe
// inside a signal handler. It is installed first thing, so that a signal during
// start-up is not lost.
void catch_stop_signals() {
  for (const int signal : {SIGINT, SIGTERM, SIGQUIT, SIGHUP}) std::signal(signal, request_stop);
}

void watch_for_stop_signals(QTimer& watch) {
  QObject::connect(&watch, &QTimer::timeout, [] {
    if (stop_requested) QCoreApplication::exit(0);
  });
  watch.start(50);
}

bool load_show(lumaris::Console& console, const std::string& show) {
  if (show.empty()) return false;
  if (!console.project_file().Load_File(show)) {
    std::cerr << "lumaris: could not load " << show << "\n";
    return false;
  }
  return true;
}

// --run: the console enters run mode as if Run_Switch were clicked, so that a
// chain of Auto screens plays with nobody at the desk. Without a show there is
// nothing to run. False when a show was given and could not be loaded.
bool load_and_run(lumaris::Console& console, const ProgramOptions& line) {
  const bool loaded = load_show(console, line.show);
  if (!line.show.empty() && !loaded) return false;
  if (!line.run) return true;
  if (!loaded) {
    std::cerr << "lumaris: --run needs a show\n";
    return true;
  }
  lumaris::PlaybackDesk& desk = console.playback_desk();
  desk.Show();
  if (!console.store().Run_Mode) desk.run_mode().Run_Switch_Click();
  return true;
}

// --smooth and --refresh-ms: output pacing for this run, never saved.
// --artnet-bind: the address Art-Net uses for this run, never saved.
// --artnet-target: where Art-Net goes for this run, never saved. The parser has
// checked the text; the broadcast addresses of this computer's networks are
// known only here. False (with the reason on stderr) when it is refused.
bool apply_run_options(lumaris::Console& console, const ProgramOptions& line) {
  if (line.smooth) console.context().output_timing().set_run_smooth(true);
  if (line.refresh_ms) console.output_cycle().output_timer().set_interval(*line.refresh_ms);
  if (line.artnet_bind) console.art_net().set_run_interface(*line.artnet_bind);
  if (!line.artnet_target) return true;
  using Check = lumaris::ArtNetNode::DestinationCheck;
  const Check check = console.art_net().set_run_destination(*line.artnet_target);
  if (check == Check::Accepted) return true;
  std::cerr << "lumaris: "
            << (check == Check::Broadcast ? lumaris::artnet_target_broadcast(*line.artnet_target)
                                          : lumaris::artnet_target_not_an_address(*line.artnet_target))
            << "\n";
  return false;
}

// A settings file that cannot be read would otherwise go unnoticed: Art-Net
// would quietly broadcast again, say, instead of going where it was set to.
void report_settings_problem(const lumaris::RealPlatform& platform) {
  if (!platform.settings_problem().empty()) std::cerr << "lumaris: " << platform.settings_problem() << std::endl;
}

// Lines waiting for a blocked standard output, and how long the exit waits for
// them before it leaves them.
constexpr std::size_t kPrintQueueLines = 1000;
constexpr std::chrono::milliseconds kLastLinesWait{500};

// A status line as the log prints it: a take's line names its screens beside
// the desk's own text, so that a log read later says what played.
std::string log_line(lumaris::Console& console, const std::string& status) {
  const lumaris::Store& store = console.store();
  if (!store.Run_Mode) return status;
  const auto name = [&store](int screen) {
    return "\"" + store.Screens[std::clamp(screen, 0, lumaris::kScreens - 1)].Name + "\"";
  };
  if (status.starts_with(" Autotake Running")) {
    return status + " (from " + name(console.playback_desk().run_mode().Prev_Screen()) + " to " +
           name(store.Run_Screen) + ")";
  }
  if (status.starts_with(" Autotake Complete")) return status + "(now " + name(store.Run_Screen) + ")";
  return status;
}

// The console itself, printing to `out`.
int run_headless_console(lumaris::QtScheduler& scheduler, lumaris::SystemClock& clock,
                         std::ostream& out, const ProgramOptions& line) {
  lumaris::HeadlessDialogs dialogs(out);
  lumaris::RealPlatform platform(line);
  report_settings_problem(platform);
  lumaris::PlatformServices services;
  platform.fill(services);
  services.scheduler = &scheduler;
  services.dialogs = &dialogs;
  services.clock = &clock;
  lumaris::Console console(services);
  if (!apply_run_options(console, line)) return 2;

  // Standard input is the keypad; it prints its own lines and status texts.
  lumaris::TerminalInput keypad(console, scheduler, out);
  std::string last_status;
  console.status().on_main_change([&](const std::string& text) {
    if (text == last_status) return;
    last_status = text;
    if (!keypad.feeding()) out << log_line(console, text) << std::endl;
  });

  console.art_net().on_port_report([](const std::string& text) { std::cerr << "lumaris: " << text << std::endl; });

  QTimer stop_watch;
  watch_for_stop_signals(stop_watch);

  // A headless console without the show it was given would run an installation
  // that silently outputs nothing: it ends instead.
  bool show_missing = false;
  scheduler.run_event([&] {
    console.start();
    show_missing = !load_and_run(console, line);
  });
  if (show_missing) {
    std::cerr << "lumaris: stopping: the show " << line.show
              << " could not be loaded, and a headless console would send an empty desk\n";
    console.shutdown();
    return 2;
  }
  keypad.start();
  QCoreApplication::exec();
  console.shutdown();
  return 0;
}

// The console with no window: store, output cycle, adapters and Art-Net. Ends
// cleanly on SIGINT or SIGTERM, closing the devices on the way out. All it
// prints goes through the printer's queue, so a blocked standard output holds
// up neither the output cycle nor the exit.
int run_headless(int argc, char** argv, const ProgramOptions& line) {
  QCoreApplication app(argc, argv);
  lumaris::QtScheduler scheduler;
  lumaris::SystemClock clock;
  // A reader of the log that went away must not end the show.
  std::signal(SIGPIPE, SIG_IGN);
  lumaris::LinePrinter printer(std::make_unique<lumaris::DescriptorWriter>(STDOUT_FILENO),
                               kPrintQueueLines, &clock);
  lumaris::LogStream out(printer);
  const int code = run_headless_console(scheduler, clock, out, line);
  printer.flush(kLastLinesWait);
  return code;
}

int run_desktop(int argc, char** argv, const ProgramOptions& line) {
  QApplication app(argc, argv);
  QApplication::setApplicationName(QStringLiteral("Lumaris"));
  lumaris::apply_stage_palette(app);
  lumaris::RealPlatform platform(line);
  report_settings_problem(platform);
  lumaris::PlatformServices services;
  platform.fill(services);
  lumaris::DeskApp desk(services);
  if (!apply_run_options(desk.console(), line)) return 2;
  desk.start();
  // A show that cannot be loaded has said so in a message box; the desk stays up.
  desk.handle([&] {
    load_and_run(desk.console(), line);
    if (!platform.settings_problem().empty()) desk.console().status().show_main(platform.settings_problem());
  });
  desk.show_main_window();
  QTimer stop_watch;
  watch_for_stop_signals(stop_watch);
  const int code = app.exec();
  desk.console().shutdown();
  return code;
}

// Renders every window offscreen to DIR/<window name>.png (and <window name>_<variant>.png).
int run_screenshots(int argc, char** argv, const ProgramOptions& line) {
  // A 1920x1080 screen unless QT_QPA_PLATFORM names another offscreen set-up
  // (e.g. "offscreen:configfile=laptop.json" for a laptop's screen).
  const auto screen = lumaris::use_offscreen_screen({1920, 1080});
  QApplication app(argc, argv);
  lumaris::apply_stage_palette(app);
  if (!QDir().mkpath(QString::fromStdString(line.screenshot_dir))) {
    std::cerr << "lumaris: cannot create " << line.screenshot_dir << "\n";
    return 1;
  }
  lumaris::PlatformServices services;  // no hardware: screenshots never send anything
  lumaris::DeskApp desk(services);
  desk.start();
  desk.handle([&] { load_show(desk.console(), line.show); });
  // Let the output cycle run a few ticks so the indicators and monitor show the frame.
  QTimer::singleShot(300, &app, [] { QCoreApplication::exit(0); });
  app.exec();
  int failures = 0;
  const QDir dir(QString::fromStdString(line.screenshot_dir));
  auto save = [&](lumaris::DeskWindow& window, const std::string& suffix) {
    window.sync();
    QWidget* widget = window.widget();
    widget->show();
    QCoreApplication::processEvents();
    const QString path = dir.filePath(QString::fromStdString(window.name() + suffix) + ".png");
    if (widget->grab().save(path)) {
      std::cout << path.toStdString() << "\n";
    } else {
      std::cerr << "lumaris: cannot write " << path.toStdString() << "\n";
      ++failures;
    }
  };
  for (const auto& window : desk.windows()) {
    desk.handle([&] { window->prepare_screenshot(); });
    save(*window, "");
    for (const auto& [suffix, action] : window->screenshot_variants()) {
      desk.handle(action);
      save(*window, suffix);
    }
  }
  desk.console().shutdown();
  return failures == 0 ? 0 : 1;
}

}  // namespace

int main(int argc, char** argv) {
  std::vector<std::string> args(argv + 1, argv + argc);
  const ProgramOptions line = lumaris::parse_program_options(args);
  switch (line.mode) {
    case ProgramOptions::Mode::Help:
      std::cout << lumaris::usage_text();
      return 0;
    case ProgramOptions::Mode::Version:
      std::cout << "Lumaris " << LUMARIS_VERSION << "\n";
      return 0;
    case ProgramOptions::Mode::Error:
      std::cerr << "lumaris: " << line.error << "\n" << lumaris::usage_text();
      return 2;
    case ProgramOptions::Mode::Check:
      return lumaris::run_show_check(line.show, std::cout, std::cerr);
    case ProgramOptions::Mode::Resave:
      return lumaris::run_show_resave(line.show, line.resave_out, std::cout, std::cerr);
    case ProgramOptions::Mode::Screenshot:
      return run_screenshots(argc, argv, line);
    case ProgramOptions::Mode::Headless:
      catch_stop_signals();
      return run_headless(argc, argv, line);
    case ProgramOptions::Mode::Desktop:
      catch_stop_signals();
      if (const lumaris::DisplayProbe display = lumaris::probe_display(); !display.usable) {
        std::cout << "lumaris: no display available (" << display.reason << "), running headless"
                  << std::endl;
        return run_headless(argc, argv, line);
      }
      return run_desktop(argc, argv, line);
  }
  return 0;
}
