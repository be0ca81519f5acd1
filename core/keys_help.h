#pragma once

namespace lumaris {

// Help -> Keyboard and keypad: the keys the console answers to.
inline constexpr const char* kKeysTitle = " Keyboard and keypad";
inline constexpr const char* kKeysText =
    "Keypad, with the main desk or the Command Line window in front (Num Lock on;\n"
    "* is Thru, . is At, / marks a playback fader):\n"
    "  5 . 50 Enter: channel 5 at 50 %\n"
    "  1 * 8 . 000: channels 1 to 8 at full (three zeros need no Enter)\n"
    "  1 + 3 + 5 . 30 Enter: channels 1, 3 and 5 at 30 %\n"
    "  4 / . 75 Enter: playback fader 4 at 75 %\n"
    "  12 Enter: the level of channel 12 (4 / Enter: of playback fader 4)\n"
    "  C 7 Enter: screen 7 (in run mode: a take to it)\n"
    "  . . clears the line; Backspace empties the number being typed\n"
    "\n"
    "Menus: Alt and the underlined letter (Alt+F File, Alt+E Edit, Alt+D Desks,\n"
    "Alt+S Setup, Alt+H Help).\n"
    "Show files, on the main, playback and sequence desks: Ctrl+O Load,\n"
    "Ctrl+S Save Project, Ctrl+Shift+S Save As Project.\n"
    "Time sliders (fade, step): arrow keys and the mouse wheel a fortieth of the scale,\n"
    "Page Up/Down an eighth; the time boxes take seconds (2.5).\n"
    "Fields with a Set button (Art-Net destination): Enter sets.\n"
    "Without a window (lumaris --headless): Ctrl-C ends the console cleanly.";

}  // namespace lumaris
