#pragma once

class QKeyEvent;

namespace lumaris {

// The keyboard's virtual key code of a key press, as the command line reads it
// (keypad 0..9 = 96..105, * 106, + 107, - 109, . 110, / 111, Enter 13, ...);
// 0 for a key it has no code for.
int virtual_key_code(const QKeyEvent& event);

}  // namespace lumaris
