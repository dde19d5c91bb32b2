#include "app/apiversioncheck.h"

#include "app/identity.h"

#include <QCoreApplication>

namespace ApiVersionCheck {

bool isSupported(std::uint32_t version)
{
    const int major = static_cast<int>(version >> 24);
    const int minor = static_cast<int>((version >> 16) & 0xFFu);
    return major > minimumMajor || (major == minimumMajor && minor >= minimumMinor);
}

QString refusalText()
{
    // The last argument finds no placeholder left; Qt then returns the text as it is.
    return QCoreApplication::translate("main",
                                       "%4 Camera Manager %1 doesn't work with\nlib%4_api < %2.%3!\n"
                                       "use a newer lib%4!")
        .arg(Identity::applicationVersion())
        .arg(minimumMajor)
        .arg(minimumMinor)
        .arg(Identity::productLineName())
        .arg(Identity::makerShortName());
}

} // namespace ApiVersionCheck
