#include "app/languagecatalog.h"

#include <QCoreApplication>
#include <QDir>
#include <QLocale>

namespace LanguageCatalog {

namespace {

const QString filePrefix = QStringLiteral("cameramanager_");

QString cutAtLastUnderscore(const QString& name)
{
    const int underscore = name.lastIndexOf(QLatin1Char('_'));
    return underscore < 0 ? name : name.left(underscore);
}

// cameramanager_zh_CN.qm gives zh_CN.
QString localeOfFile(const QString& fileName)
{
    const QString base = fileName.left(fileName.lastIndexOf(QLatin1Char('.')));
    return base.mid(base.indexOf(QLatin1Char('_')) + 1);
}

QString labelOf(const QString& locale)
{
    const QLocale language(locale);
    QString label = language.nativeLanguageName();
    if (locale.contains(QLatin1Char('_')))
        label += QStringLiteral(" (") + QLocale::countryToString(language.country()) + QLatin1Char(')');
    return label;
}

} // namespace

QString translationDirectory()
{
    return QCoreApplication::applicationDirPath() + QStringLiteral("/lang/cameramanager");
}

QString defaultLanguage()
{
    return cutAtLastUnderscore(QLocale::system().name());
}

QList<Entry> scan(const QString& directory)
{
    QList<Entry> entries;
    const QStringList files = QDir(directory).entryList({QStringLiteral("*.qm")}, QDir::Files);
    for (const QString& file : files) {
        if (!file.startsWith(filePrefix, Qt::CaseSensitive))
            continue;
        const QString locale = localeOfFile(file);
        entries.append({locale, labelOf(locale), QStringLiteral(":/images/lang/%1.png").arg(locale)});
    }
    return entries;
}

} // namespace LanguageCatalog
