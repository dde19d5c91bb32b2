#include "common/inidocument.h"

#include <QCoreApplication>
#include <algorithm>
#include <QTextCodec>

namespace {

QString localized(const char* text)
{
    return QCoreApplication::translate("IniDocument", text);
}

bool isPlainKeyCharacter(ushort ch)
{
    return (ch >= 'a' && ch <= 'z') || (ch >= 'A' && ch <= 'Z') || (ch >= '0' && ch <= '9') || ch == '_'
           || ch == '-' || ch == '.';
}

// Qt's encoding of INI keys and group names: '/' as '\', other characters
// outside the plain set as %XX or %UXXXX.
QByteArray encodedName(const QString& name)
{
    QByteArray result;
    for (const QChar ch : name) {
        const ushort code = ch.unicode();
        if (code == '/')
            result += '\\';
        else if (isPlainKeyCharacter(code))
            result += char(code);
        else if (code <= 0xFF)
            result += '%' + QByteArray::number(code, 16).toUpper().rightJustified(2, '0');
        else
            result += "%U" + QByteArray::number(code, 16).toUpper().rightJustified(4, '0');
    }
    return result;
}

QString decodedName(const QString& encoded)
{
    QString result;
    for (int i = 0; i < encoded.size(); ++i) {
        const QChar ch = encoded.at(i);
        if (ch == QLatin1Char('\\')) {
            result += QLatin1Char('/');
            continue;
        }
        if (ch == QLatin1Char('%')) {
            const bool wide = encoded.mid(i + 1, 1) == QLatin1String("U");
            const int digits = wide ? 4 : 2;
            bool ok = false;
            const ushort code = encoded.mid(i + 1 + (wide ? 1 : 0), digits).toUShort(&ok, 16);
            if (ok) {
                result += QChar(code);
                i += digits + (wide ? 1 : 0);
                continue;
            }
        }
        result += ch;
    }
    return result;
}

QString unquoted(QString value)
{
    value = value.trimmed();
    if (value.size() >= 2 && value.startsWith(QLatin1Char('"')) && value.endsWith(QLatin1Char('"')))
        value = value.mid(1, value.size() - 2);
    return value;
}

std::optional<QString> utf8Text(const QByteArray& bytes)
{
    QTextCodec::ConverterState state;
    const QString text = QTextCodec::codecForName("UTF-8")->toUnicode(bytes.constData(), bytes.size(), &state);
    const bool control = std::any_of(bytes.begin(), bytes.end(), [](char ch) {
        return (uchar(ch) < 0x20 && ch != '\t' && ch != '\r') || ch == '\x7f';
    });
    if (state.invalidChars > 0 || control)
        return std::nullopt;
    return text;
}

// The general group holds the keys that have no group of their own.
QString groupOf(const QString& key)
{
    const int slash = key.indexOf(QLatin1Char('/'));
    return slash < 0 ? QStringLiteral("General") : key.left(slash);
}

QString nameOf(const QString& key)
{
    return key.mid(key.indexOf(QLatin1Char('/')) + 1);
}

} // namespace

std::optional<IniDocument> IniDocument::parse(const QByteArray& text, ParseError* error)
{
    IniDocument document;
    QString group = QStringLiteral("General");
    const QList<QByteArray> lines = text.split('\n');
    for (int index = 0; index < lines.size(); ++index) {
        const QByteArray& raw = lines.at(index);
        if (index == lines.size() - 1 && raw.isEmpty())
            break; // the file's last line feed
        const auto fail = [&](const QString& reason) {
            if (error)
                *error = {index + 1, reason};
            return std::nullopt;
        };
        const auto decoded = utf8Text(raw);
        if (!decoded)
            return fail(localized(QT_TRANSLATE_NOOP("IniDocument", "not text (a control character or invalid UTF-8)")));
        const QString line = decoded->trimmed();
        Line entry{raw, group, QString(), false};
        if (line.isEmpty() || line.startsWith(QLatin1Char(';')) || line.startsWith(QLatin1Char('#'))) {
            // blank or comment
        } else if (line.startsWith(QLatin1Char('['))) {
            if (!line.endsWith(QLatin1Char(']')) || line.size() < 3)
                return fail(localized(QT_TRANSLATE_NOOP("IniDocument", "a group name must stand between [ and ]")));
            group = decodedName(line.mid(1, line.size() - 2).trimmed());
            entry = Line{raw, group, QString(), true};
        } else {
            const int equals = line.indexOf(QLatin1Char('='));
            if (equals <= 0)
                return fail(localized(QT_TRANSLATE_NOOP("IniDocument", "\"%1\" is neither a [group], a key=value pair nor a comment")).arg(line.left(60)));
            entry.name = decodedName(line.left(equals).trimmed());
        }
        document.m_lines.push_back(std::move(entry));
    }
    return document;
}

std::optional<IniDocument::Entry> IniDocument::entry(const QString& key) const
{
    const QString group = groupOf(key);
    const QString name = nameOf(key);
    for (std::size_t i = m_lines.size(); i-- > 0;) {
        const Line& line = m_lines[i];
        if (line.isKeyOf(group, name)) {
            const QString text = QString::fromUtf8(line.raw);
            return Entry{unquoted(text.mid(text.indexOf(QLatin1Char('=')) + 1)), int(i) + 1};
        }
    }
    return std::nullopt;
}

void IniDocument::setValue(const QString& key, const QString& plainValue)
{
    Q_ASSERT(isPlainValue(plainValue));
    const QString group = groupOf(key);
    const QString name = nameOf(key);
    Line entry{encodedName(name) + '=' + plainValue.toLatin1(), group, name, false};
    std::optional<std::size_t> lastOfGroup;
    for (std::size_t i = m_lines.size(); i-- > 0;) {
        Line& line = m_lines[i];
        if (line.isKeyOf(group, name)) {
            line = std::move(entry);
            return;
        }
        if (!lastOfGroup && line.group == group && (line.header || !line.name.isEmpty()))
            lastOfGroup = i;
    }
    if (lastOfGroup) {
        m_lines.insert(m_lines.begin() + std::ptrdiff_t(*lastOfGroup + 1), std::move(entry));
        return;
    }
    if (!m_lines.empty() && !m_lines.back().raw.trimmed().isEmpty())
        m_lines.push_back(Line{QByteArray(), m_lines.back().group, QString(), false});
    m_lines.push_back(Line{'[' + encodedName(group) + ']', group, QString(), true});
    m_lines.push_back(std::move(entry));
}

QByteArray IniDocument::text() const
{
    QByteArray result;
    for (const Line& line : m_lines)
        result += line.raw + '\n';
    return result;
}

bool IniDocument::isPlainValue(const QString& value)
{
    return std::all_of(value.begin(), value.end(), [](QChar ch) { return isPlainKeyCharacter(ch.unicode()); });
}
