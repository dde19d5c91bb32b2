#include "sysinfo/updatedocument.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonParseError>
#include <QRegularExpression>

namespace {

std::optional<QString> readNotes(const QJsonValue& value, QMap<QString, QString>& notes)
{
    if (value.isUndefined())
        return std::nullopt;
    if (!value.isObject())
        return UpdateDocument::tr("The update document's notes are not a list of texts by language.");
    const QJsonObject byLanguage = value.toObject();
    for (auto it = byLanguage.begin(); it != byLanguage.end(); ++it) {
        if (!it.value().isString())
            return UpdateDocument::tr("The update document's notes for \"%1\" are not a text.").arg(it.key());
        notes.insert(it.key(), it.value().toString());
    }
    return std::nullopt;
}

} // namespace

std::optional<UpdateDocument> UpdateDocument::parse(const QByteArray& json, QString& error)
{
    QJsonParseError parseError;
    const QJsonDocument document = QJsonDocument::fromJson(json, &parseError);
    if (parseError.error != QJsonParseError::NoError) {
        error = tr("The update document is not valid JSON: %1 (at byte %2).")
                    .arg(parseError.errorString())
                    .arg(parseError.offset);
        return std::nullopt;
    }
    if (!document.isObject()) {
        error = tr("The update document is not a JSON object.");
        return std::nullopt;
    }
    const QJsonObject object = document.object();
    const QJsonValue formatValue = object.value(QStringLiteral("format"));
    if (!formatValue.isDouble()) {
        error = tr("The update document has no format number.");
        return std::nullopt;
    }
    if (formatValue.toDouble() != format) {
        error = tr("The update document has the format %1; this version reads format %2.")
                    .arg(formatValue.toDouble())
                    .arg(format);
        return std::nullopt;
    }
    UpdateDocument result;
    const QJsonValue version = object.value(QStringLiteral("latestVersion"));
    const std::optional<QVersionNumber> latest = parseVersion(version.toString());
    if (!version.isString() || !latest) {
        error = version.isUndefined() ? tr("The update document names no latest version.")
                                      : tr("The update document's latest version \"%1\" is not a version number "
                                           "such as 4.98.0.0.")
                                            .arg(version.isString() ? version.toString()
                                                                    : tr("(not a text)"));
        return std::nullopt;
    }
    result.latestVersion = *latest;
    result.downloadPage = QUrl(object.value(QStringLiteral("downloadPage")).toString(), QUrl::StrictMode);
    if (!isWebAddress(result.downloadPage)) {
        error = tr("The update document's download page \"%1\" is not an http or https address.")
                    .arg(object.value(QStringLiteral("downloadPage")).toString());
        return std::nullopt;
    }
    result.releaseDate = object.value(QStringLiteral("releaseDate")).toString();
    if (const std::optional<QString> notesError = readNotes(object.value(QStringLiteral("notes")), result.notes)) {
        error = *notesError;
        return std::nullopt;
    }
    return result;
}

QString UpdateDocument::notesFor(const QString& language) const
{
    const QString base = language.section(QLatin1Char('_'), 0, 0);
    for (const QString& key : {language, base, QStringLiteral("en")}) {
        if (notes.contains(key))
            return notes.value(key);
    }
    return QString();
}

std::optional<QVersionNumber> UpdateDocument::parseVersion(const QString& text)
{
    static const QRegularExpression pattern(QStringLiteral("^\\d{1,9}(\\.\\d{1,9}){0,3}$"));
    if (!pattern.match(text).hasMatch())
        return std::nullopt;
    return QVersionNumber::fromString(text);
}

bool UpdateDocument::isWebAddress(const QUrl& url)
{
    return url.isValid() && !url.host().isEmpty()
           && (url.scheme() == QLatin1String("http") || url.scheme() == QLatin1String("https"));
}
