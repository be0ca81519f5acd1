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
  EXPECT_EQ(std::tuple(editor->channel_box(62), editor->channel_box(63)), std::tuple("63", "0"));
  for (int i = 0; i < 20; ++i) editor->next_page_clicked();
  EXPECT_EQ(std::tuple(editor->page(), editor->next_page_enabled(), editor->range_label(), editor->slot_label(127)),
            std::tuple(12, false, "DMX Lights ( 385 - 512 )", "DMX ch 512"));
  EXPECT_EQ(editor->channel_box_tooltip(0), " Select Desh Channel for DMX ch385");
  editor->previous_page_clicked();
  EXPECT_EQ(editor->slot_label(0), "DMX ch 353");
}

TEST_F(PatchEditorTest, ChannelAboveSixtyFourOrNoNumberIsRefusedAndTheBoxReset) {
  editor->channel_box_changed(3, "65");
  ASSERT_EQ(t.dialogs.messages().size(), 1u);
  const auto& box = t.dialogs.messages()[0];
  EXPECT_EQ(std::tuple(box.title, box.text, box.icon, editor->channel_box(3)),
            std::tuple(" Patch Error", " Not a valid Patch Number must be 1 - 64", MessageIcon::Exclamation, "0"));
  EXPECT_EQ(store().Patch[3], 4);  // nothing is stored before Update
  for (const char* typed : {"-1", "abc", "2.5", "-"}) {
    t.dialogs.clear();
    editor->channel_box_changed(0, typed);
    EXPECT_EQ(t.dialogs.messages().size(), 1u) << typed;
    EXPECT_EQ(editor->channel_box(0), "0") << typed;
  }
  t.dialogs.clear();
  editor->channel_box_changed(3, "64");
  editor->channel_box_changed(4, "0");
  editor->channel_box_changed(5, "");
  EXPECT_EQ(std::tuple(t.dialogs.messages().empty(), editor->channel_box(3)), std::tuple(true, "64"));
}

TEST_F(PatchEditorTest, UpdateStoresTheShownPageAndClearOnTheLastPageClearsOnlyItsSlots) {
  editor->next_page_clicked();  // slots 33..160
  editor->channel_box_changed(0, "7");   // slot index 32
  editor->channel_box_changed(1, "");    // slot index 33, patched to 34 at start: an empty box is unpatched
  editor->channel_box_changed(127, "64");  // slot index 159
  editor->Update_Click();
  EXPECT_EQ(std::tuple(store().Patch[32], store().Patch[33], store().Patch[159]), std::tuple(7, 0, 64));
  EXPECT_EQ(store().Patch[31], 32);  // not on the page
  EXPECT_EQ(t.console->status().playback(), " Patches Updated");
  EXPECT_TRUE(store().Project_Changed);

  store().Project_Changed = false;
  for (int s = 0; s < kDmxSlots; ++s) store().Patch[s] = static_cast<std::int16_t>(s % 64 + 1);
  for (int i = 0; i < 11; ++i) editor->next_page_clicked();
  editor->Clear_Click();
  for (int s = 0; s < 384; ++s) ASSERT_EQ(store().Patch[s], s % 64 + 1) << s;
  for (int s = 384; s < kDmxSlots; ++s) ASSERT_EQ(store().Patch[s], 0) << s;
  EXPECT_EQ(std::tuple(editor->channel_box(0), t.console->status().main(), store().Project_Changed),
            std::tuple("0", " Patches All Cleared", true));
}

TEST_F(PatchEditorTest, OpeningAPatchedEntryEditsItsChannelAndClosingDropsEntriesNeverStored) {
  editor->open_channel(63);  // shows 0: opens nothing
  EXPECT_FALSE(t.console->channel_properties().visible());
  editor->channel_box_changed(10, "42");
  editor->open_channel(10);
  EXPECT_EQ(std::tuple(store().Edit_Channel, t.console->channel_properties().Show_Channel()), std::tuple(41, "42"));

  editor->channel_box_changed(0, "9");
  editor->Close_Click();
  EXPECT_FALSE(editor->visible());
  store().Patch[1] = 50;
  editor->Form_Load();
  EXPECT_EQ(std::tuple(editor->channel_box(0), editor->channel_box(1), editor->channel_box(10)), std::tuple("1", "50", "11"));
}

}  // namespace
}  // namespace lumaris
