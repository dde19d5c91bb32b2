#include "app/apiversioncheck.h"

#include "app/identity.h"
#include "common/versionword.h"

#include <QCoreApplication>

namespace ApiVersionCheck {

bool isSupported(std::uint32_t version)
{
    return VersionWord(version).isAtLeast(minimumMajor, minimumMinor);
}

QString refusalText()
{
    // Every placeholder is filled in one pass; %4 occurs three times.
    return QCoreApplication::translate("main",
                                       "%4 Camera Manager %1 doesn't work with\nlib%4_api < %2.%3!\n"
                                       "use a newer lib%4!")
        .arg(Identity::applicationVersion(), QString::number(minimumMajor), QString::number(minimumMinor),
             Identity::productLineName());
}

} // namespace ApiVersionCheck
