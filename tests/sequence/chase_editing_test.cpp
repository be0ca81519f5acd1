#include <gtest/gtest.h>

#include <string>
#include <tuple>

#include "tests/sequence/sequence_test_desk.h"

namespace lumaris {

TEST(ChaseEditing, CopyPasteShiftAndClearWorkOnTheShownStep) {
  SequenceTestDesk s;
  s.program(3, 1.0, 1.0);
  ChaseRec& c = s.chase();
  // Copy and Paste carry times in whole seconds, halves to even.
  c.Speed[1] = 0.5;
  c.Time[1] = 1.5;
  c.Data[1][6] = 66;
  c.Fade[1][20] = kChaseOff;
  s.desk->Command_Copy_Click();
  s.desk->Chase_Plus_Click();
  s.desk->Command_Paste_Click();
  EXPECT_EQ(std::tuple(c.Speed[2], c.Time[2], c.Data[2][6], c.Fade[2][20]),
            std::tuple(0.0, 2.0, 66, kChaseOff));
  c.Speed[2] = 2.5;
  s.desk->Command_Copy_Click();
  EXPECT_EQ(std::tuple(s.desk->clipboard().Copy_Speed, s.desk->clipboard().Copy_Time), std::tuple(2, 2));

  // Shift rotates the level channels of the step; the moving desk's stay put.
  for (int i = 0; i < kChaseChannels; ++i) c.Data[2][i] = static_cast<std::int16_t>(10 + i);
  c.Fade[2][16] = kChaseFade;
  const ChaseRec before = c;
  for (int n = 0; n < 3; ++n) s.desk->Shift_Pos_Click();
  EXPECT_EQ(std::tuple(c.Data[2][3], c.Data[2][0], c.Data[2][18]), std::tuple(10, 10 + 15, 28));
  EXPECT_TRUE(s.t.store().Project_Changed);
  s.t.store().Project_Changed = false;
  for (int n = 0; n < 3; ++n) s.desk->Shift_Neg_Click();
  EXPECT_EQ(std::tuple(s.t.store().Project_Changed, c.Data, c.Fade), std::tuple(true, before.Data, before.Fade));

  // Clear zeroes the level channels of the shown step only.
  for (int i = 0; i < kChaseChannels; ++i) c.Data[3][i] = 90;
  s.desk->Menu_Click("clear-step");
  for (int i = 0; i < kLevelChannels; ++i) EXPECT_EQ(c.Data[2][i], 0) << i;
  EXPECT_EQ(c.Data[2][18], 28) << "the moving desk's channels, its panel hidden";
  EXPECT_EQ(std::tuple(c.Data[3][0], s.desk->channels()[17].fader), std::tuple(90, 255));
}

TEST(ChaseEditing, ChannelBoxesRouteRoundedNumbersRefuseOthersOnceAndCanCountUp) {
  SequenceTestDesk s;
  s.t.store().Project_Changed = false;
  s.desk->channel_box_changed(3, "4.5");  // 3.5 rounds to the even 4: desk channel 5
  EXPECT_EQ(std::tuple(s.chase().Channels[3], s.t.store().Project_Changed), std::tuple(4, true));
  s.desk->channel_box_changed(4, "70");
  ASSERT_EQ(s.t.dialogs.messages().size(), 1u);
  EXPECT_EQ(s.t.dialogs.messages()[0].title, " Channel Error");
  EXPECT_EQ(s.t.dialogs.messages()[0].text, " Channel Values must be between 1 - 63");
  EXPECT_EQ(std::tuple(s.desk->channels()[4].channel_box, s.chase().Channels[4]), std::tuple("63", 62));
  s.desk->channel_box_changed(4, "x");  // refused, routing unchanged
  EXPECT_EQ(std::tuple(s.t.dialogs.messages().size(), s.chase().Channels[4]), std::tuple(2u, 62));
  s.desk->channel_box_changed(4, "");  // an emptied box is not an error
  EXPECT_EQ(s.t.dialogs.messages().size(), 2u);

  s.t.dialogs.clear();
  s.desk->auto_increment_clicked(true);  // auto increment fills the column from the first number
  s.desk->channel_box_changed(0, "5");
  for (int i = 0; i < kChaseChannels; ++i) EXPECT_EQ(s.chase().Channels[i], 4 + i) << i;
  EXPECT_EQ(s.desk->channels()[23].channel_box, "28");
  s.desk->channel_box_changed(20, "62");  // counting stops at 63
  EXPECT_EQ(std::tuple(s.desk->channels()[21].channel_box, s.desk->channels()[22].channel_box), std::tuple("63", "27"));
  EXPECT_TRUE(s.t.dialogs.messages().empty());
}

TEST(ChaseEditing, StepsStayBetweenOneAndThirtyTwoInsertOpensAnEmptyStepAndRemoveClosesIt) {
  SequenceTestDesk s;
  ChaseRec& c = s.chase();
  s.desk->Steps_subtract_Click();
  s.desk->Remove_Step_Click();
  EXPECT_EQ(c.Steps, 1);
  for (int n = 0; n < 40; ++n) s.desk->Steps_Add_Click();
  s.desk->Insert_Click();
  EXPECT_EQ(c.Steps, 32);
  c.Data[32][0] = 200;
  s.desk->Chase_Minus_Click();  // previous on step 1 goes to the last
  EXPECT_EQ(std::tuple(s.desk->Cur_Step(), s.desk->Prev_Step(), s.desk->channels()[0].fader),
            std::tuple(32, 1, 55));
  s.desk->Steps_subtract_Click();  // the shown step goes with it
  EXPECT_EQ(s.desk->Step_Display(), "31");

  s.program(3, 1.0, 1.0);
  s.desk->Chase_Sel_Click(0);  // step 1 shown
  for (int step = 1; step <= 3; ++step) {
    c.Data[step][0] = static_cast<std::int16_t>(step * 10);
    c.Speed[step] = step;
  }
  c.Fade[2][0] = kChaseFade;
  s.t.store().Project_Changed = false;
  s.desk->Insert_Click();  // after step 1
  EXPECT_EQ(std::tuple(s.t.store().Project_Changed, c.Steps), std::tuple(true, 4));
  EXPECT_EQ(std::tuple(c.Data[2][0], c.Fade[2][0], c.Speed[2], c.Data[3][0]),
            std::tuple(0, kChaseFade, 2.0, 20))
      << "the function and time stay with the step that moved up";
  s.desk->Chase_Plus_Click();
  s.t.store().Project_Changed = false;
  s.desk->Remove_Step_Click();
  EXPECT_EQ(std::tuple(s.t.store().Project_Changed, c.Data[2][0]), std::tuple(true, 20));
  s.desk->Chase_Plus_Click();
  s.desk->Remove_Step_Click();  // removing the last step shows the one before
  EXPECT_EQ(s.desk->Cur_Step(), 2);
}

TEST(ChaseEditing, FunctionButtonsCycleAndTheSwitchAppliesToEveryStep) {
  SequenceTestDesk s;
  s.program(3, 1.0, 1.0);
  ChaseRec& c = s.chase();
  const auto& ch = s.desk->channels();
  s.desk->Ch_Function_Click(2);  // S -> off
  EXPECT_EQ(std::tuple(ch[2].Ch_Function, ch[2].level_enabled), std::tuple("off", false));
  s.desk->Ch_Function_Click(2);
  EXPECT_EQ(ch[2].Ch_Function, "F");
  EXPECT_EQ(c.Fade[2][2], kChaseStep);  // only the shown step so far
  s.desk->Global_fade_sw_Click(true);
  s.desk->Ch_Function_Click(20);  // S -> off on the moving desk's channel, every step
  for (int step = 0; step <= 3; ++step) EXPECT_EQ(c.Fade[step][20], kChaseOff);
  s.desk->Ch_Function_All_Click();  // off -> F on channels 0..17 of every step
  EXPECT_EQ(std::tuple(c.Fade[3][17], c.Fade[3][18]), std::tuple(kChaseFade, kChaseStep));
  s.desk->Steps_Add_Click();  // the new step takes that function too
  EXPECT_EQ(std::tuple(c.Fade[4][5], s.t.store().Project_Changed), std::tuple(kChaseFade, false));
}

TEST(ChaseEditing, TimeSlidersWriteTheStepOrEveryStepAndTheLockGivesTheFadeTheStepDuration) {
  SequenceTestDesk s;
  s.program(3, 1.0, 1.0);
  ChaseRec& c = s.chase();
  LogSlider& speed = s.desk->speed_slider();
  const double top = speed.axis_top();
  speed.Set_From_Position(top);
  EXPECT_EQ(std::tuple(c.Speed[1], c.Speed[2]), std::tuple(240.0, 1.0));
  s.desk->Global_Speed_Click(true);
  s.desk->Speed_Fade_Lock_Click(true);  // the fade follows the duration
  speed.Set_From_Position(top + speed.axis_height());
  for (int step = 0; step <= 3; ++step) {
    EXPECT_EQ(std::tuple(c.Speed[step], c.Time[step]), std::tuple(0.1, 0.1));
  }
  // Showing another step places the thumbs and writes nothing.
  c.Speed[2] = 3;
  s.desk->Chase_Plus_Click();
  EXPECT_EQ(std::tuple(speed.Value(), c.Speed[1]), std::tuple(3.0, 0.1));
  s.desk->Speed_Fade_Lock_Click(false);
  s.desk->Global_fade_Click(true);
  s.desk->fade_slider().Set_From_Position(top);
  for (int step = 0; step <= 3; ++step) EXPECT_EQ(c.Time[step], 240.0);

  // The time texts round halves to even; the lock copies the duration exactly.
  s.desk->Global_fade_Click(false);
  s.desk->Set_Speed(1.375);
  EXPECT_EQ(s.desk->Speed_Text(), "1.38");
  s.desk->Set_Speed(1.125);
  EXPECT_EQ(s.desk->Speed_Text(), "1.12");
  speed.set_Value(1.125);
  s.desk->Speed_Fade_Lock_Click(true);
  EXPECT_EQ(std::tuple(c.Time[2], s.desk->Fade_Text(), s.desk->fade_slider().Value()),
            std::tuple(1.125, "1.12", 1.125));
  EXPECT_FALSE(s.desk->Global_fade_enabled());
  s.desk->Speed_Fade_Lock_Click(false);
  EXPECT_TRUE(s.desk->Global_fade_enabled());
}

TEST(ChaseEditing, ChoosingAChaseShowsItsFirstStepAndItsLoopSettings) {
  SequenceTestDesk s;
  s.program(3, 1.0, 1.0);
  s.desk->Chase_Plus_Click();
  s.desk->Chase_Plus_Click();
  ChaseRec& other = s.t.store().Chase_Table[4];
  other.Steps = 3;
  other.Loop = 5;
  other.Data[1][0] = 70;
  s.desk->Chase_Sel_Click(4);
  EXPECT_EQ(std::tuple(s.desk->Cur_Step(), s.desk->channels()[0].fader), std::tuple(1, 255 - 70));
  EXPECT_EQ(std::tuple(s.desk->Loop_Box(), s.desk->Loop_Times_txt()), std::tuple(false, "5"));
  s.desk->Loop_Box_Click(true);  // endless
  EXPECT_EQ(other.Loop, 0);
  s.desk->Chase_Name_Change("Strobe");
  EXPECT_EQ(s.desk->caption(), "Sequence Desk Strobe");
  EXPECT_EQ(s.desk->Chase_Sel_entries()[4], "Strobe");
}

}  // namespace lumaris
