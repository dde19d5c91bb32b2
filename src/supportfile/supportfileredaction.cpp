#include "supportfile/supportfileredaction.h"

#include "network/macaddress.h"
#include "supportfile/supportfilenames.h"
#include "supportfile/supportfiletree.h"

#include <QCryptographicHash>
#include <QMessageAuthenticationCode>
#include <QRandomGenerator>
#include <QSettings>
#include <QStringList>

namespace {

using Name = SupportFileNames::Name;

enum class Kind { Serial, Mac, Host };

Kind kindOf(const std::wstring& key, bool& identifying)
{
    using SupportFileNames::text;
    identifying = true;
    if (key == text(Name::DeviceSerNo))
        return Kind::Serial;
    if (key == text(Name::DeviceMacAddress) || key == text(Name::DevicePairedMacAddress)
        || key == text(Name::AdapterMacAddress) || key == text(Name::MacAddress))
        return Kind::Mac;
    if (key == text(Name::HostName))
        return Kind::Host;
    identifying = false;
    return Kind::Serial;
}

} // namespace

SupportFileRedaction::SupportFileRedaction(QByteArray secret)
    : m_secret(std::move(secret))
{
}

QByteArray SupportFileRedaction::installationSecret(QSettings& settings)
{
    const QString key = QStringLiteral("supportFile/redactionKey");
    QByteArray secret = QByteArray::fromBase64(settings.value(key).toByteArray());
    if (secret.size() < 16) {
        secret.resize(32);
        for (char& byte : secret)
            byte = char(QRandomGenerator::system()->bounded(256));
        settings.setValue(key, secret.toBase64());
    }
    return secret;
}

QByteArray SupportFileRedaction::digest(const QString& kind, const QString& original) const
{
    return QMessageAuthenticationCode::hash((kind + QLatin1Char(':') + original).toUtf8(), m_secret,
                                            QCryptographicHash::Sha256);
}

QString SupportFileRedaction::serialPseudonym(const QString& serial) const
{
    return QStringLiteral("S-") + QString::fromLatin1(digest(QStringLiteral("serial"), serial).toHex().left(10));
}

QString SupportFileRedaction::macPseudonym(const QString& mac) const
{
    const std::optional<MacAddress> parsed = MacAddress::fromText(mac);
    // An empty or all-zero address identifies nobody.
    if (!parsed || parsed->isZero())
        return mac;
    QByteArray bytes = digest(QStringLiteral("mac"), parsed->text()).left(6);
    bytes[0] = char((quint8(bytes[0]) & 0xFC) | 0x02);
    const QChar separator = mac.contains(QLatin1Char(':')) ? QLatin1Char(':') : QLatin1Char('-');
    QStringList pairs;
    for (char byte : bytes)
        pairs << QStringLiteral("%1").arg(quint8(byte), 2, 16, QLatin1Char('0'));
    const QString text = pairs.join(separator);
    return mac == mac.toUpper() ? text.toUpper() : text;
}

QString SupportFileRedaction::hostPseudonym(const QString& host) const
{
    return QStringLiteral("host-") + QString::fromLatin1(digest(QStringLiteral("host"), host).toHex().left(8));
}

void SupportFileRedaction::apply(SupportFileTree& tree) const
{
    std::vector<std::tuple<std::wstring, std::wstring, std::wstring>> changes;
    for (const auto& section : tree.tree()) {
        for (const auto& key : section.second) {
            bool identifying = false;
            const Kind kind = kindOf(key.first, identifying);
            if (!identifying)
                continue;
            const QString original = QString::fromStdWString(key.second.data());
            const QString pseudonym = kind == Kind::Serial ? serialPseudonym(original)
                                      : kind == Kind::Mac  ? macPseudonym(original)
                                                           : hostPseudonym(original);
            changes.emplace_back(section.first, key.first, pseudonym.toStdWString());
        }
    }
    for (const auto& [section, key, value] : changes)
        tree.put(section, key, value);
    tree.put(SupportFileNames::text(Name::CameraManager), SupportFileNames::text(Name::Redacted), 1);
}

bool SupportFileRedaction::isRedacted(const SupportFileTree& tree)
{
    return tree.number(SupportFileNames::text(Name::CameraManager), SupportFileNames::text(Name::Redacted), 0) != 0;
}
