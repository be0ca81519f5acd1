#include "app/key_codes.h"

#include <QKeyEvent>

#include "keypad/keypad_keys.h"

namespace lumaris {

int virtual_key_code(const QKeyEvent& event) {
  const int key = event.key();
  const bool keypad = event.modifiers().testFlag(Qt::KeypadModifier);
  if (key >= Qt::Key_0 && key <= Qt::Key_9) return (keypad ? 96 : 48) + (key - Qt::Key_0);
  if (key >= Qt::Key_A && key <= Qt::Key_Z) return 65 + (key - Qt::Key_A);
  switch (key) {
    // The main keyboard's * and + are not the keypad's; only a laptop setting
    // of the command line window makes them so.
    case Qt::Key_Asterisk: return keypad ? keys::kPadAsterisk : keys::kTopAsterisk;
    case Qt::Key_Plus: return keypad ? keys::kPadPlus : keys::kTopPlus;
    case Qt::Key_Minus: return keypad ? 109 : 189;
    case Qt::Key_Period:
    case Qt::Key_Comma: return keypad ? 110 : 190;
    case Qt::Key_Slash: return keypad ? 111 : 191;
    case Qt::Key_Enter:
    case Qt::Key_Return: return 13;
    case Qt::Key_Backspace: return 8;
    case Qt::Key_NumLock: return 144;
    case Qt::Key_Escape: return 27;
    case Qt::Key_Space: return 32;
    default: return 0;
  }
}

}  // namespace lumaris
