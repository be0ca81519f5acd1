#include "app/program_options.h"

#include <gtest/gtest.h>

#include "console/output_cycle.h"
#include "core/output_timing.h"
#include "output/output_device_setup.h"
#include "tests/support/memory_settings.h"
#include "tests/support/test_console.h"

namespace lumaris {
namespace {

using Args = std::vector<std::string>;
using Mode = ProgramOptions::Mode;

TEST(ProgramOptions, SmoothAndRefreshMsAreTakenWithAnyOtherOptionsInAnyOrder) {
  struct Case {
    Args args;
    Mode mode;
    bool smooth;
    std::optional<int> refresh_ms;
  };
  const Case cases[] = {
      {{"show.xml"}, Mode::Desktop, false, std::nullopt},
      {{"--smooth"}, Mode::Desktop, true, std::nullopt},
      {{"--refresh-ms", "10"}, Mode::Desktop, false, 10},
      {{"--refresh-ms", "750", "--smooth", "show.xml"}, Mode::Desktop, true, 750},
      {{"--headless", "--smooth", "--refresh-ms", "023"}, Mode::Headless, true, 23},
  };
  for (const Case& c : cases) {
    const ProgramOptions line = parse_program_options(c.args);
    EXPECT_EQ(line.mode, c.mode) << c.args[0] << ": " << line.error;
    EXPECT_EQ(line.smooth, c.smooth) << c.args[0];
    EXPECT_EQ(line.refresh_ms, c.refresh_ms) << c.args[0];
  }
}

TEST(ProgramOptions, ArtNetBindTakesOneAddressOfThisComputerAndRefusesAnythingElse) {
  EXPECT_EQ(parse_program_options({"--artnet-bind", "127.0.0.1", "--headless"}).artnet_bind, "127.0.0.1");
  for (const Args& bad : {Args{"--artnet-bind"}, Args{"--artnet-bind", "0.0.0.0"}, Args{"--artnet-bind", "lo"}}) {
    const ProgramOptions line = parse_program_options(bad);
    EXPECT_EQ(line.mode, Mode::Error);
    EXPECT_NE(line.error.find("--artnet-bind needs an IPv4 address"), std::string::npos);
  }
}

TEST(ProgramOptions, ARefreshThatIsNoWholeNumberOf10To750MsOrMissingIsRefusedWithWhatWasGiven) {
  for (const char* bad : {"9", "751", "0", "-20", "2.5", " 40", "", "abc", "99999999999", "--smooth"}) {
    const ProgramOptions line = parse_program_options({"--refresh-ms", bad, "show.xml"});
    EXPECT_EQ(line.mode, Mode::Error) << bad;
    EXPECT_EQ(line.error, "--refresh-ms needs a number of milliseconds 10-750, not \"" + std::string(bad) + "\"");
  }
  const ProgramOptions missing = parse_program_options({"--smooth", "--refresh-ms"});
  EXPECT_EQ(missing.mode, Mode::Error);
  EXPECT_EQ(missing.error, "--refresh-ms needs a number of milliseconds 10-750, not \"\"");
  EXPECT_EQ(parse_program_options({"--smooth=1"}).error, "unknown option --smooth=1");
}

// The program applies both to the console it runs as main.cpp does; neither
// reaches the computer's settings, not even when Port Setup is saved for
// another reason, so the next run starts as before.
TEST(ProgramOptions, SmoothAndRefreshHoldForTheRunAndLeaveTheSettingsAlone) {
  MemorySettings settings;
  settings.write(OutputTiming::kSmoothSetting, "0");
  TestConsole t;
  t.services.settings = &settings;
  t.build();
  const ProgramOptions line = parse_program_options({"--smooth", "--refresh-ms", "23"});
  OutputTiming& timing = t.console->context().output_timing();
  timing.set_run_smooth(line.smooth);
  t.console->output_cycle().output_timer().set_interval(*line.refresh_ms);
  EXPECT_TRUE(timing.smooth());
  EXPECT_FALSE(timing.smooth_setting());
  EXPECT_EQ(t.console->output_cycle().output_timer().interval(), 23);

  OutputDeviceSetup& setup = t.console->output_device_setup();
  setup.Form_Load();
  EXPECT_TRUE(setup.Smooth_Check_Value()) << "the box shows this run's pacing";
  setup.save_clicked();  // "Save and Exit" with the box left alone
  EXPECT_TRUE(timing.smooth());
  EXPECT_EQ(t.console->output_cycle().output_timer().interval(), 23);
  EXPECT_EQ(settings.read(OutputTiming::kSmoothSetting), "0");

  TestConsole next_run;
  next_run.services.settings = &settings;
  EXPECT_FALSE(next_run.build().context().output_timing().smooth());
}

}  // namespace
}  // namespace lumaris
