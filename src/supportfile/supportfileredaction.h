#pragma once

#include <QByteArray>
#include <QString>

class QSettings;
class SupportFileTree;

// Replaces what identifies a customer (serial numbers, MAC addresses, the
// host name) by pseudonyms before a support file is sent. A pseudonym is a
// keyed hash of the original, so the same camera or adapter gets the same
// one in every file written on this installation, and the key never leaves it.
class SupportFileRedaction final
{
public:
    explicit SupportFileRedaction(QByteArray secret);

    // The installation's key, made at random on first use and kept in the settings.
    static QByteArray installationSecret(QSettings& settings);

    // Rewrites the identifying keys of every section and marks the file as redacted.
    void apply(SupportFileTree& tree) const;
    static bool isRedacted(const SupportFileTree& tree);

    QString serialPseudonym(const QString& serial) const;
    // Locally administered, in the notation of the original ("-" or ":").
    QString macPseudonym(const QString& mac) const;
    QString hostPseudonym(const QString& host) const;

private:
    QByteArray digest(const QString& kind, const QString& original) const;

    QByteArray m_secret;
};
