#include <gtest/gtest.h>

#include <tuple>

#include "core/project_info.h"
#include "tests/support/test_console.h"

namespace lumaris {
namespace {

TEST(ProjectInfo, ShowsTodayOrTheLoadedHeaderCancelDropsTheEditAndOkStoresIt) {
  TestConsole t;
  t.build();
  ProjectInfo& info = t.console->project_info();
  Store& store = t.store();
  t.clock.set(CalendarDate{2027, 3, 5});
  info.Form_Load();
  EXPECT_EQ(std::tuple(info.Prj_Date(), info.Prj_Version()),
            std::tuple("05/03/2027", "1")) << "a new project";
  store.Project_Name = "Hamlet";
  store.Project_Text = "Act one";
  store.Project_Date = "01/02/2020";
  store.Project_Version = 7;
  info.Form_Load();
  EXPECT_EQ(std::tuple(info.Prj_Name(), info.project_text(), info.Prj_Date(), info.Prj_Version()),
            std::tuple("Hamlet", "Act one", "01/02/2020", "7"));

  info.Show();
  info.Prj_Name_Change("Macbeth");
  info.CancelButton_Click();
  EXPECT_EQ(std::tuple(store.Project_Name, store.Project_Changed, info.visible()),
            std::tuple("Hamlet", false, false));
  info.Form_Load();
  EXPECT_EQ(info.Prj_Name(), "Hamlet") << "opening again drops the abandoned edit";

  info.Show();
  info.Prj_Name_Change("Macbeth");
  info.project_text_changed("Tour 2027");
  info.OKButton_Click();
  EXPECT_EQ(std::tuple(store.Project_Name, store.Project_Text, store.Project_Changed, info.visible()),
            std::tuple("Macbeth", "Tour 2027", true, false));
}

}  // namespace
}  // namespace lumaris
