#include "dialogs/parametersetfile.h"

#include "common/inidocument.h"

#include <QCryptographicHash>
#include <QFile>
#include <QSaveFile>

namespace {

const QByteArray checkHeader = QByteArrayLiteral("[Check]\n");
constexpr qint64 maxFileSize = 64 * 1024;

QByteArray checksum(const QByteArray& body)
{
    return QCryptographicHash::hash(body, QCryptographicHash::Md5).toHex();
}

Result refused(const QString& reason)
{
    return {HostError::UnreadableFile, reason};
}

} // namespace

QByteArray ParameterSetFile::text(const ParameterSet& set)
{
    QByteArray body = "[ParameterSet]\nModel=" + set.model.toUtf8() + "\nCount=" + QByteArray::number(set.values.size())
                      + "\n[Values]\n";
    for (const auto& [name, value] : set.values)
        body += name.toUtf8() + '=' + QByteArray::number(value) + '\n';
    return body + checkHeader + "Checksum=" + checksum(body) + '\n';
}

Result ParameterSetFile::save(const QString& path, const ParameterSet& set)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(text(set)) < 0 || !file.commit())
        return {HostError::NotWritable, tr("The file \"%1\" could not be written: %2").arg(path, file.errorString())};
    return {};
}

Result ParameterSetFile::parse(const QByteArray& text, const ParameterSet& shape, ParameterSet* set)
{
    const int check = text.lastIndexOf("\n" + checkHeader);
    if (check < 0)
        return refused(tr("The file is incomplete: it ends before its checksum."));
    IniDocument::ParseError error;
    const std::optional<IniDocument> document = IniDocument::parse(text, &error);
    if (!document)
        return refused(tr("The file is no parameter set file (line %1: %2).").arg(error.line).arg(error.reason));
    const auto stored = document->entry(QStringLiteral("Check/Checksum"));
    if (!stored || stored->value.toLatin1() != checksum(text.left(check + 1)))
        return refused(tr("The file is damaged or incomplete: its checksum does not match its content."));
    const auto model = document->entry(QStringLiteral("ParameterSet/Model"));
    if (!model || model->value != shape.model)
        return refused(tr("The file holds a parameter set of the model \"%1\"; this camera is a %2.")
                           .arg(model ? model->value : QString(), shape.model));
    const auto count = document->entry(QStringLiteral("ParameterSet/Count"));
    if (!count || count->value.toInt() != shape.values.size())
        return refused(tr("The file holds %1 values; the camera has %2.")
                           .arg(count ? count->value : QStringLiteral("0"))
                           .arg(shape.values.size()));
    ParameterSet loaded{shape.model, {}};
    for (const auto& shapeValue : shape.values) {
        const QString& name = shapeValue.first;
        const auto entry = document->entry(QStringLiteral("Values/") + name);
        bool ok = false;
        const qint32 value = entry ? entry->value.toInt(&ok) : 0;
        if (!ok)
            return refused(tr("The file has no valid value for \"%1\".").arg(name));
        loaded.values.append({name, value});
    }
    *set = loaded;
    return {};
}

Result ParameterSetFile::load(const QString& path, const ParameterSet& shape, ParameterSet* set)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return refused(tr("The file \"%1\" could not be read: %2").arg(path, file.errorString()));
    if (file.size() > maxFileSize)
        return refused(tr("The file \"%1\" is too large for a parameter set.").arg(path));
    return parse(file.readAll(), shape, set);
}
