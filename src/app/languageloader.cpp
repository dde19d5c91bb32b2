#include "app/languageloader.h"

#include <QCoreApplication>
#include <QLocale>

LanguageLoader::LanguageLoader(QString directory)
    : m_directory(std::move(directory))
{
}

LanguageLoader::~LanguageLoader()
{
    QCoreApplication::removeTranslator(&m_code);
    QCoreApplication::removeTranslator(&m_qt);
}

void LanguageLoader::load(const QString& locale)
{
    if (locale == m_current)
        return;
    m_current = locale;
    QLocale::setDefault(QLocale(locale));
    reload(m_code, QStringLiteral("cameramanager_%1").arg(locale));
    reload(m_qt, QStringLiteral("qtbase_%1").arg(locale));
}

void LanguageLoader::reload(QTranslator& translator, const QString& fileName)
{
    QCoreApplication::removeTranslator(&translator);
    if (translator.load(fileName, m_directory))
        QCoreApplication::installTranslator(&translator);
}
