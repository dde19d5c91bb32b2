#pragma once

#include <QString>
#include <QStringList>

#include <optional>

// A version word of the camera API: major in the top byte, minor in the next,
// build in the low 16 bits.
class VersionWord final
{
public:
    explicit VersionWord(quint32 word);
    // "4.97.1203" or its padded form; nullopt for anything else.
    static std::optional<VersionWord> fromText(const QString& text);

    int major() const { return m_major; }
    int minor() const { return m_minor; }
    int build() const { return m_build; }
    quint32 word() const;
    // At least major.minor, whatever the build.
    bool isAtLeast(int major, int minor) const;

    // "4.97.1203"
    QString text() const;
    // Minor in two digits, build in four: "4.97.0042".
    QString paddedText() const;
    // The three numbers of paddedText(): "4", "97", "0042".
    QStringList paddedParts() const;

private:
    int m_major;
    int m_minor;
    int m_build;
};
