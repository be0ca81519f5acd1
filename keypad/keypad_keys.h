#pragma once

namespace lumaris::keys {

// The keyboard's virtual key codes the command line reads.
inline constexpr int kBackspace = 8;
inline constexpr int kEnter = 13;
inline constexpr int kLetterC = 67;
inline constexpr int kPad0 = 96;  // keypad 0..9 are 96..105
inline constexpr int kPad9 = 105;
inline constexpr int kPadAsterisk = 106;
inline constexpr int kPadPlus = 107;
inline constexpr int kPadMinus = 109;
inline constexpr int kPadPoint = 110;
inline constexpr int kPadSlash = 111;
inline constexpr int kNumLock = 144;

// Keys of the main keyboard that a laptop uses in place of the keypad.
inline constexpr int kTop0 = 48;  // top-row digits 0..9 are 48..57
inline constexpr int kTop9 = 57;
inline constexpr int kTopPlus = 187;
inline constexpr int kTopPoint = 190;
inline constexpr int kTopSlash = 191;
// The main keyboard's "*" has no virtual key of its own (it is Shift+8); it gets
// a code above the keyboard's range so that it is never mistaken for a key.
inline constexpr int kTopAsterisk = 0x100 + '*';

}  // namespace lumaris::keys
