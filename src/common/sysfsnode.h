#pragma once

#include <QString>

#include <optional>

// One sysfs directory and its attribute files. Reads give no value for an
// attribute that is missing, unreadable or malformed.
class SysfsNode final
{
public:
    explicit SysfsNode(QString path);

    const QString& path() const { return m_path; }
    QString name() const;
    bool exists() const;

    std::optional<QString> text(const QString& attribute) const; // trimmed
    std::optional<uint> hex(const QString& attribute) const;     // with or without "0x"
    std::optional<quint16> word(const QString& attribute) const; // a hexadecimal vendor or device id
    std::optional<int> decimal(const QString& attribute) const;
    std::optional<double> number(const QString& attribute) const;

    // The directory a symbolic link such as "driver" leads to; empty when
    // the link is missing or dangling.
    std::optional<SysfsNode> follow(const QString& link) const;
    SysfsNode child(const QString& name) const;

private:
    QString m_path;
};
