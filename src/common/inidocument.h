#pragma once

#include <QByteArray>
#include <QString>

#include <optional>
#include <vector>

// An INI file as the drivers read it (Qt's INI format), kept line by line so
// that changing one value leaves every other line, comments included, as it
// was. Keys are "Group/Name"; names are encoded as Qt encodes them ("LogBoardIO "
// is stored as "LogBoardIO%20"). Values are written as plain words only: the
// drivers' settings are numbers and booleans.
class IniDocument final
{
public:
    struct ParseError
    {
        int line = 0; // 1-based
        QString reason;
    };
    struct Entry
    {
        QString value; // trimmed, surrounding quotes removed
        int line = 0;  // 1-based
    };

    // Fails on the first line that is neither blank, a comment, a [group] nor
    // a key=value pair, and on text that is not UTF-8.
    static std::optional<IniDocument> parse(const QByteArray& text, ParseError* error);

    // The last entry of the key, as Qt reads it; nothing when absent.
    std::optional<Entry> entry(const QString& key) const;
    // Replaces the entry of the key or adds it at the end of its group.
    // plainValue must be a plain word (letters, digits, '.', '-', '_').
    void setValue(const QString& key, const QString& plainValue);
    QByteArray text() const;

    static bool isPlainValue(const QString& value);

private:
    struct Line
    {
        QByteArray raw; // without its line feed
        QString group;  // decoded: the group that the line opens or belongs to
        QString name;   // decoded; empty unless a key line
        bool header;

        bool isKeyOf(const QString& keyGroup, const QString& keyName) const
        {
            return !name.isEmpty() && name == keyName && group == keyGroup;
        }
    };

    std::vector<Line> m_lines;
};
