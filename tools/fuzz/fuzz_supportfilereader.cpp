// The support file reader on arbitrary file content, and the viewer's rows
// and the exports on whatever it could read.

#include "supportfile/supportfileexport.h"
#include "supportfile/supportfileoutline.h"
#include "supportfile/supportfilereader.h"

#include <QByteArray>

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArray content(reinterpret_cast<const char*>(data), int(size));
    const SupportFileReader::Result result = SupportFileReader::parse(QStringLiteral("fuzz.bin"), content);
    if (result.tree.isEmpty())
        return 0;
    SupportFileOutline::build(result.tree);
    SupportFileExport::toIni(result.tree);
    SupportFileExport::toJson(result.tree);
    return 0;
}
