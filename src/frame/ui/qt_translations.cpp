#include "frame/ui/qt_translations.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <array>

#include "frame/ui/swedish_translator.h"

namespace korvin {
namespace {

constexpr int languageSwedish = 5;
constexpr std::array<const char*, 8> fileOfLanguage = {"qtbase_de", "", "qtbase_fr",    "qtbase_it",
                                                       "qtbase_es", "", "qtbase_zh_CN", "qtbase_ja"};

std::unique_ptr<QTranslator> translator(int language) {
  if (language == languageSwedish) return std::make_unique<SwedishTranslator>();
  const char* file =
      language >= 0 && language < 8 ? fileOfLanguage.at(static_cast<std::size_t>(language)) : "";
  auto fromFile = std::make_unique<QTranslator>();
  if (*file == '\0' ||
      !fromFile->load(QLatin1String(file), QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
    return nullptr;
  }
  return fromFile;
}

}  // namespace

QtTranslations::QtTranslations(QObject* parent) : QObject(parent) {}

// QTranslator takes itself out of the application.
QtTranslations::~QtTranslations() = default;

void QtTranslations::setLanguage(int language) {
  present_.reset();
  present_ = translator(language);
  if (present_) QCoreApplication::installTranslator(present_.get());
}

}  // namespace korvin
