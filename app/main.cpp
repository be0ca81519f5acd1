#include <QApplication>
#include <QCoreApplication>
#include <QDir>
#include <QTimer>
#include <atomic>
#include <csignal>
#include <cstdlib>
#include <iostream>

#include "app/program_options.h"
#include "app/desk_app.h"
#include "app/palette.h"
#include "app/real_platform.h"
#include "app/terminal_input.h"
#include "core/main_desk.h"
#include "console/project/project_file.h"
#include "console/project/show_tools.h"
#include "platform/headless_dialogs.h"
#include "platform/qt/qt_scheduler.h"
#include "playback/playdesk.h"
#include "playback/run_mode.h"

namespace {

using lumaris::ProgramOptions;

std::atomic<bool> stop_requested{false};

void request_stop(int) { stop_requested = true; }

// SIGINT and SIGTERM end the event loop; the caller then runs the exit path.
// The handler only sets a flag: nothing else is safe inside a signal handler.
// It is installed first thing, so that a signal during start-up is not lost.
void catch_stop_signals() {
  std::signal(SIGINT, request_stop);
  std::signal(SIGTERM, request_stop);
}

void watch_for_stop_signals(QTimer& watch) {
  QObject::connect(&watch, &QTimer::timeout, [] {
    if (stop_requested) QCoreApplication::exit(0);
  });
  watch.start(50);
}

bool display_available() {
  auto set = [](const char* name) {
    const char* value = std::getenv(name);
    return value != nullptr && *value != '\0';
  };
  return set("DISPLAY") || set("WAYLAND_DISPLAY") || set("QT_QPA_PLATFORM");
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
// nothing to run.
void load_and_run(lumaris::Console& console, const ProgramOptions& line) {
  const bool loaded = load_show(console, line.show);
  if (!line.run) return;
  if (!loaded) {
    std::cerr << "lumaris: --run needs a show\n";
    return;
  }
  lumaris::Playdesk& desk = console.playback_desk();
  desk.Show();
  if (!console.store().Run_Mode) desk.run_mode().Run_Switch_Click();
}

// The console with no window: store, output cycle, adapters and Art-Net. Ends
// cleanly on SIGINT or SIGTERM, closing the devices on the way out.
int run_headless(int argc, char** argv, const ProgramOptions& line) {
  QCoreApplication app(argc, argv);
  lumaris::QtScheduler scheduler;
  lumaris::HeadlessDialogs dialogs(std::cout);
  lumaris::SystemClock clock;
  lumaris::RealPlatform platform(line);
  lumaris::PlatformServices services;
  platform.fill(services);
  services.scheduler = &scheduler;
  services.dialogs = &dialogs;
  services.clock = &clock;
  lumaris::Console console(services);

  // Standard input is the keypad; it prints its own lines and status texts.
  lumaris::TerminalInput keypad(console, scheduler, std::cout);
  std::string last_status;
  console.status().on_main_change([&last_status, &keypad](const std::string& text) {
    if (text == last_status) return;
    last_status = text;
    if (!keypad.feeding()) std::cout << text << std::endl;
  });

  QTimer stop_watch;
  watch_for_stop_signals(stop_watch);

  scheduler.run_event([&] {
    console.start();
    load_and_run(console, line);
  });
  keypad.start();
  app.exec();
  console.shutdown();
  return 0;
}

int run_desktop(int argc, char** argv, const ProgramOptions& line) {
  QApplication app(argc, argv);
  QApplication::setApplicationName(QStringLiteral("Lumaris"));
  lumaris::apply_stage_palette(app);
  lumaris::RealPlatform platform(line);
  lumaris::PlatformServices services;
  platform.fill(services);
  lumaris::DeskApp desk(services);
  desk.start();
  desk.handle([&] { load_and_run(desk.console(), line); });
  desk.show_main_window();
  QTimer stop_watch;
  watch_for_stop_signals(stop_watch);
  const int code = app.exec();
  desk.console().shutdown();
  return code;
}

// Renders every window offscreen to DIR/<window name>.png.
int run_screenshots(int argc, char** argv, const ProgramOptions& line) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
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
      if (!display_available()) {
        std::cout << "lumaris: no display available, running headless\n";
        return run_headless(argc, argv, line);
      }
      return run_desktop(argc, argv, line);
  }
  return 0;
}
