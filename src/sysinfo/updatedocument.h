#pragma once

#include <QCoreApplication>
#include <QMap>
#include <QString>
#include <QUrl>
#include <QVersionNumber>

#include <optional>

// The small JSON document that announces the latest release:
//   {
//     "format": 1,
//     "latestVersion": "4.98.0.0",
//     "downloadPage": "https://…/cameramanager/",
//     "releaseDate": "2026-11-02",                    optional
//     "notes": { "en": "…", "de": "…" }               optional, by language
//   }
// Unknown members are ignored so that later formats can add some.
struct UpdateDocument
{
    Q_DECLARE_TR_FUNCTIONS(UpdateDocument)

public:
    static constexpr int format = 1;

    QVersionNumber latestVersion;
    QUrl downloadPage;
    QString releaseDate;
    QMap<QString, QString> notes; // language ("de", "zh_CN") -> text

    // nullopt with a translated reason in error for anything that is not such
    // a document.
    static std::optional<UpdateDocument> parse(const QByteArray& json, QString& error);

    // The notes in the language ("zh_CN"), else its base language ("zh"),
    // else English; empty when there are none of these.
    QString notesFor(const QString& language) const;

    // "1.2.3.4": one to four numbers, nothing else.
    static std::optional<QVersionNumber> parseVersion(const QString& text);
    // http and https only: the program offers the address as a link.
    static bool isWebAddress(const QUrl& url);
};
