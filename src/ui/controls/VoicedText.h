#pragma once

#include <QString>

#include "core/speech/SpeechKind.h"

class QFocusEvent;
class QWidget;

// What the self-voicing controls share: how a control says something, how it
// reads symbols, and how it sounds an earcon.
namespace sonalyx::ui::voiced {

// Says `text` for `widget`, as `kind`. The text also becomes the widget's
// accessible description, so that a screen reader finds the same words.
void say(QWidget* widget, SpeechKind kind, const QString& text);

// Whether a focus event brings the user to a control anew. The focus coming back
// from a menu or a popup list is no arrival (the control never lost the user), nor
// is a focus given inside a window that is not yet active: its arrival follows
// when the window activates.
bool isArrival(const QWidget* widget, const QFocusEvent* event);

// The symbols of an expression read as words ("2*3" -> "2 times 3", with blanks).
QString expandSymbols(const QString& text);

// The text a control shows, without the "&" that marks its mnemonic ("&&" is a
// literal "&").
QString withoutMnemonic(const QString& text);

// Earcon `id`, when sound effects are on.
void playSoundEffect(int id);

// The setting numDec: the decimals that spoken numbers keep.
int spokenDecimals();

}  // namespace sonalyx::ui::voiced
