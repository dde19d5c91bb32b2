#pragma once

#include <QList>
#include <QString>

// The languages the application ships, found as translation files
// "cameramanager_<locale>.qm" in its translation directory.
namespace LanguageCatalog {

struct Entry
{
    QString locale; // such as "de" or "zh_CN"
    QString label;  // the language's own name, with the country when the locale names one
    QString iconPath;
};

// "lang/cameramanager" below the application's directory.
QString translationDirectory();
// The system locale's name cut at its last "_" (de_DE gives de).
QString defaultLanguage();
// One entry per translation file of the directory, in directory order.
QList<Entry> scan(const QString& directory);

} // namespace LanguageCatalog
