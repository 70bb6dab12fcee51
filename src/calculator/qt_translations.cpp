#include "calculator/qt_translations.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace lapdesk {

QTranslator* LoadQtTranslations(QCoreApplication& app) {
    auto* translator = new QTranslator(&app);
    if (!translator->load(QLocale(QLocale::Japanese, QLocale::Japan), QStringLiteral("qtbase"),
                          QStringLiteral("_"),
                          QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        delete translator;
        return nullptr;
    }
    QCoreApplication::installTranslator(translator);
    return translator;
}

}  // namespace lapdesk
