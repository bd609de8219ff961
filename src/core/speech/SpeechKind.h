#pragma once

namespace sonalyx {

// What a spoken text is. Beside a screen reader the two kinds go different ways:
// the screen reader says the echoes itself, and only the content is the program's
// to say.
enum class SpeechKind {
  // An echo of focus and state: a control's name, role and value as the user
  // reaches it, a menu item, a tab, a box checked or a character typed.
  Echo,
  // What only the program knows: a coordinate stepped to, a result, a fit line, a
  // message, an announcement such as "Data set ready".
  Content,
};

}  // namespace sonalyx
