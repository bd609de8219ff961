#include "ui/app/CTranslationDictionary.h"

#include <QFileInfo>
#include <QString>
#include <QTranslator>

#include "core/speech/Translator.h"
#include "ui/app/ProgramFiles.h"

namespace sonalyx::ui {

CTranslationDictionary::CTranslationDictionary() = default;
CTranslationDictionary::~CTranslationDictionary() = default;

std::string CTranslationDictionary::catalogueFor(Language language) {
  switch (language) {
    case Language::Swedish:
      return ":/i18n/sonalyx_sv.qm";
    case Language::French:
      return ":/i18n/sonalyx_fr.qm";
    case Language::German:
      return ":/i18n/sonalyx_de.qm";
    case Language::Spanish:
      return ":/i18n/sonalyx_es.qm";
    case Language::English:
      break;
  }
  return {};
}

bool CTranslationDictionary::Init(Language language) {
  m_language = language;
  m_translator.reset();
  const std::string path = catalogueFor(language);
  if (path.empty()) return true;
  // An installed catalogue (a translator's newer one) comes before the built-in one.
  const QString installed = programDataFolder(QStringLiteral("translations")) + QLatin1Char('/') +
                            QFileInfo(QString::fromStdString(path)).fileName();
  if (QFileInfo::exists(installed) && Load(installed.toStdString())) return true;
  return Load(path);
}

bool CTranslationDictionary::Load(const std::string& catalogue) {
  auto translator = std::make_unique<QTranslator>();
  if (!translator->load(QString::fromStdString(catalogue))) return false;
  m_translator = std::move(translator);
  return true;
}

void CTranslationDictionary::Lookup(const std::string& key, std::string& result) const {
  if (key == kDecimalSignKey) {
    result = decimalSign(m_language);
    return;
  }
  if (m_translator) {
    const QString found = m_translator->translate(kContext, key.c_str());
    // An unfinished entry is empty: the English text stands in rather than blanking it.
    if (!found.isEmpty()) {
      result = found.toStdString();
      return;
    }
  }
  result = key;
}

std::string CTranslationDictionary::Translate(const std::string& key) const {
  std::string result;
  Lookup(key, result);
  return result;
}

}  // namespace sonalyx::ui
