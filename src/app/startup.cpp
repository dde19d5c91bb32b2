#include "app/startup.h"

#include "app/apiversioncheck.h"
#include "app/commandline.h"
#include "app/identity.h"

#include <cirro_api.h>

#include <QApplication>

namespace Startup {

void prepareProcess()
{
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
}

int run(const QStringList& arguments)
{
    Identity::applyTo(*QCoreApplication::instance());

    CommandLine commandLine;
    commandLine.process(arguments);

    if (!ApiVersionCheck::isSupported(pv_QueryApiVersion()))
        ApiVersionCheck::showRefusal();
    return 0;
}

} // namespace Startup
