#include "cli/CliLanguage.h"

#include "cli/BuiltInCatalogues.h"
#include "core/speech/Catalogue.h"

namespace sonalyx::cli {

namespace {

struct RunLanguage {
  Language language = Language::English;
  Catalogue catalogue;
  Translator translator;
};

RunLanguage& runLanguage() {
  static RunLanguage state;
  return state;
}

}  // namespace

void setCliLanguage(Language language) {
  RunLanguage& state = runLanguage();
  state.language = language;
  state.catalogue = Catalogue::fromTsText(builtInCatalogueText(languageCode(language)));
  state.translator = state.catalogue.translator();
}

Language cliLanguage() {
  return runLanguage().language;
}

const Translator& cliTranslator() {
  return runLanguage().translator;
}

}  // namespace sonalyx::cli
