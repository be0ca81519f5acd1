#include <gtest/gtest.h>

#include <string>

#include "tests/sequence/sequence_desk.h"

namespace lumaris {

TEST(ChaseEditing, CopyAndPasteCarryTimesInWholeSecondsHalvesToEven) {
  SequenceDesk s;
  s.program(3, 1.0, 1.0);
  ChaseRec& c = s.chase();
  c.Speed[1] = 0.5;
  c.Time[1] = 1.5;
  c.Data[1][6] = 66;
  c.Fade[1][20] = kChaseOff;
  s.desk->Command_Copy_Click();
  s.desk->Chase_Plus_Click();
  s.desk->Command_Paste_Click();
  EXPECT_EQ(c.Speed[2], 0.0);
  EXPECT_EQ(c.Time[2], 2.0);
  EXPECT_EQ(c.Data[2][6], 66);
  EXPECT_EQ(c.Fade[2][20], kChaseOff);
  c.Speed[2] = 2.5;
  s.desk->Command_Copy_Click();
  EXPECT_EQ(s.desk->clipboard().Copy_Speed, 2);
  EXPECT_EQ(s.desk->clipboard().Copy_Time, 2);
}

TEST(ChaseEditing, ShiftRotatesTheLevelChannelsOfTheStep) {
  SequenceDesk s;
  s.program(2, 1.0, 1.0);
  ChaseRec& c = s.chase();
  for (int i = 0; i < kChaseChannels; ++i) c.Data[1][i] = static_cast<std::int16_t>(10 + i);
  c.Fade[1][16] = kChaseFade;
  const ChaseRec before = c;
  for (int n = 0; n < 3; ++n) s.desk->Shift_Pos_Click();
  EXPECT_EQ(c.Data[1][3], 10);       // channel 0 moved up three places
  EXPECT_EQ(c.Data[1][0], 10 + 15);  // and 15 wrapped round to 0
  EXPECT_EQ(c.Data[1][18], 28);      // the moving desk's channels stay put
  for (int n = 0; n < 3; ++n) s.desk->Shift_Neg_Click();
  EXPECT_EQ(c.Data, before.Data);
  EXPECT_EQ(c.Fade, before.Fade);
}

TEST(ChaseEditing, AnOutOfRangeDeskChannelGivesOneMessageAndBecomes63) {
  SequenceDesk s;
  s.desk->Text1_Change(4, "7");
  s.desk->Text1_Change(4, "70");
  ASSERT_EQ(s.t.dialogs.messages().size(), 1u);
  EXPECT_EQ(s.t.dialogs.messages()[0].title, " Channel Error");
  EXPECT_EQ(s.t.dialogs.messages()[0].text, " Channel Values must be between 1 - 63");
  EXPECT_EQ(s.desk->channels()[4].Text1, "63");
  EXPECT_EQ(s.chase().Channels[4], 62);

  s.desk->Text1_Change(4, "x");  // refused, routing unchanged
  EXPECT_EQ(s.t.dialogs.messages().size(), 2u);
  EXPECT_EQ(s.chase().Channels[4], 62);
  s.desk->Text1_Change(4, "");  // an emptied box is not an error
  EXPECT_EQ(s.t.dialogs.messages().size(), 2u);
}

TEST(ChaseEditing, AutoIncrementFillsTheColumnFromTheFirstNumber) {
  SequenceDesk s;
  s.desk->Check1_Click(true);
  s.desk->Text1_Change(0, "5");
  for (int i = 0; i < kChaseChannels; ++i) EXPECT_EQ(s.chase().Channels[i], 4 + i) << i;
  EXPECT_EQ(s.desk->channels()[23].Text1, "28");
  // Counting stops at 63.
  s.desk->Text1_Change(20, "62");
  EXPECT_EQ(s.desk->channels()[21].Text1, "63");
  EXPECT_EQ(s.desk->channels()[22].Text1, "27");
  EXPECT_TRUE(s.t.dialogs.messages().empty());
}

TEST(ChaseEditing, StepsStayBetweenOneAndThirtyTwoAndPreviousOnStepOneGoesToTheLast) {
  SequenceDesk s;
  ChaseRec& c = s.chase();
  s.desk->Steps_subtract_Click();
  s.desk->Remove_Step_Click();
  EXPECT_EQ(c.Steps, 1);
  for (int n = 0; n < 40; ++n) s.desk->Steps_Add_Click();
  s.desk->Insert_Click();
  EXPECT_EQ(c.Steps, 32);
  c.Data[32][0] = 200;
  s.desk->Chase_Minus_Click();
  EXPECT_EQ(s.desk->Cur_Step(), 32);
  EXPECT_EQ(s.desk->Prev_Step(), 1);
  EXPECT_EQ(s.desk->channels()[0].Slider1, 55);
  s.desk->Steps_subtract_Click();  // the shown step goes with it
  EXPECT_EQ(s.desk->Step_Display(), "31");
}

TEST(ChaseEditing, InsertOpensAnEmptyStepAndRemoveClosesIt) {
  SequenceDesk s;
  s.program(3, 1.0, 1.0);
  ChaseRec& c = s.chase();
  for (int step = 1; step <= 3; ++step) {
    c.Data[step][0] = static_cast<std::int16_t>(step * 10);
    c.Speed[step] = step;
  }
  c.Fade[2][0] = kChaseFade;
  s.desk->Insert_Click();  // after step 1
  EXPECT_EQ(c.Steps, 4);
  EXPECT_EQ(c.Data[2][0], 0);
  EXPECT_EQ(c.Fade[2][0], kChaseFade);  // kept from the step that moved up
  EXPECT_EQ(c.Speed[2], 2.0);
  EXPECT_EQ(c.Data[3][0], 20);
  s.desk->Chase_Plus_Click();
  s.desk->Remove_Step_Click();
  EXPECT_EQ(c.Data[2][0], 20);
  s.desk->Chase_Plus_Click();
  s.desk->Remove_Step_Click();  // removing the last step shows the one before
  EXPECT_EQ(s.desk->Cur_Step(), 2);
}

TEST(ChaseEditing, FunctionButtonsCycleAndTheSwitchAppliesToEveryStep) {
  SequenceDesk s;
  s.program(3, 1.0, 1.0);
  ChaseRec& c = s.chase();
  const auto& ch = s.desk->channels();
  s.desk->Ch_Function_Click(2);  // S -> off
  EXPECT_EQ(ch[2].Ch_Function, "off");
  EXPECT_FALSE(ch[2].level_enabled);
  s.desk->Ch_Function_Click(2);
  EXPECT_EQ(ch[2].Ch_Function, "F");
  EXPECT_EQ(c.Fade[2][2], kChaseStep);  // only the shown step so far
  s.desk->Global_fade_sw_Click(true);
  s.desk->Ch_Function_Click(20);  // S -> off on the moving desk's channel, every step
  for (int step = 0; step <= 3; ++step) EXPECT_EQ(c.Fade[step][20], kChaseOff);
  s.desk->Ch_Function_All_Click();  // off -> F on channels 0..17 of every step
  EXPECT_EQ(c.Fade[3][17], kChaseFade);
  EXPECT_EQ(c.Fade[3][18], kChaseStep);
  s.desk->Steps_Add_Click();  // the new step takes that function too
  EXPECT_EQ(c.Fade[4][5], kChaseFade);
  EXPECT_FALSE(s.t.store().Project_Changed);
}

TEST(ChaseEditing, TimeSlidersWriteTheStepAndOptionallyEveryStep) {
  SequenceDesk s;
  s.program(3, 1.0, 1.0);
  ChaseRec& c = s.chase();
  VRLogSlider& speed = s.desk->LogSlider3();
  const double top = speed.axis_top();
  speed.Set_From_Position(top);
  EXPECT_EQ(c.Speed[1], 240.0);
  EXPECT_EQ(c.Speed[2], 1.0);
  s.desk->Global_Speed_Click(true);
  s.desk->Speed_Fade_Lock_Click(true);  // the fade follows the duration
  speed.Set_From_Position(top + speed.axis_height());
  for (int step = 0; step <= 3; ++step) {
    EXPECT_EQ(c.Speed[step], 0.1);
    EXPECT_EQ(c.Time[step], 0.1);
  }
  // Showing another step places the thumbs and writes nothing.
  c.Speed[2] = 3;
  s.desk->Chase_Plus_Click();
  EXPECT_EQ(speed.Value(), 3.0);
  EXPECT_EQ(c.Speed[1], 0.1);
  s.desk->Speed_Fade_Lock_Click(false);
  s.desk->Global_fade_Click(true);
  s.desk->LogSlider4().Set_From_Position(top);
  for (int step = 0; step <= 3; ++step) EXPECT_EQ(c.Time[step], 240.0);
}

TEST(ChaseEditing, RearrangingStepsOrRoutingAChannelMarksTheProjectChanged) {
  SequenceDesk s;
  s.program(3, 1.0, 1.0);
  Store& store = s.t.store();
  const std::pair<const char*, void (Chases::*)()> edits[] = {
      {"Insert", &Chases::Insert_Click},
      {"Remove", &Chases::Remove_Step_Click},
      {"Shift +", &Chases::Shift_Pos_Click},
      {"Shift -", &Chases::Shift_Neg_Click},
  };
  for (const auto& [name, edit] : edits) {
    store.Project_Changed = false;
    (s.desk->*edit)();
    EXPECT_TRUE(store.Project_Changed) << name;
  }
  store.Project_Changed = false;
  s.desk->Text1_Change(3, "4.5");  // 3.5 rounds to the even 4: desk channel 5
  EXPECT_EQ(s.chase().Channels[3], 4);
  EXPECT_TRUE(store.Project_Changed);
}

TEST(ChaseEditing, ChoosingAChaseShowsItsFirstStepAndItsLoopSettings) {
  SequenceDesk s;
  s.program(3, 1.0, 1.0);
  s.desk->Chase_Plus_Click();
  s.desk->Chase_Plus_Click();
  ChaseRec& other = s.t.store().Chase_Table[4];
  other.Steps = 3;
  other.Loop = 5;
  other.Data[1][0] = 70;
  s.desk->Chase_Sel_Click(4);
  EXPECT_EQ(s.desk->Cur_Step(), 1);
  EXPECT_EQ(s.desk->channels()[0].Slider1, 255 - 70);
  EXPECT_FALSE(s.desk->Loop_Box());
  EXPECT_EQ(s.desk->Loop_Times_txt(), "5");
  s.desk->Loop_Box_Click(true);  // endless
  EXPECT_EQ(other.Loop, 0);
  s.desk->Chase_Name_Change("Strobe");
  EXPECT_EQ(s.desk->caption(), "Sequence Desk Strobe");
  EXPECT_EQ(s.desk->Chase_Sel_entries()[4], "Strobe");
}

TEST(ChaseEditing, ClearZeroesTheLevelChannelsOfTheShownStepOnly) {
  SequenceDesk s;
  s.program(2, 1.0, 1.0);
  ChaseRec& c = s.chase();
  for (int i = 0; i < kChaseChannels; ++i) c.Data[1][i] = c.Data[2][i] = 90;
  s.desk->Menu_Click("Clear_Step");
  for (int i = 0; i < kLevelChannels; ++i) EXPECT_EQ(c.Data[1][i], 0) << i;
  EXPECT_EQ(c.Data[1][18], 90);  // the moving desk's channels, its panel hidden
  EXPECT_EQ(c.Data[2][0], 90);
  EXPECT_EQ(s.desk->channels()[17].Slider1, 255);
}

// The lock copies the step duration into the fade; the time texts round halves to even.
TEST(ChaseEditing, TheLockGivesTheFadeTheStepDuration) {
  SequenceDesk s;
  s.program(2, 1.0, 1.0);
  s.desk->Set_Speed(1.375);
  EXPECT_EQ(s.desk->Speed_Text(), "1.38");
  s.desk->Set_Speed(1.125);
  EXPECT_EQ(s.desk->Speed_Text(), "1.12");
  s.desk->LogSlider3().set_Value(1.125);
  s.desk->Speed_Fade_Lock_Click(true);
  EXPECT_EQ(s.chase().Time[1], 1.125);
  EXPECT_EQ(s.desk->Fade_Text(), "1.12");
  EXPECT_EQ(s.desk->LogSlider4().Value(), 1.125);
  EXPECT_FALSE(s.desk->Global_fade_enabled());
  s.desk->Speed_Fade_Lock_Click(false);
  EXPECT_TRUE(s.desk->Global_fade_enabled());
}

}  // namespace lumaris
