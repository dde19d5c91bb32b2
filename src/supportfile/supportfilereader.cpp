#include "supportfile/supportfilereader.h"

#include "supportfile/supportfilecodec.h"

#include <QFile>
#include <QFileInfo>

#include <boost/property_tree/ini_parser.hpp>

namespace {

// The text's lines before the given 1-based one.
std::wstring linesBefore(const std::wstring& text, unsigned long line)
{
    std::size_t end = 0;
    for (unsigned long i = 1; i < line; ++i) {
        end = text.find(L'\n', end);
        if (end == std::wstring::npos)
            return text;
        ++end;
    }
    return text.substr(0, end);
}

} // namespace

std::wstring SupportFileReader::decodeText(const QByteArray& content, int* badLine)
{
    const SupportFileCodec::Decoded decoded = SupportFileCodec::decode(content);
    if (badLine)
        *badLine = decoded.badLine;
    return QString::fromUtf16(decoded.units.data(), int(decoded.units.size())).toStdWString();
}

SupportFileReader::Result SupportFileReader::read(const QString& path)
{
    QFile file(path);
    const QString name = QFileInfo(path).fileName();
    if (!file.open(QIODevice::ReadOnly))
        return {{}, tr("The support file %1 can't be opened: %2.").arg(name, file.errorString()), false};
    if (file.size() > maximumSize)
        return {{}, tr("%1 is too large to be a support file (%2 bytes).").arg(name).arg(file.size()), false};
    return parse(name, file.readAll());
}

SupportFileReader::Result SupportFileReader::parse(const QString& fileName, const QByteArray& content)
{
    if (content.isEmpty())
        return {{}, tr("The support file %1 is empty.").arg(fileName), false};
    int badLine = 0;
    std::wstring text = decodeText(content, &badLine);
    Result result;
    if (badLine != 0) {
        result.error = tr("The support file %1 is damaged: line %2 is not a number from 0 to 65535.")
                           .arg(fileName)
                           .arg(badLine);
        // The last line of text may have been cut short by the damage.
        text.erase(text.rfind(L'\n') == std::wstring::npos ? 0 : text.rfind(L'\n') + 1);
    }
    try {
        result.tree = SupportFileTree::fromIni(text);
    } catch (const boost::property_tree::ini_parser_error& error) {
        if (result.error.isEmpty()) {
            result.error = tr("The support file %1 is damaged: line %2 of its text is not a section or a key "
                              "(%3).")
                               .arg(fileName)
                               .arg(error.line())
                               .arg(QString::fromStdString(error.message()));
        }
        // What stands before the bad line is INI, or the parser would have stopped there.
        try {
            result.tree = SupportFileTree::fromIni(linesBefore(text, error.line()));
        } catch (const boost::property_tree::ini_parser_error&) {
            result.tree = SupportFileTree();
        }
    }
    result.partial = !result.error.isEmpty() && !result.tree.isEmpty();
    if (result.error.isEmpty() && result.tree.isEmpty())
        result.error = tr("The support file %1 holds no sections.").arg(fileName);
    return result;
}
