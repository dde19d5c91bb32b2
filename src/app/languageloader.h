#pragma once

#include <QString>
#include <QTranslator>

// The application's two translators: its own texts and Qt's. Loading a
// language installs each translator whose file loads; installing makes every
// window receive a language-change event.
class LanguageLoader final
{
    Q_DISABLE_COPY_MOVE(LanguageLoader)

public:
    explicit LanguageLoader(QString directory);
    ~LanguageLoader();

    // Nothing when the locale is the current language.
    void load(const QString& locale);
    QString currentLanguage() const { return m_current; }
    QString directory() const { return m_directory; }
    bool hasCodeTranslation() const { return !m_code.isEmpty(); }
    bool hasQtTranslation() const { return !m_qt.isEmpty(); }

private:
    void reload(QTranslator& translator, const QString& fileName);

    QTranslator m_code;
    QTranslator m_qt;
    QString m_current;
    const QString m_directory;
};
