// Writes the key-list pages into a built help folder, in every language the help
// has a folder for, from the program's own tables: the build runs it after copying
// the hand-written pages, so the list the user reads is the one the program keeps.
//
//   sonalyx_help_pages SOURCE_HELP_DIR BUILT_HELP_DIR
#include <QDir>
#include <QFile>
#include <QStringList>
#include <cstdio>

#include "core/speech/LanguageTable.h"
#include "ui/app/CTranslationDictionary.h"
#include "ui/app/KeyList.h"

int main(int argc, char** argv) {
  using namespace sonalyx;
  if (argc != 3) {
    std::fprintf(stderr, "usage: sonalyx_help_pages SOURCE_HELP_DIR BUILT_HELP_DIR\n");
    return 2;
  }
  const QDir source(QString::fromLocal8Bit(argv[1]));
  const QDir built(QString::fromLocal8Bit(argv[2]));
  int written = 0;
  for (const QString& code : source.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
    if (!isLanguageCode(code.toStdString())) continue;
    ui::CTranslationDictionary dictionary;
    const Language language = languageForCode(code.toStdString());
    if (language != Language::English && !dictionary.Init(language)) {
      std::fprintf(stderr, "sonalyx_help_pages: no catalogue for %s\n", qPrintable(code));
      return 1;
    }
    const Translator translate = [&dictionary](const std::string& english) {
      return dictionary.Translate(english);
    };
    const std::vector<ui::KeyListSection> sections = ui::keyListSections(translate);
    built.mkpath(code);
    for (const ui::KeyListFile& page : ui::keyListFiles()) {
      QStringList ids;
      for (const char* id : page.sectionIds) ids << QString::fromLatin1(id);
      QFile file(built.filePath(code + QLatin1Char('/') + QString::fromLatin1(page.fileName)));
      if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate)) {
        std::fprintf(stderr, "sonalyx_help_pages: cannot write %s\n", qPrintable(file.fileName()));
        return 1;
      }
      file.write(ui::keyListPage(sections, ids, code, translate).toUtf8());
      ++written;
    }
  }
  if (written == 0) {
    std::fprintf(stderr, "sonalyx_help_pages: no language folder in %s\n", argv[1]);
    return 1;
  }
  return 0;
}
