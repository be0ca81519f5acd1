#include <gtest/gtest.h>

#include <tuple>

#include "core/channel_properties.h"
#include "core/patch_editor.h"
#include "tests/support/test_console.h"

namespace lumaris {
namespace {

struct PatchEditorTest : ::testing::Test {
  TestConsole t;
  PatchEditor* editor = nullptr;

  void SetUp() override {
    t.build();
    editor = &t.console->patch_editor();
    editor->Form_Load();
    editor->Show();
  }
  Store& store() { return t.store(); }
};

TEST_F(PatchEditorTest, PagesMoveByThirtyTwoSlotsUpToTheEndOfTheFrame) {
  EXPECT_EQ(editor->Text1(62), "63");
  EXPECT_EQ(editor->Text1(63), "0");
  for (int i = 0; i < 20; ++i) editor->Pannel_Inc_Click();
  EXPECT_EQ(editor->page(), 12);
  EXPECT_FALSE(editor->Pannel_Inc_enabled());
  EXPECT_EQ(editor->Label4(), "DMX Lights ( 385 - 512 )");
  EXPECT_EQ(editor->Label1(127), "DMX ch 512");
  EXPECT_EQ(editor->Text1_tooltip(0), " Select Desh Channel for DMX ch385");
  editor->Pannel_Dec_Click();
  EXPECT_EQ(editor->Label1(0), "DMX ch 353");
}

TEST_F(PatchEditorTest, ChannelAboveSixtyFourOrNoNumberIsRefusedAndTheBoxReset) {
  editor->Text1_Change(3, "65");
  ASSERT_EQ(t.dialogs.messages().size(), 1u);
  const auto& box = t.dialogs.messages()[0];
  EXPECT_EQ(box.title, " Patch Error");
  EXPECT_EQ(box.text, " Not a valid Patch Number must be 1 - 64");
  EXPECT_EQ(box.icon, MessageIcon::Exclamation);
  EXPECT_EQ(editor->Text1(3), "0");
  EXPECT_EQ(store().Patch[3], 4);  // nothing is stored before Update
  for (const char* typed : {"-1", "abc", "2.5", "-"}) {
    t.dialogs.clear();
    editor->Text1_Change(0, typed);
    EXPECT_EQ(t.dialogs.messages().size(), 1u) << typed;
    EXPECT_EQ(editor->Text1(0), "0") << typed;
  }
  t.dialogs.clear();
  editor->Text1_Change(3, "64");
  editor->Text1_Change(4, "0");
  editor->Text1_Change(5, "");
  EXPECT_TRUE(t.dialogs.messages().empty());
  EXPECT_EQ(editor->Text1(3), "64");
}

TEST_F(PatchEditorTest, UpdateStoresTheShownPageAndClearOnTheLastPageClearsOnlyItsSlots) {
  editor->Pannel_Inc_Click();  // slots 33..160
  editor->Text1_Change(0, "7");   // slot index 32
  editor->Text1_Change(1, "");    // slot index 33, patched to 34 at start: an empty box is unpatched
  editor->Text1_Change(127, "64");  // slot index 159
  editor->Update_Click();
  EXPECT_EQ(std::tuple(store().Patch[32], store().Patch[33], store().Patch[159]), std::tuple(7, 0, 64));
  EXPECT_EQ(store().Patch[31], 32);  // not on the page
  EXPECT_EQ(t.console->status().playback(), " Patches Updated");
  EXPECT_TRUE(store().Project_Changed);

  store().Project_Changed = false;
  for (int s = 0; s < kDmxSlots; ++s) store().Patch[s] = static_cast<std::int16_t>(s % 64 + 1);
  for (int i = 0; i < 11; ++i) editor->Pannel_Inc_Click();
  editor->Clear_Click();
  for (int s = 0; s < 384; ++s) ASSERT_EQ(store().Patch[s], s % 64 + 1) << s;
  for (int s = 384; s < kDmxSlots; ++s) ASSERT_EQ(store().Patch[s], 0) << s;
  EXPECT_EQ(editor->Text1(0), "0");
  EXPECT_EQ(t.console->status().main(), " Patches All Cleared");
  EXPECT_TRUE(store().Project_Changed);
}

TEST_F(PatchEditorTest, OpeningAPatchedEntryEditsItsChannelAndClosingDropsEntriesNeverStored) {
  editor->Text1_Open(63);  // shows 0: opens nothing
  EXPECT_FALSE(t.console->channel_properties().visible());
  editor->Text1_Change(10, "42");
  editor->Text1_Open(10);
  EXPECT_EQ(store().Edit_Channel, 41);
  EXPECT_EQ(t.console->channel_properties().Show_Channel(), "42");

  editor->Text1_Change(0, "9");
  editor->Close_Click();
  EXPECT_FALSE(editor->visible());
  store().Patch[1] = 50;
  editor->Form_Load();
  EXPECT_EQ(std::tuple(editor->Text1(0), editor->Text1(1), editor->Text1(10)), std::tuple("1", "50", "11"));
}

}  // namespace
}  // namespace lumaris
