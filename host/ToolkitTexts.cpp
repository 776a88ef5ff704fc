#include "host/ToolkitTexts.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>
#include <memory>

void translateToolkit(const QString &language)
{
    auto translator = std::make_unique<QTranslator>();
    const QString folder = QLibraryInfo::path(QLibraryInfo::TranslationsPath);
    if (!translator->load(QLocale(language), QStringLiteral("qtbase"), QStringLiteral("_"), folder))
        return;
    QCoreApplication::installTranslator(translator.get());
    translator.release()->setParent(QCoreApplication::instance());
}
