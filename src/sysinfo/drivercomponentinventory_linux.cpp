#include "sysinfo/drivercomponentinventory.h"

#include "common/versionword.h"

#include <cirro_api.h>

#include <QDateTime>
#include <QFileInfo>

#include <dlfcn.h>

DriverComponent DriverComponentInventory::apiLibrary()
{
    DriverComponent library;
    library.kind = DriverComponent::Kind::ApiLibrary;
    Dl_info info{};
    if (::dladdr(reinterpret_cast<void*>(&pv_QueryApiVersion), &info) != 0 && info.dli_fname) {
        const QFileInfo file(QString::fromLocal8Bit(info.dli_fname));
        library.path = file.canonicalFilePath().isEmpty() ? file.absoluteFilePath() : file.canonicalFilePath();
        library.name = QFileInfo(library.path).fileName();
        library.fileVersion = libraryFileVersion(library.name);
        library.date = QFileInfo(library.path).lastModified().date().toString(QStringLiteral("M-d-yyyy"));
    }
    library.productVersion = VersionWord(pv_QueryApiVersion()).text();
    return library;
}
