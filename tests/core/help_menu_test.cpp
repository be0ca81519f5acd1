#include <gtest/gtest.h>

#include <algorithm>

#include "core/main_desk.h"
#include "tests/support/test_console.h"

namespace lumaris {

// The Help menu holds the keys page before About; both only inform.
TEST(HelpMenu, KeyboardAndKeypadShowsTheKeysTheConsoleAnswersTo) {
  TestConsole t;
  t.build();
  Hoofdblad& desk = t.console->main_desk();
  std::vector<std::string> help;
  for (const MenuEntry& entry : desk.menu_entries()) {
    if (entry.menu == "&Help") help.push_back(entry.caption);
  }
  EXPECT_EQ(help, (std::vector<std::string>{"&Keyboard and keypad", "&About"}));

  t.store().Project_Changed = false;
  desk.Menu_Click("Keys_Help");
  ASSERT_EQ(t.dialogs.messages().size(), 1u);
  const MessageBoxSpec& page = t.dialogs.messages()[0];
  EXPECT_EQ(page.title, " Keyboard and keypad");
  EXPECT_EQ(page.icon, MessageIcon::Information);
  for (const char* key : {"5 . 50 Enter", "1 * 8 . 000", "C 7 Enter", "Alt+F", "Ctrl-C"}) {
    EXPECT_NE(page.text.find(key), std::string::npos) << key;
  }
  EXPECT_FALSE(t.store().Project_Changed) << "reading help changes no show data";
}

}  // namespace lumaris
