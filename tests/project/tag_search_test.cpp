#include "console/project/tag_search.h"

#include <gtest/gtest.h>

namespace lumaris {
namespace {

TEST(TagSearch, TextMovesThePositionJustPastTheElement) {
  const std::string text = "<A>one</A><A>two</A>";
  std::size_t position = 0;  // 0 counts as 1
  EXPECT_EQ(Get_Tag_Text(position, text, "A"), "one");
  EXPECT_EQ(position, 11u);  // 1-based: the '<' of the second element
  EXPECT_EQ(Get_Tag_Text(position, text, "A"), "two");
  EXPECT_EQ(position, 21u);
  EXPECT_EQ(Get_Tag_Text(position, text, "A"), "");
  EXPECT_EQ(position, 21u);  // nothing found: stays
  // Tags are literal and case-sensitive.
  position = 1;
  EXPECT_EQ(Get_Tag_Text(position, "<Fader>x</Fader><Fade>1:2</Fade>", "Fade"), "1:2");
  position = 1;
  EXPECT_EQ(Get_Tag_Text(position, "<name>x</name><Name id=\"1\">x</Name>", "Name"), "");
  position = 1;
  EXPECT_EQ(Get_Tag_Text(position, "<Name>never closed", "Name"), "");
  EXPECT_EQ(position, 1u);
}

TEST(TagSearch, NumbersRoundHalvesToEvenAndReadNonNumbersAsZero) {
  std::size_t position = 1;
  const std::string text =
      "<N>2.5</N><N>3.5</N><N>-7</N><N>abc</N><N></N><N> 12 </N><N>1e3</N><N>99999999999999999999999</N>";
  EXPECT_EQ(Get_Tag_Number(position, text, "N"), 2);
  EXPECT_EQ(Get_Tag_Number(position, text, "N"), 4);
  EXPECT_EQ(Get_Tag_Number(position, text, "N"), -7);
  EXPECT_EQ(Get_Tag_Number(position, text, "N"), 0);
  EXPECT_EQ(Get_Tag_Number(position, text, "N"), 0);
  EXPECT_EQ(Get_Tag_Number(position, text, "N"), 12);
  EXPECT_EQ(Get_Tag_Number(position, text, "N"), 1000);
  EXPECT_EQ(Get_Tag_Number(position, text, "N"), INT64_MAX);
  EXPECT_EQ(Get_Tag_Number(position, text, "N"), 0);  // missing
}

TEST(TagSearch, PairsNeedAColon) {
  std::size_t position = 1;
  std::int64_t second = -1;
  const std::string text = "<P>12:200</P><P>7</P><P>x:5</P>";
  EXPECT_EQ(Get_Tag_Pair(position, text, "P", second), 12);
  EXPECT_EQ(second, 200);
  EXPECT_EQ(Get_Tag_Pair(position, text, "P", second), 0);
  EXPECT_EQ(second, 0);
  EXPECT_EQ(Get_Tag_Pair(position, text, "P", second), 0);
  EXPECT_EQ(second, 5);
  EXPECT_EQ(Get_Tag_Pair(position, text, "P", second), 0);  // missing
  EXPECT_EQ(second, 0);
}

}  // namespace
}  // namespace lumaris
