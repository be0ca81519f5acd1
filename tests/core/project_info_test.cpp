#include <gtest/gtest.h>

#include "core/project_info.h"
#include "tests/support/test_console.h"

namespace lumaris {
namespace {

struct ProjectInfoTest : ::testing::Test {
  TestConsole t;
  ProjectText* info = nullptr;

  void SetUp() override {
    t.build();
    info = &t.console->project_info();
  }
  Store& store() { return t.store(); }
};

TEST_F(ProjectInfoTest, ShowsTodayForANewProjectAndTheHeaderOfALoadedOne) {
  t.clock.set(CalendarDate{2027, 3, 5});
  info->Form_Load();
  EXPECT_EQ(info->Prj_Date(), "05/03/2027");
  EXPECT_EQ(info->Prj_Version(), "1");
  store().Project_Name = "Hamlet";
  store().Project_Text = "Act one";
  store().Project_Date = "01/02/2020";
  store().Project_Version = 7;
  info->Form_Load();
  EXPECT_EQ(info->Prj_Name(), "Hamlet");
  EXPECT_EQ(info->Text1(), "Act one");
  EXPECT_EQ(info->Prj_Date(), "01/02/2020");
  EXPECT_EQ(info->Prj_Version(), "7");
}

TEST_F(ProjectInfoTest, CancelDropsTheEditAndOkStoresIt) {
  store().Project_Name = "Hamlet";
  info->Form_Load();
  info->Show();
  info->Prj_Name_Change("Macbeth");
  info->CancelButton_Click();
  EXPECT_EQ(store().Project_Name, "Hamlet");
  EXPECT_FALSE(store().Project_Changed);
  EXPECT_FALSE(info->visible());
  info->Form_Load();
  EXPECT_EQ(info->Prj_Name(), "Hamlet") << "opening again drops the abandoned edit";

  info->Show();
  info->Prj_Name_Change("Macbeth");
  info->Text1_Change("Tour 2027");
  info->OKButton_Click();
  EXPECT_EQ(store().Project_Name, "Macbeth");
  EXPECT_EQ(store().Project_Text, "Tour 2027");
  EXPECT_TRUE(store().Project_Changed);
  EXPECT_FALSE(info->visible());
}

}  // namespace
}  // namespace lumaris
