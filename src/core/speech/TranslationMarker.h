#pragma once

// Marks a fixed English text that the user sees or hears, so that
// scripts/update-translations collects it for the translators. It changes
// nothing: the text is still looked up through a Translator where it is used.
// Only a plain literal can be collected, never a text built at run time.
#define SLX_TR(text) text
