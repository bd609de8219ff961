#pragma once

#include "core/speech/LanguageTable.h"
#include "core/speech/Translator.h"

namespace sonalyx::cli {

// The language of this run (--lang): every phrase a command prints goes through
// its translator. English, the default, has an empty translator.
void setCliLanguage(Language language);
Language cliLanguage();
const Translator& cliTranslator();

}  // namespace sonalyx::cli
